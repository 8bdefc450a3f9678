#include "privatedb/privatemariadb.h"

#include "cli/text.h"
#include "privatedb/datafolder.h"
#include "privatedb/lastlines.h"
#include "privatedb/mariadbprocess.h"
#include "privatedb/programs.h"
#include "privatedb/serveroptions.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

using MariaDbPrograms::Program;

constexpr int kStartTimeoutMs = 120000;
constexpr int kStopTimeoutMs = 120000;
constexpr int kReadyProbeMs = 20;

/// The folder for temporary files: TMPDIR even when it does not exist, so that messages can name
/// it.
QString folderForTemporaryFiles()
{
    const QString folder = QDir::tempPath();
    return folder.isEmpty() ? qEnvironmentVariable("TMPDIR") : folder;
}

/// A connection that is removed again at the end of the block.
class ScopedConnection {
public:
    ScopedConnection(const PrivateMariaDb &server, const QString &name)
        : m_name(name)
        , m_database(server.addConnection(name, PrivateMariaDb::Account::Administrator))
    {
    }
    ~ScopedConnection()
    {
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    ScopedConnection(const ScopedConnection &) = delete;
    ScopedConnection &operator=(const ScopedConnection &) = delete;
    QSqlDatabase &database() { return m_database; }

private:
    const QString m_name;
    QSqlDatabase m_database;
};

} // namespace

PrivateMariaDb::PrivateMariaDb()
    : m_baseDir(folderForTemporaryFiles())
    , m_madeDataFolder(qEnvironmentVariable(kDataFolderVariable))
    , m_databaseName(QStringLiteral("tepdb"))
{
}

PrivateMariaDb::~PrivateMariaDb()
{
    end();
}

bool PrivateMariaDb::start()
{
    if (isRunning())
        return true;
    if (!launch() || !waitUntilReady())
        return false;
    m_hasAccount = m_hasAccount || makeAccount();
    return m_hasAccount;
}

bool PrivateMariaDb::prepare()
{
    m_hasData = m_hasData || (findPrograms() && makeFolder());
    return m_hasData;
}

bool PrivateMariaDb::stop()
{
    if (!isRunning())
        return true;
    m_server->terminate();
    if (m_server->waitForFinished(kStopTimeoutMs))
        return true;
    kill();
    return fail(Text::tr("The private MariaDB server did not shut down and was killed.\n%1")
                    .arg(errorLogTail()));
}

bool PrivateMariaDb::end()
{
    if (m_keepFiles)
        return stop();
    kill(); // what a shutdown writes would be removed at once
    return true;
}

bool PrivateMariaDb::waitUntilEnded()
{
    if (!isRunning() || m_server->waitForFinished(kStopTimeoutMs))
        return true;
    return fail(Text::tr("The private MariaDB server goes on running."));
}

bool PrivateMariaDb::restart()
{
    return stop() && start();
}

void PrivateMariaDb::kill()
{
    if (!isRunning())
        return;
    m_server->kill();
    m_server->waitForFinished(-1);
}

bool PrivateMariaDb::load(const QStringList &sqlFiles)
{
    const QString program = MariaDbPrograms::find(Program::Client);
    if (program.isEmpty())
        return fail(MariaDbPrograms::missing(Program::Client));
    for (const QString &file : sqlFiles) {
        MariaDbProcess client(m_folder, BoundProcess::Group::WithParent);
        client.setStandardInputFile(file);
        client.start(program,
                     {QStringLiteral("--no-defaults"),
                      QStringLiteral("--socket=%1").arg(socketPath()),
                      QStringLiteral("--user=root"),
                      QStringLiteral("--default-character-set=utf8mb4"), m_databaseName});
        const bool ended = client.waitForFinished(-1);
        if (!ended || client.exitStatus() != QProcess::NormalExit || client.exitCode() != 0) {
            const QString reason = client.error() == QProcess::UnknownError
                ? QString::fromUtf8(client.readAllStandardError()).trimmed()
                : client.errorString();
            return fail(Text::tr("%1 could not be loaded: %2").arg(file).arg(reason));
        }
    }
    return true;
}

bool PrivateMariaDb::isRunning() const
{
    return m_server && m_server->state() != QProcess::NotRunning;
}

