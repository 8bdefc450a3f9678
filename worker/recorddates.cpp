#include "worker/recorddates.h"

#include <QDateTime>

#include <ctime>
#include <limits>

namespace RecordDates {

namespace {

const QDate kDefaultBegin(2000, 1, 1);

QDate localDate(qint64 seconds)
{
    const std::time_t time = seconds;
    std::tm parts = {};
    localtime_r(&time, &parts);
    return QDate(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday);
}

qint64 localSeconds(const QDate &date, int hour)
{
    std::tm parts = {};
    parts.tm_year = date.year() - 1900;
    parts.tm_mon = date.month() - 1;
    parts.tm_mday = date.day();
    parts.tm_hour = hour;
    parts.tm_isdst = -1;
    return std::mktime(&parts);
}

qint64 startOfDay(const QDate &date)
{
    const qint64 seconds = localSeconds(date, 0);
    // Where clocks are put forward at midnight, the day begins at one o'clock.
    return localDate(seconds) == date ? seconds : localSeconds(date, 1);
}

/// QDateTime leaves daylight saving time out before, and changes it on the days of 2037 afterwards.
bool isKnownToQt(const QDate &date)
{
    return date.year() >= 1970 && date.year() <= 2037;
}

} // namespace

QString personBeginForSql(const QDate &date)
{
    return QString::number(midnight32(date.isValid() ? date : kDefaultBegin));
}

QString personEndForSql(const QDate &date, bool endOfDay)
{
    if (!date.isValid())
        return QStringLiteral("NULL");
    return QString::number(endOfDay ? midnight(date.addDays(1)) - 1 : midnight(date));
}

QDate datNastFromTimestamp(uint timestamp)
{
    return timestamp == 0 ? kDefaultBegin : localDate(timestamp);
}

QDate datVystFromTimestamp(uint timestamp)
{
    return timestamp == 0 ? QDate() : localDate(timestamp);
}

qint64 midnight(const QDate &date)
{
    if (!date.isValid())
        return 0;
    return isKnownToQt(date) ? date.startOfDay().toSecsSinceEpoch() : startOfDay(date);
}

quint32 midnight32(const QDate &date)
{
    constexpr qint64 kMax = std::numeric_limits<quint32>::max();
    return static_cast<quint32>(qBound(qint64(0), midnight(date), kMax));
}

QDate firstDayOfPreviousMonth(const QDate &today)
{
    const QDate date = today.addMonths(-1);
    return QDate(date.year(), date.month(), 1);
}

} // namespace RecordDates
