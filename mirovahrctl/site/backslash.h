#pragma once

#include <QString>

#include <optional>

class QSqlDatabase;

/// What a backslash in a text is to the database server.
enum class Backslash {
    Escapes, ///< the character after it
    IsLiteral ///< in the SQL mode NO_BACKSLASH_ESCAPES
};

/// Reads it from the SQL mode of this connection. Nothing when that fails; `error` then says why, a
/// sentence without its full stop.
std::optional<Backslash> readBackslash(const QSqlDatabase &database, QString &error);
