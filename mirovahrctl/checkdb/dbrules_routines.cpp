// The four routines: they exist, the account may call them, and they return what the plugin
// requires.

#include "cli/text.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/rules/checkdbrules.h"

#include <QDate>
#include <QStringList>

namespace {

constexpr char kSelectRoutines[] =
    "SELECT ROUTINE_NAME FROM information_schema.ROUTINES WHERE ROUTINE_SCHEMA = DATABASE()";

/// Compares a function with the expected result, both computed by the server, for moments given as
/// a list of SELECTs. "<=>" also finds a NULL where a number is expected, or the other way round.
constexpr char kSelectWrong[] = "SELECT t, %1(t), expected FROM (SELECT t, %2 AS expected FROM (%3)"
                                " moments) all_moments WHERE NOT (%1(t) <=> expected) LIMIT 1";
constexpr char kMidnight[] = "UNIX_TIMESTAMP(DATE(FROM_UNIXTIME(t)))";
constexpr char kMonth[] = "EXTRACT(YEAR_MONTH FROM FROM_UNIXTIME(t))";

/// People with a plan, each at the beginning of an entry and before it.
constexpr char kSelectWrongGid[] =
    "SELECT uid, month, getCurrentGid(uid, month, 7), expected FROM (SELECT uid, month,"
    " COALESCE((SELECT gid FROM groups_plan p WHERE p.uid = some.uid AND p.since <= some.month"
    " ORDER BY since DESC LIMIT 1), 7) AS expected FROM (SELECT uid, since AS month FROM"
    " (SELECT uid, since FROM groups_plan ORDER BY uid DESC, since LIMIT 50) begun UNION SELECT"
    " uid, since - 1 FROM (SELECT uid, since FROM groups_plan WHERE since > 0"
    " ORDER BY uid DESC, since LIMIT 50) before_it) some) all_people"
    " WHERE NOT (getCurrentGid(uid, month, 7) <=> expected) LIMIT 1";
/// For a uid that nobody has.
constexpr char kSelectGidOfNobody[] =
    "SELECT getCurrentGid(0, 202401, 7), getCurrentGid(0, 202401, NULL)";

/// For a uid that nobody has, on a read-only connection: a procedure that works is stopped at its
/// first write.
constexpr char kCallProcedure[] = "CALL updateTermsSync(0, 2)";

/// A day of the year 9999, which is beyond the range of every supported server.
constexpr char kMonthOfUnknownDay[] = "SELECT monthFromTimestamp(253402210800)";

constexpr int kNoSuchFunction = 1305;
constexpr int kWrongArguments = 1318;
constexpr int kDenied = 1370;
constexpr int kWriteInReadOnlySession = 1792;
constexpr int kWriteOnReadOnlyServer = 1290;

/// Reports why a routine cannot be called.
void reportFailure(DbAssessment &check, const QString &name, const SqlSession &call)
{
    const int code = call.errorNumber();
    if (code == kNoSuchFunction || code == kDenied) {
        check.reportViolation(
            CheckDbRules::kRoutineMissing, name,
            Text::tr("The routine %1 does not exist, or the account may not call it").arg(name));
    } else if (code == kWrongArguments) {
        check.reportViolation(
            CheckDbRules::kRoutineArguments, name,
            Text::tr(
                "The routine %1 takes a different number of arguments from what the plugin passes")
                .arg(name));
    } else {
        check.reportViolation(CheckDbRules::kRoutineFails, name,
                              Text::tr("The routine %1 fails: %2").arg(name, call.errorString()));
    }
}

void reportWrongResult(DbAssessment &check, const QString &name, const QString &call,
                       const QString &result, const QString &expected)
{
    const auto shown = [](const QString &value) {
        return value.isNull() ? QStringLiteral("NULL") : value;
    };
    check.reportViolation(CheckDbRules::kRoutineWrong, name,
                          Text::tr("The function %1 returns a wrong result: %2 gives %3, not %4")
                              .arg(name, call, shown(result), shown(expected)));
}

/// Moments of this year by the server's clock: around the beginning of each month, and every third
/// hour of the last Sunday of each month, because clocks change on some of these.
QString moments()
{
    QStringList selects{QStringLiteral("SELECT UNIX_TIMESTAMP() AS t")};
    const auto add = [&selects](const QDate &day, int seconds) {
        selects += QStringLiteral("SELECT UNIX_TIMESTAMP('%1') + %2")
                       .arg(day.toString(Qt::ISODate))
                       .arg(seconds);
    };
    const QDate today = QDate::currentDate();
    for (int month = 1; month <= 12; ++month) {
        const QDate first(today.year(), month, 1);
        add(first, -1);
        add(first, 0);
        const QDate last = first.addMonths(1).addDays(-1);
        const QDate sunday = last.addDays(-(last.dayOfWeek() % 7));
        for (int hour = 0; hour < 24; hour += 3)
            add(sunday, hour * 3600);
    }
    return selects.join(QStringLiteral(" UNION ALL "));
}

/// False when it has reported a finding.
bool checkTimeFunction(DbAssessment &check, const char *name, const char *expected)
{
    const QString function = QString::fromLatin1(name);
    const QString sql =
        QString::fromLatin1(kSelectWrong).arg(function).arg(QLatin1String(expected)).arg(moments());
    const SqlSession call = check.attempt(sql);
    if (call.failed()) {
        reportFailure(check, function, call);
        return false;
    }
    const QStringList wrong = check.sql().row(sql);
    if (wrong.isEmpty())
        return true;
    reportWrongResult(check, function, QStringLiteral("%1(%2)").arg(function, wrong.at(0)),
                      wrong.at(1), wrong.at(2));
    return false;
}

void checkMonthFunction(DbAssessment &check)
{
    const QString function = QStringLiteral("monthFromTimestamp");
    if (!checkTimeFunction(check, "monthFromTimestamp", kMonth))
        return;
    const SqlSession call = check.attempt(QLatin1String(kMonthOfUnknownDay));
    if (!call.failed())
        return;
    check.report(CheckDbRules::kRoutineLateDays, function,
                 Text::tr("The function %1 fails for days beyond the server's range (%2). A "
                          "single such day of attendance, for example with a mistyped year, "
                          "keeps every month of that person from being filled")
                     .arg(function, call.errorString()));
}

void checkGroupFunction(DbAssessment &check)
{
    const QString function = QStringLiteral("getCurrentGid");
    const SqlSession call = check.attempt(QLatin1String(kSelectGidOfNobody));
    if (call.failed()) {
        reportFailure(check, function, call);
        return;
    }
    const QString fallback = QStringLiteral("7");
    const QStringList nobody = check.sql().row(QLatin1String(kSelectGidOfNobody));
    const QStringList wrong = check.sql().row(QLatin1String(kSelectWrongGid));
    if (nobody.value(0) != fallback) {
        reportWrongResult(check, function, QStringLiteral("%1(0, 202401, 7)").arg(function),
                          nobody.value(0), fallback);
    } else if (!nobody.value(1).isNull()) {
        reportWrongResult(check, function, QStringLiteral("%1(0, 202401, NULL)").arg(function),
                          nobody.value(1), QString());
    } else if (!wrong.isEmpty()) {
        reportWrongResult(check, function,
                          QStringLiteral("%1(%2, %3, 7)").arg(function, wrong.at(0), wrong.at(1)),
                          wrong.at(2), wrong.at(3));
    }
}

void callProcedure(DbAssessment &check)
{
    const SqlSession call = check.attempt(QLatin1String(kCallProcedure));
    const bool isRefused = call.errorNumber() == kWriteInReadOnlySession
        || call.errorNumber() == kWriteOnReadOnlyServer;
    if (call.failed() && !isRefused)
        reportFailure(check, QStringLiteral("updateTermsSync"), call);
}

/// For an account that may not call procedures that write.
void lookForProcedure(DbAssessment &check)
{
    const QString name = QStringLiteral("updateTermsSync");
    if (!check.sql().column(QLatin1String(kSelectRoutines)).contains(name)) {
        check.report(CheckDbRules::kRoutineUnseen, name,
                     Text::tr("This account cannot see the routine %1").arg(name));
    }
}

} // namespace

void DbRules::checkRoutines(DbAssessment &check, Account account)
{
    check.begin("routines", Text::tr("Routines"));
    checkTimeFunction(check, "midnightFromTs", kMidnight);
    checkMonthFunction(check);
    checkGroupFunction(check);
    if (account == Account::OfThePlugin)
        callProcedure(check);
    else
        lookForProcedure(check);
    check.end(Text::tr("The routines work as the plugin requires."));
}
