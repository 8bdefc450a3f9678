// The rights of the account: enough, and not far more than enough.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/dbschema.h"

#include <QStringList>

namespace {

/// Of the current account, which the information schema writes with quotation marks. "USAGE" means
/// no right at all.
constexpr char kAccount[] =
    "GRANTEE = CONCAT('''', SUBSTRING_INDEX(CURRENT_USER(), '@', 1), '''@''',"
    " SUBSTRING_INDEX(CURRENT_USER(), '@', -1), '''') AND PRIVILEGE_TYPE <> 'USAGE'";
constexpr char kSelectOnServer[] =
    "SELECT PRIVILEGE_TYPE FROM information_schema.USER_PRIVILEGES WHERE %1";
constexpr char kSelectOnDatabases[] = "SELECT PRIVILEGE_TYPE FROM"
                                      " information_schema.SCHEMA_PRIVILEGES WHERE %1"
                                      " ORDER BY TABLE_SCHEMA, PRIVILEGE_TYPE";

void checkRight(DbAssessment &check, const DbSchema &schema, const char *right,
                const QString &table, const QStringList &columns)
{
    QStringList missing;
    for (const QString &name : columns) {
        const DbColumn *const column = schema.column(table, name);
        if (column != nullptr && !column->rights.contains(QLatin1String(right)))
            missing += name;
    }
    if (missing.isEmpty())
        return;
    const QString verb = QString::fromLatin1(right).toUpper();
    check.reportViolation(CheckDbRules::kRightMissing, table,
                          Text::tr("The account lacks %1 on %2 of the table %3")
                              .arg(verb, missing.join(QStringLiteral(", ")), table));
}

void checkTable(DbAssessment &check, const DbSchema &schema, const QString &table)
{
    using namespace TepDbContract;
    checkRight(check, schema, "select", table, columnsWith(S, table));
    checkRight(check, schema, "insert", table, columnsWith(I, table));
    checkRight(check, schema, "update", table, columnsWith(U, table));
}

/// \a message has one placeholder for the rights.
void checkExcess(DbAssessment &check, const char *sql, const QString &message)
{
    QStringList rights = check.sql().column(QString::fromLatin1(sql).arg(QLatin1String(kAccount)));
    rights.removeDuplicates();
    if (!rights.isEmpty())
        check.report(CheckDbRules::kRightExcess, {},
                     message.arg(rights.join(QStringLiteral(", "))));
}

} // namespace

void DbRules::checkRights(DbAssessment &check, const DbSchema &schema)
{
    check.begin("rights", Text::tr("Rights of the account"));
    for (const TepDbContract::Table &table : TepDbContract::kTables)
        checkTable(check, schema, QString::fromLatin1(table.name));
    checkExcess(
        check, kSelectOnServer,
        Text::tr("The account has rights on the whole server that the plugin does not need: "
                 "%1. Texts of the export go into the plugin's statements unescaped, so "
                 "whoever writes the export can do whatever the account may do"));
    checkExcess(check, kSelectOnDatabases,
                Text::tr("The account has rights on whole databases that the plugin does not need: "
                         "%1. Texts of the export go into the plugin's statements unescaped, so "
                         "whoever writes the export can do whatever the account may do"));
    check.end(Text::tr("The account has the rights that the plugin needs, and hardly more."));
}
