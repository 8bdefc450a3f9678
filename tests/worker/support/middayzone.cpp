#include "tests/worker/support/middayzone.h"

#include <QDateTime>
#include <QLocale>

#include <ctime>

namespace {

/// Hours east of Greenwich, not many more than real zones have: servers accept no others.
int middayOffset(const QDateTime &utc)
{
    const int hour = utc.time().hour();
    if (utc.date().day() != 1)
        return 12 - hour;
    // On the first of a month: late on the day before, or early on the day after.
    return hour < 12 ? -3 - hour : 25 - hour;
}

void settle(const QByteArray &zone, const QByteArray &locale)
{
    qputenv("TZ", zone);
    qputenv("LC_ALL", locale);
    tzset();
}

} // namespace

QByteArray middayZone()
{
    // The sign of `TZ` counts hours west. Daylight saving time adds an hour.
    const int west = -middayOffset(QDateTime::currentDateTimeUtc());
    return "STD" + QByteArray::number(west) + "DST,M3.5.0,M10.5.0/3";
}

void settleProgram()
{
    settle(middayZone(), "C.UTF-8");
}

void settleInSlovakia()
{
    settle("Europe/Bratislava", "sk_SK.UTF-8");
}

qint64 localMidnight(const QDate &date)
{
    return localSeconds(date, QTime(0, 0));
}

qint64 localSeconds(const QDate &date, const QTime &time)
{
    std::tm parts = {};
    parts.tm_year = date.year() - 1900;
    parts.tm_mon = date.month() - 1;
    parts.tm_mday = date.day();
    parts.tm_hour = time.hour();
    parts.tm_min = time.minute();
    parts.tm_sec = time.second();
    parts.tm_isdst = -1;
    return std::mktime(&parts);
}

QString shortDate(const QDate &date)
{
    return QLocale::c().toString(date, QStringLiteral("d MMM yyyy"));
}

QString isoDate(const QDate &date)
{
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

QString monthNumber(const QDate &date)
{
    return date.toString(QStringLiteral("yyyyMM"));
}