qint64 PrivateMariaDb::pid() const
{
    return m_server ? m_server->processId() : 0;
}

QString PrivateMariaDb::userName() const
{
    return QString::fromLatin1(HostAccount::kName);
}

QString PrivateMariaDb::password() const
{
    return QString::fromLatin1(HostAccount::kPassword);
}

QSqlDatabase PrivateMariaDb::addConnection(const QString &connectionName, Account account) const
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"), connectionName);
    // For the client library "localhost" means the machine's own server: only this option counts.
    database.setConnectOptions(QStringLiteral("UNIX_SOCKET=%1").arg(socketPath()));
    database.setHostName(QStringLiteral("localhost"));
    if (account == Account::Host) {
        database.setDatabaseName(m_databaseName);
        database.setUserName(userName());
        database.setPassword(password());
    } else {
        database.setUserName(QStringLiteral("root"));
        // Without a password the client library would use MYSQL_PWD of the environment.
        database.setPassword(QStringLiteral(""));
    }
    return database;
}

bool PrivateMariaDb::fail(const QString &error)
{
    m_error = error;
    return false;
}

bool PrivateMariaDb::findPrograms()
{
    for (const Program program : {Program::Server, Program::InstallDb}) {
        if (MariaDbPrograms::find(program).isEmpty())
            return fail(MariaDbPrograms::missing(program));
    }
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QMYSQL"))) {
        return fail(Text::tr(
            "Qt's MySQL driver (QMYSQL) is missing: install the package libqt5sql5-mysql."));
    }
    return true;
}

bool PrivateMariaDb::makeFolder()
{
    const auto atTheEnd =
        m_keepFiles ? ServerFolder::AtTheEnd::Kept : ServerFolder::AtTheEnd::Removed;
    if (!m_folder.make(m_baseDir, atTheEnd, m_error))
        return false;
    return m_madeDataFolder.isEmpty()
        ? makeDataFolder(m_folder, m_error)
        : copyDataFolder(m_madeDataFolder, m_folder.dataDir(), m_error);
}

bool PrivateMariaDb::launch()
{
    if (!prepare())
        return false;
    m_server = std::make_unique<MariaDbProcess>(m_folder, BoundProcess::Group::OfItsOwn);
    m_server->setProcessChannelMode(QProcess::MergedChannels);
    m_server->setStandardOutputFile(errorLogPath(), QIODevice::Append);
    m_server->start(MariaDbPrograms::find(Program::Server),
                    ServerOptions::forService(m_folder) + m_serverOptions);
    if (m_server->waitForStarted(-1))
        return true;
    return fail(Text::tr("mariadbd could not be started: %1").arg(m_server->errorString()));
}

bool PrivateMariaDb::waitUntilReady()
{
    ScopedConnection connection(*this, QStringLiteral("privatemariadb.ready.%1").arg(folder()));
    const QDeadlineTimer deadline(kStartTimeoutMs);
    while (!deadline.hasExpired()) {
        if (connection.database().open()) {
            QSqlQuery query(connection.database());
            if (query.exec(QStringLiteral("SELECT 1")) && query.next())
                return true;
        }
        if (m_server->waitForFinished(kReadyProbeMs) || !isRunning()) {
            return fail(Text::tr("The private MariaDB server ended while it was starting. "
                                 "The end of its log:\n%1")
                            .arg(errorLogTail()));
        }
    }
    kill();
    return fail(Text::tr("The private MariaDB server did not answer within %1 s. "
                         "The end of its log:\n%2")
                    .arg(kStartTimeoutMs / 1000)
                    .arg(errorLogTail()));
}

bool PrivateMariaDb::makeAccount()
{
    ScopedConnection connection(*this, QStringLiteral("privatemariadb.account.%1").arg(folder()));
    if (!connection.database().open())
        return fail(connection.database().lastError().text());
    return HostAccount::writePasswordFile(passwordFile(), m_error)
        && HostAccount::make(connection.database(), m_databaseName, m_hostRights, m_error);
}

QString PrivateMariaDb::errorLogTail() const
{
    QFile file(errorLogPath());
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    return lastLines(QString::fromUtf8(file.readAll()));
}
