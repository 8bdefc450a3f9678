#include "tests/reference-db/privateservertest.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
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

ScopedVariable::ScopedVariable(const char *name, const QByteArray &value)
    : m_name(name)
    , m_before(qgetenv(name))
{
    qputenv(name, value);
}

ScopedVariable::~ScopedVariable()
{
    qputenv(m_name, m_before);
}
