#include "tests/privatedb/privateservertest.h"

#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

QString answer(const PrivateMariaDb &server, const QString &sql, PrivateMariaDb::Account account)
{
    QString result;
    {
        QSqlDatabase database = server.addConnection("answer", account);
        if (!database.open()) {
            result = database.lastError().text();
        } else {
            QSqlQuery query(database);
            const bool done = query.exec(sql);
            result = done && query.next() ? query.value(0).toString() : query.lastError().text();
        }
    }
    QSqlDatabase::removeDatabase("answer");
    return result;
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s could not be written", qPrintable(path));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                  | QDir::NoDotAndDotDot);
}

TemporaryTable::TemporaryTable(const QString &socketPath, const QString &connectionName)
    : m_connectionName(connectionName)
    , m_database(QSqlDatabase::addDatabase("QMYSQL", connectionName))
{
    m_database.setConnectOptions("UNIX_SOCKET=" + socketPath);
    if (!m_database.open("root", ""))
        m_error = m_database.lastError().text();
    run("CREATE TEMPORARY TABLE mysql.t ENGINE=Aria AS SELECT 'Jana Nováková' name");
}

TemporaryTable::~TemporaryTable()
{
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

void TemporaryTable::drop()
{
    run("DROP TEMPORARY TABLE mysql.t");
}

void TemporaryTable::run(const QString &sql)
{
    QSqlQuery query(m_database);
    if (!query.exec(sql) && m_error.isEmpty())
        m_error = query.lastError().text();
}

ScopedVariable::ScopedVariable(const char *name, const QByteArray &value)
    : m_name(name)
    , m_before(qgetenv(name))
{
    set(value);
}

ScopedVariable::~ScopedVariable()
{
    set(m_before);
}

void ScopedVariable::set(const QByteArray &value)
{
    if (value.isNull())
        qunsetenv(m_name);
    else
        qputenv(m_name, value);
}
