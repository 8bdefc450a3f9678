// Tables and columns: there, and filled by the server where the plugin leaves them out.

#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/pluginside/pluginrights.h"
#include "mirovahrctl/site/dbschema.h"

#include <QSqlError>

namespace {

const QString kCreateAdvice = QStringLiteral(
    "See the definition in reference-db/schema.sql; to the account, what it has no right to is not "
    "there.");

/// Looks for everything that the contract names, and keeps apart what only other components than
/// the plugin use.
class NameCheck {
public:
    NameCheck(DbAssessment &check, const DbSchema &schema)
        : m_check(check)
        , m_schema(schema)
    {
    }

    void checkTable(const TepDbContract::Table &table)
    {
        const QString name = QString::fromLatin1(table.name);
        if (m_schema.hasTable(name))
            checkColumns(name, PluginRights::names(table.columns));
        else
            missingTable(name);
    }

    QStringList missingElsewhere() const { return m_missingElsewhere; }

private:
    void missingTable(const QString &table)
    {
        if (PluginRights::find(table) == nullptr) {
            m_missingElsewhere += table;
            return;
        }
        m_check.breach(
            "table-missing",
            QStringLiteral("There is no table %1, or the account has no right to it").arg(table),
            kCreateAdvice, table);
    }

    void checkColumns(const QString &table, const QStringList &columns)
    {
        for (const QString &column : columns) {
            if (m_schema.column(table, column) == nullptr)
                missingColumn(table, column);
        }
    }

    void missingColumn(const QString &table, const QString &column)
    {
        const QString field = table + QLatin1Char('.') + column;
        if (!PluginRights::usesColumn(table, column)) {
            m_missingElsewhere += field;
            return;
        }
        m_check.breach(
            "column-missing",
            QStringLiteral("There is no column %1, or the account has no right to it").arg(field),
            kCreateAdvice, field);
    }

    DbAssessment &m_check;
    const DbSchema &m_schema;
    QStringList m_missingElsewhere;
};

void tellMissingElsewhere(DbAssessment &check, const QStringList &names)
{
    if (names.isEmpty())
        return;
    check.tell(Severity::Note, "missing-elsewhere",
               QStringLiteral("Not there, or hidden from this account: %1. The plugin does not "
                              "use them; other components of the attendance server may")
                   .arg(names.join(QStringLiteral(", "))),
               {});
}

/// Columns that the site added and that keep every insert from succeeding.
void checkLeftOutColumns(DbAssessment &check, const DbSchema &schema,
                         const PluginRights::TableRights &rights)
{
    const QString table = QString::fromLatin1(rights.table);
    const QStringList sometimes = PluginRights::names(rights.notAlwaysInserted);
    const QStringList inserted = PluginRights::names(rights.insert);
    const QVector<DbColumn> columns = schema.columns(table);
    for (const DbColumn &column : columns) {
        const bool always =
            inserted.contains(column.name, Qt::CaseInsensitive) && !sometimes.contains(column.name);
        if (always || column.nullable || column.filledByServer)
            continue;
        check.breach("column-without-default",
                     QStringLiteral("The column %1.%2 has no default value and takes no NULL: a "
                                    "new row, which the plugin makes without it, is refused in "
                                    "strict SQL modes")
                         .arg(table, column.name),
                     QStringLiteral("Give the column a default value."),
                     table + QLatin1Char('.') + column.name);
    }
}

void checkInserts(DbAssessment &check, const DbSchema &schema)
{
    for (const PluginRights::TableRights &rights : PluginRights::kTables) {
        if (PluginRights::insertsInto(QString::fromLatin1(rights.table)))
            checkLeftOutColumns(check, schema, rights);
    }
}

bool seesAllColumns(DbAssessment &check, const QString &table)
{
    return !check.attempt(QStringLiteral("SELECT * FROM `%1` LIMIT 0").arg(table)).isValid();
}

/// The server hides the columns that an account has no right to, and the keys on them.
void noteHiddenColumns(DbAssessment &check, const DbSchema &schema)
{
    QStringList tables;
    for (const PluginRights::TableRights &rights : PluginRights::kTables) {
        const QString table = QString::fromLatin1(rights.table);
        if (PluginRights::insertsInto(table) && schema.hasTable(table)
            && !seesAllColumns(check, table))
            tables += table;
    }
    if (tables.isEmpty())
        return;
    check.setPartlySeen();
    check.tell(Severity::Note, "columns-hidden",
               QStringLiteral("The rights of this account are on single columns of these tables, "
                              "and it sees no others: %1. Whether the site added a column there "
                              "that has no default value, so that every new row is refused, or "
                              "a unique key on hidden columns, this look cannot tell")
                   .arg(tables.join(QStringLiteral(", "))),
               QStringLiteral("Check once more with an account that reads whole tables, such as "
                              "mirovahrctl, and --other-account."));
}

void checkStatusOfNewPeople(DbAssessment &check, const DbSchema &schema)
{
    const DbColumn *const status =
        schema.column(QStringLiteral("people"), QStringLiteral("status"));
    if (status == nullptr || status->defaultValue == QLatin1String("1"))
        return;
    check.breach("status-default",
                 QStringLiteral("The default of people.status is not 1: people whom the plugin "
                                "creates are inactive until their line of the export changes"),
                 QStringLiteral("Make 1 the default of the column."),
                 QStringLiteral("people.status"));
}

void checkUndoing(DbAssessment &check, const DbSchema &schema)
{
    const QString table = QStringLiteral("admins_people");
    if (!schema.hasTable(table) || schema.isTransactional(table))
        return;
    check.tell(
        Severity::Warning, "not-transactional",
        QStringLiteral("The table %1 takes no part in transactions: when a supervisor cannot "
                       "be set, the former one has lost the person's requests all the same")
            .arg(table),
        QStringLiteral("Use an engine with transactions, such as InnoDB."), table);
}

} // namespace

void DbRules::checkTables(DbAssessment &check, const DbSchema &schema)
{
    check.begin("tables", "Tables");
    NameCheck names(check, schema);
    for (const TepDbContract::Table &table : TepDbContract::kTables)
        names.checkTable(table);
    tellMissingElsewhere(check, names.missingElsewhere());
    checkInserts(check, schema);
    noteHiddenColumns(check, schema);
    checkStatusOfNewPeople(check, schema);
    checkUndoing(check, schema);
    check.end(QStringLiteral("All tables and columns are there, and new rows can be made."));
}
