#pragma once

#include <QString>

/// What a text does to the plugin's SQL statements, which take texts as they are.
namespace SqlText {

/// True when the text has a mark such as "%1": the plugin takes it for a place of its statement
/// that is still to be filled in.
bool hasPlaceholder(const QString &text);

/// True when a statement with this text fails or says something else: the text has an apostrophe, a
/// backslash or a placeholder.
bool breaksStatement(const QString &text);

} // namespace SqlText
