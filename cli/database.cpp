#include "cli/database.h"

#include "cli/databaseoptions.h"
#include "cli/text.h"

#include <QSqlError>
#include <QStringList>

#include <algorithm>

namespace {

constexpr char kDriver[] = "QMYSQL";

/// A healthy server greets at once, whatever its statements take.
constexpr uint kLongestConnectTimeout = 30;

/// The limits for a server that neither answers nor closes the connection. The read timeout alone
/// would not suffice: the client library awaits the greeting of a server with the connect timeout
/// only, and a statement that exceeds the buffer of the socket with the write timeout only.
QStringList timeouts(uint seconds)
{
    if (seconds == 0)
        return {};
    return {QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=%1")
                .arg(std::min(seconds, kLongestConnectTimeout)),
            QStringLiteral("MYSQL_OPT_READ_TIMEOUT=%1").arg(seconds),
            QStringLiteral("MYSQL_OPT_WRITE_TIMEOUT=%1").arg(seconds)};
}

// "localhost" alone means the client library's default socket, so a socket is always named. Of an
// option that occurs twice Qt's driver takes the last one: the user's.
QString connectOptions(const DatabaseOptions &options)
{
    QStringList parts = timeouts(options.readTimeout);
    if (!options.socket.isEmpty())
        parts << QStringLiteral("UNIX_SOCKET=") + options.socket;
    if (!options.connectOptions.isEmpty())
        parts << options.connectOptions;
    return parts.join(QLatin1Char(';'));
}

} // namespace

Database::Database(const DatabaseOptions &options, const QString &connectionName)
    : m_server(options.server())
    , m_connection(QSqlDatabase::addDatabase(QLatin1String(kDriver), connectionName))
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
    return Text::tr("%1 (server %2)").arg(m_connection.lastError().text(), m_server);
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
    return Text::tr("Qt's MySQL driver is missing: install the package libqt5sql5-mysql");
}
