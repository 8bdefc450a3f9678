#include "mirovahrctl/site/midnights.h"

#include "cli/text.h"
#include "mirovahrctl/site/sqlsession.h"
#include "worker/recorddates.h"

#include <QDateTime>
#include <QSet>
#include <QTimeZone>

#include <algorithm>

namespace {

/// In both directions from today: a whole year of daylight saving.
constexpr int kDaysAround = 366;
/// The server's zone may change its clocks on other days than ours, but then for a week or more.
constexpr int kDaysApart = 7;

} // namespace

QVector<QDate> Midnights::daysToCompare(const QDate &today)
{
    QSet<QDate> days;
    for (int offset = -kDaysAround; offset <= kDaysAround; offset += kDaysApart)
        days += today.addDays(offset);
    const QTimeZone::OffsetDataList changes = QTimeZone::systemTimeZone().transitions(
        today.addDays(-kDaysAround).startOfDay(), today.addDays(kDaysAround).startOfDay());
    for (const QTimeZone::OffsetData &change : changes) {
        const QDate day = change.atUtc.toLocalTime().date();
        days += {day.addDays(-1), day, day.addDays(1)};
    }
    QVector<QDate> sorted(days.cbegin(), days.cend());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

QString Midnights::query(const QVector<QDate> &days)
{
    QStringList columns;
    for (const QDate &day : days)
        columns += QStringLiteral("UNIX_TIMESTAMP('%1')").arg(day.toString(Qt::ISODate));
    return QStringLiteral("SELECT ") + columns.join(QLatin1Char(','));
}

QDate Midnights::differing(const QVector<QDate> &days, const QStringList &midnights)
{
    for (int i = 0; i < midnights.size(); ++i) {
        if (midnights.at(i).toLongLong() != RecordDates::midnight(days.at(i)))
            return days.at(i);
    }
    return QDate();
}

QString Midnights::disagreement(SqlSession &server)
{
    const QVector<QDate> days = daysToCompare(QDate::currentDate());
    if (!differing(days, server.row(query(days))).isValid())
        return {};
    return Text::tr("The site's server (time zone %1) and this program disagree about when "
                    "days begin. Run this program with the TZ of the attendance server")
        .arg(server.value(QStringLiteral("SELECT @@SESSION.time_zone")));
}
