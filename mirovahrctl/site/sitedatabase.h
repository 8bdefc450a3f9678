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

/// The connection of a subcommand to the site's database.
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

private:
    std::unique_ptr<Database> m_database;
    std::optional<SqlSession> m_sql; ///< destroyed before the connection
};
