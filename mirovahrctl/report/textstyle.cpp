#include "mirovahrctl/report/textstyle.h"

#include <QtGlobal>

namespace TextStyle {

namespace {

const QLatin1Char kEscape('\x1b');
const QLatin1Char kEnd('m'); // of an escape sequence

/// The parameters of ECMA-48's "select graphic rendition". None sets a background, so that the text
/// can be read on dark and light ones.
QString parameters(Style style)
{
    switch (style) {
    case Style::Heading:
        return QStringLiteral("1"); // bold
    case Style::Good:
        return QStringLiteral("32"); // green
    case Style::Warning:
        return QStringLiteral("33"); // yellow
    case Style::Bad:
        return QStringLiteral("31"); // red
    }
    Q_UNREACHABLE();
}

} // namespace

QString styled(const QString &text, Style style)
{
    return QStringLiteral("\x1b[%1m%2\x1b[0m").arg(parameters(style), text);
}

int widthOf(const QString &text)
{
    int width = text.size();
    for (int begin = text.indexOf(kEscape); begin >= 0;) {
        const int end = text.indexOf(kEnd, begin);
        width -= end + 1 - begin;
        begin = text.indexOf(kEscape, end);
    }
    return width;
}

} // namespace TextStyle
