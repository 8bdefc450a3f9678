#include "mirovahrctl/report/wording.h"

#include "cli/text.h"
#include "mirovahrctl/report/language.h"

#include <QLocale>

#include <algorithm>
#include <iterator>

namespace Wording {

namespace {

constexpr int kLongest = 60;

struct Unit {
    qint64 seconds;
    const char *text;
};

constexpr Unit kUnits[] = {{86400, QT_TRANSLATE_N_NOOP("Text", "%Ln day(s)")},
                           {3600, QT_TRANSLATE_N_NOOP("Text", "%Ln hour(s)")},
                           {60, QT_TRANSLATE_N_NOOP("Text", "%Ln minute(s)")},
                           {1, QT_TRANSLATE_N_NOOP("Text", "%Ln second(s)")}};

bool isInvisible(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format
        || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

QString escaped(QChar c)
{
    if (c.unicode() < 0x100)
        return QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
    return QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
}

} // namespace

QString visible(const QString &text)
{
    // Most texts: a table of hundreds of thousands of rows must not copy them.
    if (std::none_of(text.cbegin(), text.cend(), isInvisible))
        return text;
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (isInvisible(c))
            result += escaped(c);
        else
            result += c;
    }
    return result;
}

QString quoted(const QString &text)
{
    const QString shown = QLocale().quoteString(visible(text.left(kLongest)));
    return text.size() > kLongest ? shown + QStringLiteral("…") : shown;
}

QString plain(const QVariant &value)
{
    if (value.type() == QVariant::Bool)
        return value.toBool() ? Text::tr("yes") : Text::tr("no");
    if (value.type() == QVariant::Double)
        return QLocale().toString(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return value.toString();
}

QString sentence(const QString &text)
{
    return text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.');
}

QString span(qint64 seconds)
{
    const auto *const unit =
        std::find_if(std::begin(kUnits), std::prev(std::end(kUnits)),
                     [seconds](const Unit &one) { return seconds >= 2 * one.seconds; });
    return Text::tr(unit->text, nullptr, Language::count(seconds / unit->seconds));
}

} // namespace Wording
