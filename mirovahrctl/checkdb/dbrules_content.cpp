// The data in the tables, as far as the plugin depends on it.

#include "cli/text.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/payrollexports.h"

#include <QStringList>

namespace {

constexpr char kSelectVacationFunds[] = "SELECT fid FROM funds WHERE iid = 3 AND unit = 2"
                                        " ORDER BY fid";
constexpr char kSelectDuplicateNumbers[] = "SELECT number FROM branches WHERE number IS NOT NULL"
                                           " GROUP BY number HAVING COUNT(*) > 1 ORDER BY number";
constexpr char kSelectLargeBranches[] = "SELECT bid FROM branches WHERE number IS NOT NULL"
                                        " AND bid > 65535 ORDER BY bid";
constexpr char kSelectLargeAdministrators[] =
    "SELECT aid FROM admins WHERE aid > 65535 ORDER BY aid";
constexpr char kSelectDuplicateCalendars[] =
    "SELECT calendarID, parent FROM `groups`"
    " WHERE parent IS NOT NULL GROUP BY parent, calendarID HAVING COUNT(*) > 1"
    " ORDER BY parent, calendarID";
constexpr char kSelectDuplicateSupervisors[] =
    "SELECT personalNumber FROM admins WHERE personalNumber > 0"
    " GROUP BY personalNumber HAVING COUNT(*) > 1 ORDER BY personalNumber";
/// The plugin looks an active person up by pamId, and writes by pid.
constexpr char kSelectDisagreeingPayrollIds[] =
    "SELECT CONCAT(pid, ' (', pamId, ')') FROM people WHERE status"
    " AND pid <> CASE WHEN INSTR(pamId, '.') > 0 THEN CONCAT(SUBSTRING_INDEX(pamId, '.', 1) + 0,"
    " SUBSTRING_INDEX(SUBSTRING_INDEX(pamId, '.', 2), '.', -1) + 0) ELSE CONCAT(pamId + 0, '0') END"
    " ORDER BY pid";
constexpr char kSelectSelectionLength[] =
    "SELECT COALESCE(SUM(CHAR_LENGTH(pid) + 1), 0) FROM people WHERE status";
constexpr char kSelectValueLength[] =
    "SELECT CHARACTER_MAXIMUM_LENGTH FROM information_schema.COLUMNS WHERE TABLE_SCHEMA ="
    " DATABASE() AND TABLE_NAME = 'vars' AND COLUMN_NAME = 'value'";

constexpr int kMostShown = 10;
constexpr uint kLargestFund = 65535;

QString shown(const QStringList &values)
{
    const QString text = QStringList(values.mid(0, kMostShown)).join(QStringLiteral(", "));
    if (values.size() > kMostShown)
        return Text::tr("%1 and %Ln more", nullptr, values.size() - kMostShown).arg(text);
    return text;
}

void checkVacationFund(DbAssessment &check)
{
    const QStringList funds = check.sql().column(QLatin1String(kSelectVacationFunds));
    if (funds.isEmpty()) {
        check.report(CheckDbRules::kVacationFundNone, QStringLiteral("funds"),
                     Text::tr("There is no vacation fund (a row of funds with iid 3 and unit "
                              "2): vacation balances are not synchronised"));
    } else if (funds.size() > 1) {
        check.report(CheckDbRules::kVacationFundSeveral, QStringLiteral("funds"),
                     Text::tr("There are several vacation funds (iid 3, unit 2): %1. The "
                              "plugin uses the first that the server happens to return")
                         .arg(shown(funds)));
    } else if (funds.constFirst().toUInt() > kLargestFund) {
        check.report(CheckDbRules::kVacationFundNumber, QStringLiteral("funds"),
                     Text::tr("The vacation fund has the number %1; the plugin keeps 16 bits "
                              "of it and would write to another fund")
                         .arg(funds.constFirst()));
    }
}

void checkPayrollExport(DbAssessment &check)
{
    const QStringList exports = payrollExports(check.sql());
    if (exports.size() == 1)
        return;
    const QString field = QStringLiteral("vars");
    if (exports.isEmpty()) {
        check.report(CheckDbRules::kPayrollExportNone, field,
                     Text::tr("There is no payroll export. The plugin adds new people to one only "
                              "when there is exactly one key exportPam.N.active in vars, whatever "
                              "its value"));
    } else {
        check.report(
            CheckDbRules::kPayrollExportSeveral, field,
            Text::tr("There are several payroll exports: %1. The plugin adds new people to "
                     "one only when there is exactly one key exportPam.N.active in vars, "
                     "whatever its value")
                .arg(shown(exports)));
    }
}

/// A rule about rows that must not exist. \a message has one placeholder for them.
void checkNone(DbAssessment &check, const char *sql, const Rule &rule, const char *field,
               const QString &message)
{
    const QStringList rows = check.sql().column(QLatin1String(sql));
    if (!rows.isEmpty())
        check.report(rule, QString::fromLatin1(field), message.arg(shown(rows)));
}

void checkCalendars(DbAssessment &check)
{
    QStringList calendars;
    const QVector<QStringList> rows = check.sql().rows(QLatin1String(kSelectDuplicateCalendars));
    for (const QStringList &row : rows)
        calendars += Text::tr("%1 of master group %2").arg(row.at(0), row.at(1));
    if (calendars.isEmpty())
        return;
    check.report(
        CheckDbRules::kCalendarTwice, QStringLiteral("groups.calendarID"),
        Text::tr("Several calendar groups have the same calendar: %1. People are placed in "
                 "any of them")
            .arg(shown(calendars)));
}

void checkBranches(DbAssessment &check)
{
    checkNone(
        check, kSelectDuplicateNumbers, CheckDbRules::kBranchNumberTwice, "branches.number",
        Text::tr(
            "Several branches have the same number: %1. People of that cost centre are placed in "
            "any of them"));
    checkNone(
        check, kSelectLargeBranches, CheckDbRules::kBranchIdLarge, "branches.bid",
        Text::tr(
            "The ids of these branches exceed 16 bits: %1. Members are added to another branch, "
            "or to none"));
}

void checkAdministrators(DbAssessment &check)
{
    checkNone(
        check, kSelectLargeAdministrators, CheckDbRules::kAdminIdLarge, "admins.aid",
        Text::tr(
            "The ids of these administrators exceed 16 bits: %1. The plugin writes them "
            "correctly, but other components of the attendance server that use its repository "
            "classes keep only 16 bits: people are assigned to another administrator, or to none"));
    checkNone(
        check, kSelectDuplicateSupervisors, CheckDbRules::kSupervisorTwice, "admins.personalNumber",
        Text::tr("Several administrators have the same personal number: %1. Any of them gets the "
                 "requests"));
}

void checkPeople(DbAssessment &check)
{
    checkNone(
        check, kSelectDisagreeingPayrollIds, CheckDbRules::kPayrollIdStrange, "people.pamId",
        Text::tr(
            "The pid and pamId of these active people disagree: %1. The plugin looks a person up "
            "by pamId and writes by pid: it changes nobody, or treats the person as new"));
}

void checkSelectionWidth(DbAssessment &check)
{
    const qint64 needed = check.sql().value(QLatin1String(kSelectSelectionLength)).toLongLong();
    const qint64 width = check.sql().value(QLatin1String(kSelectValueLength)).toLongLong();
    if (needed <= width)
        return;
    check.report(
        CheckDbRules::kSelectionWidth, QStringLiteral("vars.value"),
        Text::tr(
            "The column vars.value holds %Ln character(s); the selection of the payroll export "
            "would need %1 to name every active person",
            nullptr, Language::count(width))
            .arg(Language::number(needed)));
}

} // namespace

void DbRules::checkContent(DbAssessment &check)
{
    check.begin("content", Text::tr("Content"));
    checkVacationFund(check);
    checkPayrollExport(check);
    checkSelectionWidth(check);
    checkBranches(check);
    checkCalendars(check);
    checkAdministrators(check);
    checkPeople(check);
    check.end(Text::tr("The data meets the plugin's requirements."));
}
