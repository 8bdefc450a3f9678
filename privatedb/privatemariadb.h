#pragma once

#include "privatedb/hostaccount.h"
#include "privatedb/serverfolder.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <memory>

class MariaDbProcess;

/// A private MariaDB server in a temporary folder, for tests, the demo and tools.
///
/// It shares processor, memory and disk with the machine's servers, and nothing else. Everything
/// that it writes lies in its folder (ServerFolder), temporary tables included. It takes no
/// options, accounts or plugins from the machine and reports to nobody (MariaDbProcess,
/// ServerOptions). It listens on a socket only. It dies with the program that started it (see
/// BoundProcess for the thread) and takes its folder along, also when the program is killed.
///
/// Its local time zone is that of the program's environment (`TZ`). It holds one database and two
/// accounts: `root` without a password, and the account that an attendance server would use, with
/// one.
///
/// Needs a QCoreApplication, for Qt's database drivers. Operations that return bool leave the
/// reason of a failure in errorString().
class PrivateMariaDb {
public:
    enum class Account {
        Administrator, ///< `root`, without a password
        Host ///< userName(), with password(): rights on the database only, see HostRights
    };

    using HostRights = HostAccount::Rights;

    /// The environment variable that names a data folder for setMadeDataFolder(), for programs that
    /// this one starts, too.
    static constexpr char kDataFolderVariable[] = "MIROVAHR_DATA_FOLDER";

    PrivateMariaDb();
    ~PrivateMariaDb(); ///< end(), and removes the folder.
    PrivateMariaDb(const PrivateMariaDb &) = delete;
    PrivateMariaDb &operator=(const PrivateMariaDb &) = delete;

    /// Folder in which the server's own folder is made; the system's temporary folder by default.
    void setBaseDir(const QString &dir) { m_baseDir = dir; }
    /// Further options of mariadbd, as on its command line ("--general-log=1").
    void setServerOptions(const QStringList &options) { m_serverOptions = options; }
    /// Name of the database that the first start creates; "tepdb" by default.
    void setDatabaseName(const QString &name) { m_databaseName = name; }
    /// What the first start() grants to Account::Host; everything by default.
    void setHostRights(HostRights rights) { m_hostRights = rights; }
    /// Copies this data folder at the first start() instead of making one: that of
    /// makeDataFolder(), for programs that start so many servers that it matters, or that of a
    /// server that does not run, with its database and accounts. By default the one that
    /// kDataFolderVariable names.
    void setMadeDataFolder(const QString &folder) { m_madeDataFolder = folder; }
    /// Keeps the folder, to examine the data and the error log. To be called before the first
    /// start().
    void setKeepFiles(bool keep) { m_keepFiles = keep; }

    /// Starts the server; true once it answers queries. The first call makes the data folder, the
    /// database and the accounts; after stop() or kill() it goes on with the same data and socket.
    bool start();
    /// Makes the folder with the data folder, if it is not there yet. start() does it, too.
    bool prepare();
    /// Starts the server, which may not answer yet; without the account that start() makes. For
    /// servers that wait for each other.
    bool launch();
    /// True once a launched server answers queries.
    bool waitUntilReady();
    /// Waits for a server that ends of its own accord. False when it does not within two minutes.
    bool waitUntilEnded();
    /// Asks the server to shut down and waits until it has. True also when it was not running.
    bool stop();
    /// Ends the server for good: by stop() when its files are kept, else by kill().
    bool end();
    /// stop() and start().
    bool restart();
    /// Ends the server at once (SIGKILL), as a crash would.
    void kill();

    /// Feeds a file of SQL statements (DELIMITER included) to the database, as administrator.
    /// Stops at the first statement that fails.
    bool load(const QString &sqlFile) { return load(QStringList{sqlFile}); }
    /// As above, for several files in a row.
    bool load(const QStringList &sqlFiles);

    bool isRunning() const;
    qint64 pid() const; ///< Process id of the server, 0 when it is not running.
    QString errorString() const { return m_error; }

    /// The server's folder; empty before the first start().
    QString folder() const { return m_folder.path(); }
    QString dataDir() const { return m_folder.dataDir(); }
    QString socketPath() const { return m_folder.socketPath(); }
    QString errorLogPath() const { return m_folder.errorLogPath(); }
    /// File that holds password() and nothing else, readable by its owner only.
    QString passwordFile() const { return m_folder.passwordFile(); }
    QString databaseName() const { return m_databaseName; }
    QString userName() const;
    QString password() const;

    /// Registers a connection to this server under \a connectionName, not yet opened. The caller
    /// removes it.
    QSqlDatabase addConnection(const QString &connectionName,
                               Account account = Account::Host) const;

private:
    bool fail(const QString &error);
    bool findPrograms();
    bool makeFolder();
    bool makeAccount();
    QString errorLogTail() const;

    QString m_baseDir;
    QString m_madeDataFolder; ///< empty: none
    QStringList m_serverOptions;
    QString m_databaseName;
    HostRights m_hostRights = HostRights::All;
    bool m_keepFiles = false;
    bool m_hasData = false; ///< The data folder is there.
    bool m_hasAccount = false; ///< Database and account are there.
    ServerFolder m_folder;
    QString m_error;
    std::unique_ptr<MariaDbProcess> m_server;
};
