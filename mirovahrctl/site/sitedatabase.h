#pragma once

#include "cli/databaseoptions.h"
#include "mirovahrctl/report/exitstatus.h"
#include "mirovahrctl/site/sqlsession.h"

#include <memory>
#include <optional>

class CommandLine;
class Console;
class Database;

/// What a subcommand does with the site's database.
enum class DatabaseAccess {
    ReadOnly, ///< the server itself refuses every write
    ReadWrite
};

/// The connection of a subcommand to the site's database. As long as it is open, a failure of the
/// subcommand is reported as the loss of the connection when that is lost.
class SiteDatabase {
public:
    SiteDatabase();
    /// All copies of the connection must be destroyed before.
    ~SiteDatabase();
    SiteDatabase(const SiteDatabase &) = delete;
    SiteDatabase &operator=(const SiteDatabase &) = delete;

    /// Opens the database that the command line names. Has a status when the subcommand must end
    /// with it: that failed, and the error was printed.
    std::optional<ExitStatus> open(const CommandLine &line, DatabaseAccess access,
                                   Console &console);

    /// Opens, for reading, the same database on another server: with the account and the connect
    /// options with which \a site was opened. Why that failed, empty when it did not.
    QString openNode(const SiteDatabase &site, const QString &host, uint port);

    /// Only after one of them has succeeded.
    SqlSession &sql() { return *m_sql; }

    /// The connect options that the user gave.
    QString givenConnectOptions() const { return m_options.connectOptions; }

    /// Asks the server. Which one has closed the connection or fallen silent, a sentence without
    /// its full stop; empty when it answers.
    QString loss() const;

private:
    Console *m_console = nullptr; ///< null unless open() has succeeded
    DatabaseOptions m_options;
    std::unique_ptr<Database> m_database;
    std::optional<SqlSession> m_sql; ///< destroyed before the connection
};
