// The four routines: there, allowed, and doing what the plugin takes for granted.

#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"

#include <QDate>
#include <QSqlError>
#include <QStringList>

namespace {

constexpr char kSelectRoutines[] =
    "SELECT ROUTINE_NAME FROM information_schema.ROUTINES WHERE ROUTINE_SCHEMA = DATABASE()";

/// Compares a function with what it must give, both by the server, for the moments given as a list
/// of SELECTs. "<=>" also tells NULL from a number.
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
/// A person who cannot be.
constexpr char kSelectGidOfNobody[] =
    "SELECT getCurrentGid(0, 202401, 7), getCurrentGid(0, 202401, NULL)";

/// With a person who cannot be, on a connection that may not write: a procedure that begins to
/// write is stopped there, which is all that is to be found out.
constexpr char kCallProcedure[] = "CALL updateTermsSync(0, 2)";

/// A day of the year 9999, of which no server knows the month.
constexpr char kMonthOfUnknownDay[] = "SELECT monthFromTimestamp(253402210800)";

const QString kNoSuchFunction = QStringLiteral("1305");
const QString kWrongArguments = QStringLiteral("1318");
const QString kDenied = QStringLiteral("1370");
/// How a write is stopped: by our session, and by a server that takes none.
const QStringList kStoppedWrite{QStringLiteral("1792"), QStringLiteral("1290")};

const QString kAdvice = QStringLiteral("Compare it with reference-db/routines.sql.");

/// What is wrong with a routine that cannot be called.
void tellFailure(DbAssessment &check, const QString &name, const QSqlError &error)
{
    const QString code = error.nativeErrorCode();
    if (code == kNoSuchFunction || code == kDenied) {
        check.breach(
            "routine-missing",
            QStringLiteral("There is no routine %1, or the account may not call it").arg(name),
            QStringLiteral("See reference-db/routines.sql and reference-db/grants.sql."), name);
    } else if (code == kWrongArguments) {
        check.breach("routine-arguments",
                     QStringLiteral("The routine %1 takes another number of arguments than the "
                                    "plugin gives it")
                         .arg(name),
                     kAdvice, name);
    } else {
        check.breach("routine-fails",
                     QStringLiteral("The routine %1 fails: %2").arg(name, error.databaseText()),
                     kAdvice, name);
    }
}

void tellWrong(DbAssessment &check, const QString &name, const QString &call,
               const QVariant &result, const QVariant &expected)
{
    const auto shown = [](const QVariant &value) {
        return value.isNull() ? QStringLiteral("NULL") : value.toString();
    };
    check.breach("routine-wrong",
                 QStringLiteral("The function %1 does not do what the plugin relies on: %2 gives "
                                "%3, not %4")
                     .arg(name, call, shown(result), shown(expected)),
                 kAdvice, name);
}

/// Moments of this year by the server's clock: around the beginning of each month, and every third
/// hour of the last Sunday of each month, since on some of them the clocks change.
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

/// False when there is something to tell.
bool checkTimeFunction(DbAssessment &check, const char *name, const char *expected)
{
    const QString function = QString::fromLatin1(name);
    const QString sql =
        QString::fromLatin1(kSelectWrong).arg(function).arg(QLatin1String(expected)).arg(moments());
    const QSqlError error = check.attempt(sql);
    if (error.isValid()) {
        tellFailure(check, function, error);
        return false;
    }
    const QVariantList wrong = check.row(sql);
    if (wrong.isEmpty())
        return true;
    tellWrong(check, function, QStringLiteral("%1(%2)").arg(function, wrong.at(0).toString()),
              wrong.at(1), wrong.at(2));
    return false;
}

void checkMonthFunction(DbAssessment &check)
{
    const QString function = QStringLiteral("monthFromTimestamp");
    if (!checkTimeFunction(check, "monthFromTimestamp", kMonth))
        return;
    const QSqlError error = check.attempt(QLatin1String(kMonthOfUnknownDay));
    if (!error.isValid())
        return;
    check.tell(Severity::Warning, "routine-late-days",
               QStringLiteral("The function %1 fails for days that the server does not know (%2). "
                              "One such day of attendance, such as one with a mistyped year, keeps "
                              "all months of that person from being filled")
                   .arg(function, error.databaseText()),
               QStringLiteral("Make the function in an SQL mode that is not strict, as "
                              "reference-db/routines.sql does, and grant the right to call it "
                              "again."),
               function);
}

void checkGroupFunction(DbAssessment &check)
{
    const QString function = QStringLiteral("getCurrentGid");
    const QSqlError error = check.attempt(QLatin1String(kSelectGidOfNobody));
    if (error.isValid()) {
        tellFailure(check, function, error);
        return;
    }
    const QVariantList nobody = check.row(QLatin1String(kSelectGidOfNobody));
    const QVariantList wrong = check.row(QLatin1String(kSelectWrongGid));
    if (nobody.value(0) != 7) {
        tellWrong(check, function, QStringLiteral("%1(0, 202401, 7)").arg(function),
                  nobody.value(0), 7);
    } else if (!nobody.value(1).isNull()) {
        tellWrong(check, function, QStringLiteral("%1(0, 202401, NULL)").arg(function),
                  nobody.value(1), QVariant());
    } else if (!wrong.isEmpty()) {
        tellWrong(check, function,
                  QStringLiteral("%1(%2, %3, 7)")
                      .arg(function, wrong.at(0).toString(), wrong.at(1).toString()),
                  wrong.at(2), wrong.at(3));
    }
}

void callProcedure(DbAssessment &check)
{
    const QSqlError error = check.attempt(QLatin1String(kCallProcedure));
    if (error.isValid() && !kStoppedWrite.contains(error.nativeErrorCode()))
        tellFailure(check, QStringLiteral("updateTermsSync"), error);
}

/// For an account that may not call what writes.
void lookForProcedure(DbAssessment &check)
{
    const QString name = QStringLiteral("updateTermsSync");
    const QVector<QVariantList> routines = check.rows(QLatin1String(kSelectRoutines));
    if (!routines.contains({name})) {
        check.tell(Severity::Note, "routine-unseen",
                   QStringLiteral("This account does not see the routine %1").arg(name),
                   QStringLiteral("Check with the plugin's account, too."), name);
    }
}

} // namespace

void DbRules::checkRoutines(DbAssessment &check, Account account)
{
    check.begin("routines", "Routines");
    checkTimeFunction(check, "midnightFromTs", kMidnight);
    checkMonthFunction(check);
    checkGroupFunction(check);
    if (account == Account::OfThePlugin)
        callProcedure(check);
    else
        lookForProcedure(check);
    check.end(QStringLiteral("The routines do what the plugin relies on."));
}
