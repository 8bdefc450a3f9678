#include "mirovahrctl/log/linetime.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>

namespace {

constexpr char kMonths[] = "JanFebMarAprMayJunJulAugSepOctNovDec";

const QString kClock = QStringLiteral("(?<hour>\\d\\d?):(?<minute>\\d\\d):(?<second>\\d\\d)");

int number(const QRegularExpressionMatch &match, const char *name)
{
    return match.captured(QLatin1String(name)).toInt();
}

QTime clock(const QRegularExpressionMatch &match)
{
    return {number(match, "hour"), number(match, "minute"), number(match, "second")};
}

/// "+0100", "-05:30" or "Z" in seconds.
int offset(QString text)
{
    text.remove(QLatin1Char(':'));
    const int hours = text.midRef(1, 2).toInt();
    const int minutes = text.midRef(3, 2).toInt();
    const int seconds = (hours * 60 + minutes) * 60;
    return text.startsWith(QLatin1Char('-')) ? -seconds : seconds;
}

QDateTime withYear(const QRegularExpressionMatch &match)
{
    const QDate day(number(match, "year"), number(match, "month"), number(match, "day"));
    const QString zone = match.captured(QStringLiteral("zone"));
    if (zone.isEmpty())
        return {day, clock(match)};
    return {day, clock(match), Qt::OffsetFromUTC, offset(zone)};
}

/// What stands behind a second and its fraction, as far as it may be an offset.
std::string_view placeOfOffset(std::string_view rest)
{
    constexpr size_t kLongest = sizeof " +01:00" - 1;
    const size_t end = std::min(rest.find_first_not_of("0123456789", 1), rest.size());
    const bool isFraction = end > 1 && (rest.front() == '.' || rest.front() == ',');
    return rest.substr(isFraction ? end : 0, kLongest);
}

/// The last such day and time that is not more than a day after \a now.
QDateTime withoutYear(const QRegularExpressionMatch &match, const QDateTime &now)
{
    const int place =
        QByteArray(kMonths).indexOf(match.captured(QStringLiteral("name")).toLatin1());
    const QDateTime latest = now.addDays(1);
    int year = latest.date().year();
    // A 29 February may be years ago.
    for (int tries = 0; tries < 8; ++tries, --year) {
        const QDateTime time(QDate(year, place / 3 + 1, number(match, "day")), clock(match));
        if (time.isValid() && time <= latest)
            return time;
    }
    return {};
}

} // namespace

LineTime::LineTime(const QDateTime &now)
    : m_now(now)
{
}

std::optional<QDateTime> LineTime::of(std::string_view prefix)
{
    prefix = prefix.substr(0, kLongestPrefix);
    return isAsLast(prefix) ? m_lastTime : parsed(prefix);
}

bool LineTime::isAsLast(std::string_view prefix) const
{
    return !m_lastText.empty() && prefix.substr(0, m_lastText.size()) == m_lastText
        && placeOfOffset(prefix.substr(m_lastText.size())) == m_lastOffset;
}

std::optional<QDateTime> LineTime::parsed(std::string_view bytes)
{
    static const QRegularExpression iso(
        QStringLiteral("(?<!\\d)(?<year>\\d{4})[-/](?<month>\\d\\d)[-/](?<day>\\d\\d)[T ]") + kClock
        + QStringLiteral("(?:[.,]\\d+)? ?(?<zone>Z|UTC|[+-]\\d\\d:?\\d\\d)?"));
    static const QRegularExpression dotted(
        QStringLiteral(
            "(?<!\\d)(?<day>\\d\\d?)\\. ?(?<month>\\d\\d?)\\. ?(?<year>\\d{4}),? (?<zone>)")
        + kClock);
    static const QRegularExpression syslog(
        QStringLiteral(
            "\\b(?<name>Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) +(?<day>\\d\\d?) ")
        + kClock);
    static const QRegularExpression seconds(
        QStringLiteral("(?<![\\d.])(?<unix>\\d{9,10})\\.\\d{3,}(?!\\d)"));

    const QString prefix = QString::fromUtf8(bytes.data(), int(bytes.size()));
    QDateTime time;
    QRegularExpressionMatch match;
    if ((match = iso.match(prefix)).hasMatch() || (match = dotted.match(prefix)).hasMatch())
        time = withYear(match);
    else if ((match = syslog.match(prefix)).hasMatch())
        time = withoutYear(match, m_now);
    else if ((match = seconds.match(prefix)).hasMatch())
        time = QDateTime::fromSecsSinceEpoch(match.captured(QStringLiteral("unix")).toLongLong());
    m_lastText.clear();
    if (!time.isValid())
        return std::nullopt;
    const int second = match.capturedEnd(QStringLiteral("second"));
    m_lastText =
        prefix.left(second > 0 ? second : match.capturedEnd(QStringLiteral("unix"))).toStdString();
    m_lastOffset = placeOfOffset(bytes.substr(std::min(bytes.size(), m_lastText.size())));
    m_lastTime = time;
    return time;
}
