#include "bench/site.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>

#include <cstdio>
#include <cstdlib>

namespace {

QByteArray contentOf(const QByteArray &path)
{
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        giveUp(file.fileName() + QLatin1String(": ") + file.errorString());
    return file.readAll();
}

QSqlDatabase connection(const char *name, const QByteArray &socket, const QByteArray &user,
                        const QByteArray &password, const QByteArray &database)
{
    QSqlDatabase db =
        QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"), QString::fromLatin1(name));
    db.setConnectOptions(QLatin1String("UNIX_SOCKET=") + QString::fromLocal8Bit(socket));
    db.setUserName(QString::fromLocal8Bit(user));
    db.setPassword(QString::fromLocal8Bit(password));
    db.setDatabaseName(QString::fromLocal8Bit(database));
    return db;
}

} // namespace

Site::Site()
    : m_socket(qgetenv("MIROVAHR_DB_SOCKET"))
    , m_user(qgetenv("MIROVAHR_DB_USER"))
    , m_password(contentOf(qgetenv("MIROVAHR_DB_PASSWORD_FILE")))
    , m_database(qgetenv("MIROVAHR_DB_NAME"))
    , m_host(connection("host", m_socket, m_user, m_password, m_database))
    , m_administrator(connection("administrator", m_socket, "root", QByteArray(), m_database))
{
}

plain_account Site::plain() const
{
    return {m_socket.constData(), m_user.constData(), m_password.constData(),
            m_database.constData()};
}

QSqlDatabase Site::administrator() const
{
    QSqlDatabase administrator = m_administrator;
    if (!administrator.isOpen() && !administrator.open())
        giveUp(administrator.lastError().text());
    return administrator;
}

void Site::administer(const QString &sql) const
{
    QSqlQuery query(administrator());
    if (!query.exec(sql))
        giveUp(query.lastError().text() + QLatin1String(" - ") + sql);
}

void giveUp(const QString &reason)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(reason));
    std::exit(1);
}
