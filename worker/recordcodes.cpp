#include "worker/recordcodes.h"

#include <QDateTime>

#include <cmath>
#include <ctime>
#include <limits>

namespace RecordCodes {

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

ushort employmentTypeFromTPP(ushort code)
{
    switch (code) {
    case 11:
    case 65:
        return 1;
    case 51:
    case 53:
    case 54:
        return 4;
    default:
        return 0;
    }
}

ushort pamSettingsIdFromTPP(ushort code)
{
    switch (code) {
    case 11:
    case 65:
        return 1;
    case 51:
    case 53:
    case 54:
        return 2;
    default:
        return 0;
    }
}

const char *builtInRsText(ushort es)
{
    switch (es) {
    case 0:
        return "aktívny právny vzťah";
    case 1:
        return "v skúšobnej dobe";
    case 2:
        return "vo výpovednej dobe";
    case 3:
        return "skončený právny vzťah";
    case 21:
        return "materská dovolenka";
    case 22:
        return "rodičovská dovolenka";
    case 24:
        return "rodičovská dovolenka (nad 3r)";
    case 53:
        return "výkon trestu";
    case 71:
        return "neplatené voľno";
    case 560:
        return "dlhodobé platené voľno";
    default:
        return nullptr;
    }
}

bool isActive(const MirovaRonRecord &record, const QDate &today)
{
    return record.stavPracovnihoPomeru < 4
        && (!record.datumVystupu.isValid() || record.datumVystupu >= today);
}

QDate firstDayOfPreviousMonth(const QDate &today)
{
    const QDate date = today.addMonths(-1);
    return QDate(date.year(), date.month(), 1);
}

void continueRs(MirovaRonRecord &record, const MirovaRonRecord &last, const QString &text,
                const QDate &today)
{
    const bool running =
        last.rsFrom.isValid() && last.rsFrom < today && (!last.rsTo.isValid() || last.rsTo > today);
    record.rsFrom = running ? last.rsFrom : today;
    record.rsTo = last.rsTo.isValid() && last.rsTo > today ? last.rsTo : QDate();
    record.rsText = text;
}

void closeRs(MirovaRonRecord &record, const MirovaRonRecord &last, const QDate &today)
{
    const bool closed = last.rsTo.isValid() && last.rsTo >= last.rsFrom;
    record.rsFrom = last.rsFrom;
    if (!last.rsFrom.isValid())
        record.rsTo = QDate();
    else
        record.rsTo = closed ? last.rsTo : today;
    record.rsText = last.rsText;
}

bool vacationMove(double days, qint64 current, qint32 &value)
{
    using Limits = std::numeric_limits<qint32>;
    // Truncated, not rounded: 1.15 days are 114 hundredths, because the product is 114.99….
    const double target = std::trunc(days * 100.0);
    if (std::isnan(target)) {
        value = 0;
        return false;
    }
    // Far beyond 32 bits, and so that the difference of any two stays within 64.
    constexpr qint64 kWide = qint64(1) << 61;
    const auto wideTarget = static_cast<qint64>(qBound(double(-kWide), target, double(kWide)));
    const qint64 move = wideTarget - qBound(-kWide, current, kWide);
    value = static_cast<qint32>(qBound(qint64(Limits::min()), move, qint64(Limits::max())));
    return target >= Limits::min() && target <= Limits::max() && value == move;
}

} // namespace RecordCodes
