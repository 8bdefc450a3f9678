#pragma once

#include <optional>

class SqlSession;

/// What a backslash in a text is to the database server.
enum class Backslash {
    Escapes, ///< the character after it
    IsLiteral ///< in the SQL mode NO_BACKSLASH_ESCAPES
};

/// Reads it from the SQL mode of this connection. Nothing when that fails; the session says why.
std::optional<Backslash> readBackslash(SqlSession &site);
