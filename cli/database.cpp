#include "cli/database.h"

#include "cli/databaseoptions.h"

#include <QSqlError>
#include <QStringList>

namespace {

constexpr char kDriver[] = "QMYSQL";

// "localhost" alone means the client library's default socket, so a socket is always named.
QString connectOptions(const DatabaseOptions &options)
{
    QStringList parts;
    if (!options.socket.isEmpty())
        parts << QStringLiteral("UNIX_SOCKET=") + options.socket;
    if (!options.connectOptions.isEmpty())
        parts << options.connectOptions;
    return parts.join(QLatin1Char(';'));
}

} // namespace

Database::Database(const DatabaseOptions &options, const QString &connectionName)
    : m_connection(QSqlDatabase::addDatabase(QLatin1String(kDriver), connectionName))
{
    m_connection.setHostName(options.socket.isEmpty() ? options.host : QStringLiteral("localhost"));
    m_connection.setPort(options.port == 0 ? -1 : static_cast<int>(options.port));
    m_connection.setDatabaseName(options.name);
    m_connection.setUserName(options.user);
    m_connection.setPassword(options.password);
    m_connection.setConnectOptions(connectOptions(options));
}

Database::~Database()
{
    const QString name = m_connection.connectionName();
    m_connection.close();
    m_connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

bool Database::open()
{
    return m_connection.open();
}

QString Database::errorString() const
{
    return m_connection.lastError().text();
}

QSqlDatabase Database::handle() const
{
    return m_connection;
}

bool Database::isDriverAvailable()
{
    return QSqlDatabase::isDriverAvailable(QLatin1String(kDriver));
}

QString Database::missingDriverText()
{
    return QStringLiteral("Qt's MySQL driver is missing: install the package libqt5sql5-mysql");
}
