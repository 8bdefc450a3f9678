// Tables without a primary key: servers can be configured to refuse them.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/checkdb/serversettings.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/dbschema.h"

#include <algorithm>
#include <optional>

namespace {

/// A setting that makes a statement fail.
struct Refusal {
    QString setting;
    int error;
    QString remedy;
};

QString temporaryEngine(const ServerSettings &settings)
{
    const QString own = settings.value(QStringLiteral("default_tmp_storage_engine"));
    return own.isEmpty() ? settings.value(QStringLiteral("default_storage_engine")) : own;
}

/// The setting that prevents creating a temporary table without a primary key; nothing if none
/// does.
std::optional<Refusal> refusalOfTemporaryTable(const ServerSettings &settings)
{
    const QString chosen = temporaryEngine(settings);
    const QString enforced = settings.value(QStringLiteral("enforce_storage_engine"));
    const QString engine = enforced.isEmpty() ? chosen : enforced;
    if (engine != chosen && has(settings, "sql_mode", "NO_ENGINE_SUBSTITUTION"))
        return Refusal{QStringLiteral("enforce_storage_engine = %1").arg(enforced), 1290,
                       Text::tr("Set default_tmp_storage_engine to the same engine.")};
    if (isOn(settings, "innodb_force_primary_key") && engine == QLatin1String("InnoDB"))
        return Refusal{QStringLiteral("innodb_force_primary_key = ON"), 1173,
                       Text::tr("Turn it off, or set default_tmp_storage_engine to Aria.")};
    if (isClusterNode(settings) && has(settings, "wsrep_mode", "REQUIRED_PRIMARY_KEY"))
        return Refusal{QStringLiteral("wsrep_mode = REQUIRED_PRIMARY_KEY"), 4165,
                       Text::tr("Remove the mode from wsrep_mode.")};
    return std::nullopt;
}

void checkTemporaryTable(DbAssessment &check, const ServerSettings &settings)
{
    const auto refusal = refusalOfTemporaryTable(settings);
    if (!refusal)
        return;
    check.report(
        CheckDbRules::kTemporaryTableRefused, {},
        Text::tr("The server has %1: CREATE TEMPORARY TABLE tmptbl_updateTermsSyncTZ fails "
                 "with error %2. The plugin does not need it, but where the attendance server "
                 "uses the same classes, a changed time zone does not reach the terminals")
            .arg(refusal->setting, QString::number(refusal->error)),
        refusal->remedy);
}

/// Whether the table has a primary key, or a unique key that the server takes for one: on whole
/// columns that are NOT NULL.
bool hasPrimaryKey(const DbSchema &schema, const QString &table)
{
    const QVector<DbKey> keys = schema.uniqueKeys(table);
    const auto isFilled = [&](const QString &name) {
        const DbColumn *const column = schema.column(table, name);
        return column != nullptr && !column->nullable;
    };
    return std::any_of(keys.cbegin(), keys.cend(), [&](const DbKey &key) {
        return key.name == QLatin1String("PRIMARY")
            || (key.wholeColumns
                && std::all_of(key.columns.cbegin(), key.columns.cend(), isFilled));
    });
}

/// The tables on which this account sees no primary key. \a written: only those that the plugin
/// writes.
QStringList tablesWithoutKey(const DbSchema &schema, bool written)
{
    QStringList tables;
    for (const TepDbContract::Table &entry : TepDbContract::kTables) {
        const QString table = QString::fromLatin1(entry.name);
        if (schema.hasTable(table) && (!written || TepDbContract::isWritten(table))
            && !hasPrimaryKey(schema, table))
            tables += table;
    }
    return tables;
}

void reportWithoutKey(DbAssessment &check, const Rule &rule, const QString &message,
                      const QStringList &tables)
{
    if (tables.isEmpty())
        return;
    Finding finding = makeFinding(rule, message.arg(tables.join(QStringLiteral(", "))));
    // Keys on columns that the account cannot see are hidden as well.
    if (check.isPartlySeen())
        finding.severity = rule.otherSeverity;
    check.report(finding);
}

void checkReplication(DbAssessment &check, const DbSchema &schema, const ServerSettings &settings)
{
    if (!isClusterNode(settings))
        return;
    if (!isOn(settings, "wsrep_certify_nonpk")) {
        reportWithoutKey(check, CheckDbRules::kPrimaryKeyWanted,
                         Text::tr("The server has wsrep_certify_nonPK = OFF, and this account "
                                  "sees no primary key on these tables: %1. Without one, each "
                                  "of the plugin's writes to them fails with error 1213 "
                                  "(deadlock)."),
                         tablesWithoutKey(schema, true));
        return;
    }
    reportWithoutKey(check, CheckDbRules::kClusterKeyless,
                     Text::tr("This account sees no primary key on these tables: %1. On a "
                              "cluster, new rows of two nodes conflict in such a table though "
                              "they differ, and one of the two is refused with error 1213 "
                              "(deadlock)."),
                     tablesWithoutKey(schema, false));
}

} // namespace

void DbRules::checkKeylessTables(DbAssessment &check, const DbSchema &schema,
                                 const ServerSettings &settings)
{
    check.begin("keyless-tables", Text::tr("Tables without a primary key"));
    checkTemporaryTable(check, settings);
    checkReplication(check, schema, settings);
    check.end(Text::tr("The server accepts them where they are used."));
}
