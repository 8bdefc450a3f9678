#pragma once

#include <QString>

/// What a text does to the plugin's SQL statements, which contain texts unescaped.
namespace SqlHazards {

/// True when the text contains a placeholder such as "%1", which the plugin fills in with another
/// value of the statement.
bool hasPlaceholder(const QString &text);

/// True when the text contains a character above U+FFFF, such as an emoji: with the client library
/// of Qt's driver on Debian a connection uses three-byte UTF-8.
bool hasWideCharacter(const QString &text);

/// True when a statement with this text fails or changes its meaning: the text contains an
/// apostrophe, a backslash, a placeholder or a wide character.
bool breaksStatement(const QString &text);

} // namespace SqlHazards
