#include "mirovahrctl/report/wording.h"

#include <algorithm>

namespace Wording {

namespace {

constexpr int kLongest = 60;

struct Unit {
    qint64 seconds;
    const char *one;
    const char *many;
};

constexpr Unit kUnits[] = {
    {86400, "day", "days"}, {3600, "hour", "hours"}, {60, "minute", "minutes"}};

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
    const bool cut = text.size() > kLongest;
    return QStringLiteral("\"%1\"%2")
        .arg(visible(text.left(kLongest)), cut ? QStringLiteral("…") : QString());
}

QString plain(const QVariant &value)
{
    if (value.type() == QVariant::Bool)
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    return value.toString();
}

QString sentence(const QString &text)
{
    return text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.');
}

QString counted(qint64 count, const QString &one, const QString &many)
{
    return QStringLiteral("%1 %2").arg(QString::number(count), count == 1 ? one : many);
}

QString span(qint64 seconds)
{
    for (const Unit &unit : kUnits) {
        if (seconds >= 2 * unit.seconds) {
            return counted(seconds / unit.seconds, QString::fromLatin1(unit.one),
                           QString::fromLatin1(unit.many));
        }
    }
    return counted(seconds, QStringLiteral("second"), QStringLiteral("seconds"));
}

} // namespace Wording
