// Time: the plugin and the server must agree on when a day begins.

#include "cli/text.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/midnights.h"

#include <QDateTime>
#include <QTimeZone>

namespace {

// MariaDB up to 11.4 counts time in 31 bits, later versions until 2106, and MySQL 8 for longer.
constexpr char kSelectTime[] = "SELECT @@SESSION.time_zone, @@system_time_zone, UNIX_TIMESTAMP(), "
                               "FROM_UNIXTIME(2147483648) IS NOT NULL";

/// Seconds. A person's attendance counts as being calculated for 900 seconds, by the plugin's
/// clock.
constexpr qint64 kClockTolerance = 60;

/// The first day that begins at different moments; invalid when there is none.
QDate dayThatDiffers(DbAssessment &check)
{
    const QVector<QDate> days = Midnights::daysToCompare(QDate::currentDate());
    return Midnights::differing(days, check.sql().row(Midnights::query(days)));
}

void checkMidnights(DbAssessment &check, const QString &serverZone, const QString &ownZone)
{
    const QDate day = dayThatDiffers(check);
    if (!day.isValid())
        return;
    check.reportViolation(
        CheckDbRules::kTimeZone, {},
        Text::tr(
            "The server (time zone %1) and this program (%2) disagree about when days begin, such "
            "as %3. Days of attendance and vacation would be missed or duplicated")
            .arg(serverZone, ownZone, Moment::text(day)));
}

void checkClock(DbAssessment &check, qint64 serverNow)
{
    const qint64 ahead = serverNow - QDateTime::currentSecsSinceEpoch();
    if (qAbs(ahead) <= kClockTolerance)
        return;
    const int seconds = Language::count(qAbs(ahead));
    check.report(CheckDbRules::kClock, {},
                 ahead > 0 ? Text::tr("The server's clock is %Ln second(s) ahead of this machine's",
                                      nullptr, seconds)
                           : Text::tr("The server's clock is %Ln second(s) behind this machine's",
                                      nullptr, seconds));
}

} // namespace

void DbRules::checkTime(DbAssessment &check)
{
    const QStringList row = check.sql().row(QLatin1String(kSelectTime));
    const QString setting = row.value(0);
    const QString serverZone = setting == QLatin1String("SYSTEM") ? row.value(1) : setting;
    const QString ownZone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    check.begin("time", Text::tr("Time"));
    check.writer().fact(QStringLiteral("serverTimeZone"), Text::tr("Server's time zone"),
                        serverZone);
    check.writer().fact(QStringLiteral("timeZone"), Text::tr("Time zone of this program"), ownZone);
    check.writer().fact(QStringLiteral("timeAfter2038"),
                        Text::tr("Server knows the time after 19 January 2038"),
                        row.value(3) == QLatin1String("1"));
    checkMidnights(check, serverZone, ownZone);
    checkClock(check, row.value(2).toLongLong());
    check.end(Text::tr("The server and this program agree about time."));
}
