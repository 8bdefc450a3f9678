#pragma once

#include <QString>

/// What a text does to the plugin's SQL statements, which contain texts unescaped.
namespace SqlHazards {

/// Where the first placeholder from there on begins, such as "%1" or "%L1", which the plugin fills
/// in with another value of the statement; -1 when there is none.
int placeholderAt(const QString &text, int from);

/// True when the text contains a placeholder.
bool hasPlaceholder(const QString &text);

/// True when the text contains a character above U+FFFF, such as an emoji: with the client library
/// of Qt's driver on Debian a connection uses three-byte UTF-8.
bool hasWideCharacter(const QString &text);

/// True when a statement with this text fails or changes its meaning: the text contains an
/// apostrophe, a backslash, a placeholder or a wide character.
bool breaksStatement(const QString &text);

} // namespace SqlHazards
