#pragma once

#include <QString>

/// How texts stand out on a terminal.
namespace TextStyle {

enum class Style { Heading, Good, Warning, Bad };

/// The text with the escape sequences of its style around it.
QString styled(const QString &text, Style style);

/// How wide the text is, in characters: its styles take no room.
int widthOf(const QString &text);

} // namespace TextStyle
