#pragma once

#include <QString>

/// What a text does to the plugin's SQL statements, which take texts as they are.
namespace SqlHazards {

/// True when the text has a mark such as "%1": the plugin takes it for a place of its statement
/// that is still to be filled in.
bool hasPlaceholder(const QString &text);

/// True when the text has a character above U+FFFF, such as an emoji: with the client library that
/// Qt's driver has on Debian a connection speaks UTF-8 of three bytes only.
bool hasWideCharacter(const QString &text);

/// True when a statement with this text fails or says something else: the text has an apostrophe, a
/// backslash, a placeholder or a wide character.
bool breaksStatement(const QString &text);

} // namespace SqlHazards
