// Time: the plugin and the server's functions must mean the same by a midnight.

#include "tools/dbcheck.h"
#include "tools/dbrules.h"
#include "tools/plaintext.h"
#include "tools/reportwriter.h"
#include "worker/recordcodes.h"

#include <QDateTime>
#include <QSet>
#include <QStringList>
#include <QTimeZone>

#include <algorithm>

namespace {

constexpr char kSelectZone[] = "SELECT @@SESSION.time_zone, @@system_time_zone, UNIX_TIMESTAMP()";

/// In both directions from today: a whole year of daylight saving.
constexpr int kDaysAround = 366;
/// The server's zone may change its clocks on other days than ours; not for less than a week.
constexpr int kDaysApart = 7;

/// Seconds. A person's attendance counts as being calculated for 900 seconds, by the plugin's
/// clock.
constexpr qint64 kClockTolerance = 60;

/// Days on which the two could differ, in order.
QVector<QDate> daysToCompare(const QDate &today)
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

QString midnightsQuery(const QVector<QDate> &days)
{
    QStringList columns;
    for (const QDate &day : days)
        columns += QStringLiteral("UNIX_TIMESTAMP('%1')").arg(day.toString(Qt::ISODate));
    return QStringLiteral("SELECT ") + columns.join(QLatin1Char(','));
}

/// Invalid when there is none.
QDate dayThatDiffers(DbCheck &check)
{
    const QVector<QDate> days = daysToCompare(QDate::currentDate());
    const QVariantList midnights = check.row(midnightsQuery(days));
    for (int i = 0; i < midnights.size(); ++i) {
        if (midnights.at(i).toLongLong() != RecordCodes::midnight(days.at(i)))
            return days.at(i);
    }
    return QDate();
}

void checkMidnights(DbCheck &check, const QString &serverZone, const QString &ownZone)
{
    const QDate day = dayThatDiffers(check);
    if (!day.isValid())
        return;
    check.tell(Severity::Error, "time-zone",
               QStringLiteral("The server (time zone %1) and this program (%2) disagree about when "
                              "days begin, such as %3. Days of attendance and of vacation would be "
                              "missed, or be there twice")
                   .arg(serverZone, ownZone, day.toString(Qt::ISODate)),
               QStringLiteral("Run this check with the TZ of the attendance server. When it still "
                              "complains, give both the same zone, by name: an offset such as "
                              "+01:00 knows no daylight saving."));
}

void checkClock(DbCheck &check, qint64 serverNow)
{
    const qint64 ahead = serverNow - QDateTime::currentSecsSinceEpoch();
    if (qAbs(ahead) <= kClockTolerance)
        return;
    check.tell(Severity::Warning, "clock",
               QStringLiteral("The server's clock is %1 %2 this machine's")
                   .arg(PlainText::counted(qAbs(ahead), QStringLiteral("second"),
                                           QStringLiteral("seconds")),
                        ahead > 0 ? QStringLiteral("ahead of") : QStringLiteral("behind")),
               QStringLiteral("Let both follow the same time server: the plugin compares times of "
                              "the one with times of the other."));
}

} // namespace

void DbRules::checkTime(DbCheck &check)
{
    const QVariantList row = check.row(QLatin1String(kSelectZone));
    const QString setting = row.value(0).toString();
    const QString serverZone =
        setting == QLatin1String("SYSTEM") ? row.value(1).toString() : setting;
    const QString ownZone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    check.begin("time", "Time");
    check.report().fact(QStringLiteral("serverTimeZone"), QStringLiteral("Server's time zone"),
                        serverZone);
    check.report().fact(QStringLiteral("timeZone"), QStringLiteral("Time zone of this program"),
                        ownZone);
    checkMidnights(check, serverZone, ownZone);
    checkClock(check, row.value(2).toLongLong());
    check.end(QStringLiteral("The server and this program agree about time."));
}
