#pragma once

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

    /// Only after a successful open().
    SqlSession &sql() { return *m_sql; }

    /// The connect options that the user gave.
    QString givenConnectOptions() const { return m_givenConnectOptions; }

    /// Asks the server. Which one has closed the connection or fallen silent, a sentence without
    /// its full stop; empty when it answers.
    QString loss() const;

private:
    Console *m_console = nullptr; ///< null unless the connection is open
    QString m_server;
    QString m_givenConnectOptions;
    std::unique_ptr<Database> m_database;
    std::optional<SqlSession> m_sql; ///< destroyed before the connection
};
