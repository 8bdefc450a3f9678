#include "privatedb/privatemariadb.h"

#include "privatedb/boundprocess.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <csignal>

#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int kInstallTimeoutMs = 120000;
constexpr int kStartTimeoutMs = 120000;
constexpr int kStopTimeoutMs = 120000;
constexpr int kReadyProbeMs = 20;
constexpr int kErrorLogTailLines = 20;
constexpr char kUserName[] = "yav";
constexpr char kPassword[] = "yav-private";
constexpr char kServerProgram[] = "mariadbd";
constexpr char kInstallProgram[] = "mariadb-install-db";
constexpr char kClientProgram[] = "mariadb";

QString findProgram(const char *name)
{
    const QString program = QString::fromLatin1(name);
    const QString found = QStandardPaths::findExecutable(program);
    if (!found.isEmpty())
        return found;
    // An ordinary user's PATH often lacks the folder that holds servers.
    return QStandardPaths::findExecutable(
        program, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
}

QString lastLines(const QString &text, int count)
{
    const QStringList lines = text.trimmed().split(QLatin1Char('\n'));
    return lines.mid(qMax(0, lines.size() - count)).join(QLatin1Char('\n'));
}

/// What keeps a throw-away server small and quick: it need not survive the machine, so it never
/// waits for the disk. None of it changes how SQL behaves, or what a killed server finds again.
QStringList storageOptions()
{
    return {QStringLiteral("--debug-no-sync"),
            QStringLiteral("--innodb-log-file-size=8M"),
            QStringLiteral("--innodb-buffer-pool-size=16M"),
            QStringLiteral("--innodb-flush-log-at-trx-commit=0"),
            QStringLiteral("--innodb-flush-method=nosync"),
            QStringLiteral("--innodb-doublewrite=0"),
            QStringLiteral("--innodb-file-per-table=0"),
            QStringLiteral("--innodb-use-native-aio=0"),
            QStringLiteral("--aria-pagecache-buffer-size=8M"),
            QStringLiteral("--key-buffer-size=1M")};
}

/// mariadbd refuses to run as root unless it is told to.
QStringList accountOptions()
{
    return ::geteuid() == 0 ? QStringList{QStringLiteral("--user=root")} : QStringList();
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
    : m_baseDir(QDir::tempPath())
    , m_databaseName(QStringLiteral("tepdb"))
{
}

PrivateMariaDb::~PrivateMariaDb()
{
    stop();
}

void PrivateMariaDb::setKeepFiles(bool keep)
{
    m_keepFiles = keep;
    if (m_temporaryDir)
        m_temporaryDir->setAutoRemove(!keep);
}

bool PrivateMariaDb::start()
{
    if (isRunning())
        return true;
    if (!m_prepared && !(findPrograms() && makeFolder() && makeDataDir()))
        return false;
    if (!launch() || !waitUntilReady())
        return false;
    m_prepared = m_prepared || makeAccounts();
    return m_prepared;
}

bool PrivateMariaDb::stop()
{
    if (!isRunning())
        return true;
    m_server->terminate();
    if (m_server->waitForFinished(kStopTimeoutMs))
        return true;
    kill();
    return fail(QStringLiteral("The private MariaDB server did not shut down and was killed.\n%1")
                    .arg(errorLogTail()));
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
    const QString program = findProgram(kClientProgram);
    if (program.isEmpty()) {
        return fail(QStringLiteral(
            "The program mariadb is missing: install the package mariadb-client-core."));
    }
    for (const QString &file : sqlFiles) {
        BoundProcess client(SIGKILL, BoundProcess::Group::WithParent);
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
            return fail(QStringLiteral("%1 could not be loaded: %2").arg(file).arg(reason));
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

QString PrivateMariaDb::dataDir() const
{
    return m_folder + QStringLiteral("/data");
}

QString PrivateMariaDb::socketPath() const
{
    return m_folder + QStringLiteral("/s");
}

QString PrivateMariaDb::errorLogPath() const
{
    return m_folder + QStringLiteral("/error.log");
}

QString PrivateMariaDb::passwordFile() const
{
    return m_folder + QStringLiteral("/password");
}

QString PrivateMariaDb::userName() const
{
    return QString::fromLatin1(kUserName);
}

QString PrivateMariaDb::password() const
{
    return QString::fromLatin1(kPassword);
}

QSqlDatabase PrivateMariaDb::addConnection(const QString &connectionName, Account account) const
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"), connectionName);
    // The client library takes "localhost" for the machine's own server: only this option counts.
    database.setConnectOptions(QStringLiteral("UNIX_SOCKET=%1").arg(socketPath()));
    database.setHostName(QStringLiteral("localhost"));
    if (account == Account::Host) {
        database.setDatabaseName(m_databaseName);
        database.setUserName(userName());
        database.setPassword(password());
    } else {
        database.setUserName(QStringLiteral("root"));
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
    for (const char *name : {kServerProgram, kInstallProgram}) {
        if (findProgram(name).isEmpty()) {
            return fail(QStringLiteral(
                            "The program %1 is missing: install the package mariadb-server-core.")
                            .arg(QString::fromLatin1(name)));
        }
    }
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QMYSQL"))) {
        return fail(QStringLiteral(
            "Qt's MySQL driver (QMYSQL) is missing: install the package libqt5sql5-mysql."));
    }
    return true;
}

bool PrivateMariaDb::makeFolder()
{
    auto folder = std::make_unique<QTemporaryDir>(m_baseDir + QStringLiteral("/mhrdb-XXXXXX"));
    if (!folder->isValid()) {
        return fail(
            QStringLiteral("No folder for the private MariaDB server could be made in %1: %2")
                .arg(m_baseDir)
                .arg(folder->errorString()));
    }
    const QString socket = folder->path() + QStringLiteral("/s");
    constexpr int longest = int(sizeof(sockaddr_un::sun_path)) - 1;
    if (QFile::encodeName(socket).size() > longest) {
        return fail(QStringLiteral("The socket path %1 is longer than %2 bytes: "
                                   "set TMPDIR to a folder with a shorter name.")
                        .arg(socket)
                        .arg(longest));
    }
    folder->setAutoRemove(!m_keepFiles);
    m_temporaryDir = std::move(folder);
    m_folder = m_temporaryDir->path();
    return true;
}

bool PrivateMariaDb::makeDataDir()
{
    BoundProcess install(SIGKILL, BoundProcess::Group::OfItsOwn);
    install.setProcessChannelMode(QProcess::MergedChannels);
    install.start(findProgram(kInstallProgram),
                  QStringList{QStringLiteral("--no-defaults"),
                              QStringLiteral("--auth-root-authentication-method=normal"),
                              QStringLiteral("--skip-test-db"),
                              // Also where the machine cannot look its own name up.
                              QStringLiteral("--force"),
                              QStringLiteral("--datadir=%1").arg(dataDir())}
                      + accountOptions() + storageOptions());
    if (install.waitForFinished(kInstallTimeoutMs) && install.exitStatus() == QProcess::NormalExit
        && install.exitCode() == 0) {
        return true;
    }
    const QString output = lastLines(QString::fromUtf8(install.readAll()), kErrorLogTailLines);
    return fail(
        QStringLiteral("The data folder of the private MariaDB server could not be made.\n%1")
            .arg(output));
}

bool PrivateMariaDb::launch()
{
    m_server = std::make_unique<BoundProcess>(SIGKILL, BoundProcess::Group::OfItsOwn);
    m_server->setProcessChannelMode(QProcess::MergedChannels);
    m_server->setStandardOutputFile(errorLogPath(), QIODevice::Append);
    m_server->start(findProgram(kServerProgram),
                    QStringList{QStringLiteral("--no-defaults"), // must come first
                                QStringLiteral("--datadir=%1").arg(dataDir()),
                                QStringLiteral("--socket=%1").arg(socketPath()),
                                QStringLiteral("--pid-file=%1/server.pid").arg(m_folder),
                                QStringLiteral("--log-error=%1").arg(errorLogPath()),
                                QStringLiteral("--skip-networking"),
                                QStringLiteral("--character-set-server=utf8mb4"),
                                QStringLiteral("--collation-server=utf8mb4_general_ci")}
                        + accountOptions() + storageOptions() + m_serverOptions);
    if (m_server->waitForStarted(-1))
        return true;
    return fail(QStringLiteral("mariadbd could not be started: %1").arg(m_server->errorString()));
}

bool PrivateMariaDb::waitUntilReady()
{
    ScopedConnection connection(*this, QStringLiteral("privatemariadb.ready.%1").arg(m_folder));
    const QDeadlineTimer deadline(kStartTimeoutMs);
    while (!deadline.hasExpired()) {
        if (connection.database().open()) {
            QSqlQuery query(connection.database());
            if (query.exec(QStringLiteral("SELECT 1")) && query.next())
                return true;
        }
        if (m_server->waitForFinished(kReadyProbeMs) || !isRunning()) {
            return fail(QStringLiteral("The private MariaDB server ended while it was starting. "
                                       "The end of its log:\n%1")
                            .arg(errorLogTail()));
        }
    }
    kill();
    return fail(QStringLiteral("The private MariaDB server did not answer within %1 s. "
                               "The end of its log:\n%2")
                    .arg(kStartTimeoutMs / 1000)
                    .arg(errorLogTail()));
}

bool PrivateMariaDb::makeAccounts()
{
    QFile file(passwordFile());
    if (!file.open(QIODevice::WriteOnly)
        || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        || file.write(kPassword) < 0) {
        return fail(QStringLiteral("%1: %2").arg(file.fileName()).arg(file.errorString()));
    }
    ScopedConnection connection(*this, QStringLiteral("privatemariadb.accounts.%1").arg(m_folder));
    if (!connection.database().open())
        return fail(connection.database().lastError().text());
    QSqlQuery query(connection.database());
    QStringList statements{
        QStringLiteral("CREATE DATABASE `%1` CHARACTER SET utf8mb4").arg(m_databaseName),
        QStringLiteral("CREATE USER '%1'@'localhost' IDENTIFIED BY '%2'")
            .arg(userName())
            .arg(password())};
    if (m_hostRights == HostRights::All) {
        statements += QStringLiteral("GRANT ALL ON `%1`.* TO '%2'@'localhost'")
                          .arg(m_databaseName)
                          .arg(userName());
    }
    for (const QString &statement : qAsConst(statements)) {
        if (!query.exec(statement))
            return fail(query.lastError().text());
    }
    return true;
}

QString PrivateMariaDb::errorLogTail() const
{
    QFile file(errorLogPath());
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    return lastLines(QString::fromUtf8(file.readAll()), kErrorLogTailLines);
}
