// The server: its version, its SQL mode, whether it accepts writes.

#include "cli/text.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"

#include <QStringList>

namespace {

constexpr char kSelectServer[] = "SELECT VERSION(), @@SESSION.sql_mode, @@GLOBAL.read_only";

void checkVersion(DbAssessment &check, const ServerVersion &version)
{
    if (!version.reservesGroups())
        return;
    check.reportViolation(
        CheckDbRules::kGroupsReserved, {},
        Text::tr(
            "The server is %1. There \"groups\" is a reserved word, and the plugin's statement "
            "that looks up a calendar group, which does not quote it, fails for everybody")
            .arg(version.name()));
}

void checkWritable(DbAssessment &check, const QString &readOnly)
{
    if (readOnly == QLatin1String("0") || readOnly == QLatin1String("OFF"))
        return;
    check.reportViolation(CheckDbRules::kServerReadOnly, {},
                          Text::tr("The server is read-only: every write of the plugin fails"));
}

void checkFatalModes(DbAssessment &check, const QStringList &modes)
{
    if (modes.contains(QLatin1String("ONLY_FULL_GROUP_BY"))) {
        check.reportViolation(
            CheckDbRules::kSqlModeGroupBy, {},
            Text::tr("The SQL mode ONLY_FULL_GROUP_BY is on: the statements that rebuild "
                     "groups_month and queue a time zone for the terminals fail"));
    }
    if (modes.contains(QLatin1String("EMPTY_STRING_IS_NULL"))) {
        check.reportViolation(
            CheckDbRules::kSqlModeEmptyNull, {},
            Text::tr("The SQL mode EMPTY_STRING_IS_NULL is on: people without a title or "
                     "telephone cannot be written to columns that do not allow NULL"));
    }
}

void checkOtherModes(DbAssessment &check, const QStringList &modes)
{
    if (!modes.contains(QLatin1String("STRICT_TRANS_TABLES"))
        && !modes.contains(QLatin1String("STRICT_ALL_TABLES"))) {
        check.report(
            CheckDbRules::kSqlModeNotStrict, {},
            Text::tr("No strict SQL mode is on: texts longer than their column are cut and "
                     "numbers that do not fit are altered without any message"));
    }
    if (modes.contains(QLatin1String("NO_BACKSLASH_ESCAPES"))) {
        check.report(
            CheckDbRules::kSqlModeBackslash, {},
            Text::tr(
                "The SQL mode NO_BACKSLASH_ESCAPES is on: a backslash in a text of the export is "
                "stored literally. Without the mode it escapes the next character"));
    }
}

} // namespace

ServerVersion ServerVersion::parse(const QString &text)
{
    ServerVersion version;
    version.isMariaDb = text.contains(QLatin1String("MariaDB"), Qt::CaseInsensitive);
    version.major = text.section(QLatin1Char('.'), 0, 0).toInt();
    version.text = text;
    return version;
}

QString ServerVersion::name() const
{
    return QStringLiteral("%1 %2").arg(
        isMariaDb ? QLatin1String("MariaDB") : QLatin1String("MySQL"), text);
}

void DbRules::checkServer(DbAssessment &check)
{
    const QStringList row = check.sql().row(QLatin1String(kSelectServer));
    const ServerVersion version = ServerVersion::parse(row.value(0));
    const QString modes = row.value(1);
    check.begin("server", Text::tr("Server"));
    check.writer().fact(QStringLiteral("server"), Text::tr("Server"), version.name());
    check.writer().fact(QStringLiteral("sqlMode"), Text::tr("SQL mode"), modes);
    checkVersion(check, version);
    checkWritable(check, row.value(2));
    checkFatalModes(check, modes.split(QLatin1Char(',')));
    checkOtherModes(check, modes.split(QLatin1Char(',')));
    check.end(Text::tr("The server and its SQL mode are suitable for the plugin."));
}
