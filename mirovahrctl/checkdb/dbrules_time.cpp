// Time: the plugin and the server's functions must mean the same by a midnight.

#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/site/midnights.h"

#include <QDateTime>
#include <QTimeZone>

namespace {

constexpr char kSelectZone[] = "SELECT @@SESSION.time_zone, @@system_time_zone, UNIX_TIMESTAMP()";

/// Seconds. A person's attendance counts as being calculated for 900 seconds, by the plugin's
/// clock.
constexpr qint64 kClockTolerance = 60;

/// Invalid when there is none.
QDate dayThatDiffers(DbAssessment &check)
{
    const QVector<QDate> days = Midnights::daysToCompare(QDate::currentDate());
    return Midnights::differing(days, check.row(Midnights::query(days)));
}

void checkMidnights(DbAssessment &check, const QString &serverZone, const QString &ownZone)
{
    const QDate day = dayThatDiffers(check);
    if (!day.isValid())
        return;
    check.breach("time-zone",
                 QStringLiteral("The server (time zone %1) and this program (%2) disagree about "
                                "when days begin, such as %3. Days of attendance and of vacation "
                                "would be missed, or be there twice")
                     .arg(serverZone, ownZone, day.toString(Qt::ISODate)),
                 QStringLiteral("Run this check with the TZ of the attendance server. When it "
                                "still complains, give both the same zone, by name: an offset "
                                "such as +01:00 knows no daylight saving."));
}

void checkClock(DbAssessment &check, qint64 serverNow)
{
    const qint64 ahead = serverNow - QDateTime::currentSecsSinceEpoch();
    if (qAbs(ahead) <= kClockTolerance)
        return;
    check.tell(
        Severity::Warning, "clock",
        QStringLiteral("The server's clock is %1 %2 this machine's")
            .arg(Wording::counted(qAbs(ahead), QStringLiteral("second"), QStringLiteral("seconds")),
                 ahead > 0 ? QStringLiteral("ahead of") : QStringLiteral("behind")),
        QStringLiteral("Let both follow the same time server: the plugin compares times of "
                       "the one with times of the other."));
}

} // namespace

void DbRules::checkTime(DbAssessment &check)
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
