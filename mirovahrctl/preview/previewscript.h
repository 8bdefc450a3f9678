#pragma once

#include <QString>

class QIODevice;

/// Parts of a file of SQL statements.
namespace PreviewScript {

// What stands around statements whose values come from tables: the server must not convert them on
// their way back. Triggers that fire in between take the time zone for the site's.
inline constexpr char kExactValues[] =
    "SET NAMES utf8mb4;\n"
    "SET @old_time_zone = @@SESSION.time_zone, SESSION time_zone = '+00:00';\n"
    "SET @old_sql_mode = @@SESSION.sql_mode,\n"
    "    SESSION sql_mode = 'NO_AUTO_VALUE_ON_ZERO,ALLOW_INVALID_DATES,STRICT_ALL_TABLES';\n";
inline constexpr char kOwnTimeZone[] = "SET SESSION time_zone = @old_time_zone;\n";
inline constexpr char kOwnSqlMode[] = "SET SESSION sql_mode = @old_sql_mode;\n";

/// Writes rows, many in one statement.
class Inserts {
public:
    /// \a table, \a columns: in SQL. \a out must be open for writing.
    Inserts(const QString &table, const QString &columns, QIODevice &out);
    /// Writes what is left.
    ~Inserts();
    Inserts(const Inserts &) = delete;
    Inserts &operator=(const Inserts &) = delete;

    /// \a tuple: "(1, 'text')".
    void add(const QString &tuple);

private:
    void flush();

    const QString m_head;
    QIODevice &m_out;
    QString m_tuples;
};

} // namespace PreviewScript
