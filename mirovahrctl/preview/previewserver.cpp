#include "mirovahrctl/preview/previewserver.h"

#include "mirovahrctl/preview/previewschema.h"

#include <QSqlError>

namespace {

constexpr char kCopyConnection[] = "mirovahrctl.copy";
constexpr char kAttendanceConnection[] = "mirovahrctl.attendance";

/// A row is copied in one statement, however long it is.
constexpr char kLargestPacket[] = "--max-allowed-packet=256M";

/// The private server has no named zones: an offset is passed on, any other zone is the program's.
QString timeZoneOption(const QString &siteZone)
{
    const bool isOffset =
        siteZone.startsWith(QLatin1Char('+')) || siteZone.startsWith(QLatin1Char('-'));
    return QStringLiteral("--default-time-zone=")
        + (isOffset ? siteZone : QStringLiteral("SYSTEM"));
}

} // namespace

PreviewServer::~PreviewServer()
{
    QSqlDatabase::removeDatabase(QLatin1String(kAttendanceConnection));
    QSqlDatabase::removeDatabase(QLatin1String(kCopyConnection));
}

bool PreviewServer::start(const PreviewSchema &schema)
{
    if (m_server.isRunning()) {
        // It is connected to a database that is about to be dropped.
        attendance().close();
        return true;
    }
    m_server.setDatabaseName(schema.name);
    m_server.setServerOptions(
        QStringList{timeZoneOption(schema.timeZone), QLatin1String(kLargestPacket)}
        + schema.serverOptions);
    return m_server.start() ? connectToServer() : fail(m_server.errorString());
}

bool PreviewServer::connectToServer()
{
    m_server.addConnection(QLatin1String(kAttendanceConnection), PrivateMariaDb::Account::Host);
    QSqlDatabase database = m_server.addConnection(QLatin1String(kCopyConnection),
                                                   PrivateMariaDb::Account::Administrator);
    return database.open() || fail(database.lastError().text());
}

QSqlDatabase PreviewServer::administrator() const
{
    return QSqlDatabase::database(QLatin1String(kCopyConnection));
}

QSqlDatabase PreviewServer::attendance() const
{
    return QSqlDatabase::database(QLatin1String(kAttendanceConnection));
}

bool PreviewServer::fail(const QString &error)
{
    m_error = error;
    while (m_error.endsWith(QLatin1Char('.')))
        m_error.chop(1);
    return false;
}
