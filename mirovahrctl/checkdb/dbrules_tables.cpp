// Tables and columns: they exist, and the server fills those that the plugin leaves out.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/dbschema.h"

namespace {

/// Looks for everything that the contract names, and lists separately what only other components
/// use.
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
            checkColumns(name, TepDbContract::columnsOf(table));
        else
            missingTable(name);
    }

    QStringList missingElsewhere() const { return m_missingElsewhere; }

private:
    void missingTable(const QString &table)
    {
        if (!TepDbContract::isUsed(table)) {
            m_missingElsewhere += table;
            return;
        }
        m_check.reportViolation(
            CheckDbRules::kTableMissing, table,
            Text::tr("The table %1 does not exist, or the account has no rights on it").arg(table));
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
        if (TepDbContract::findColumn(table, column) == nullptr) {
            m_missingElsewhere += field;
            return;
        }
        m_check.reportViolation(
            CheckDbRules::kColumnMissing, field,
            Text::tr("The column %1 does not exist, or the account has no rights on it")
                .arg(field));
    }

    DbAssessment &m_check;
    const DbSchema &m_schema;
    QStringList m_missingElsewhere;
};

void reportMissingElsewhere(DbAssessment &check, const QStringList &names)
{
    if (names.isEmpty())
        return;
    check.report(CheckDbRules::kMissingElsewhere, {},
                 Text::tr("Missing, or hidden from this account: %1. The plugin does not use "
                          "them; other components of the attendance server may")
                     .arg(names.join(QStringLiteral(", "))));
}

/// Columns that the site added and that make every insert fail.
void checkLeftOutColumns(DbAssessment &check, const DbSchema &schema, const QString &table)
{
    const QStringList sometimes = TepDbContract::columnsWith(TepDbContract::Omitted, table);
    const QStringList inserted = TepDbContract::columnsWith(TepDbContract::I, table);
    const QVector<DbColumn> columns = schema.columns(table);
    for (const DbColumn &column : columns) {
        const bool always =
            inserted.contains(column.name, Qt::CaseInsensitive) && !sometimes.contains(column.name);
        if (always || column.nullable || column.filledByServer)
            continue;
        check.reportViolation(
            CheckDbRules::kColumnWithoutDefault, table + QLatin1Char('.') + column.name,
            Text::tr("The column %1.%2 has no default value and does not allow NULL: in strict SQL "
                     "modes the plugin's new rows, which leave it out, are refused")
                .arg(table, column.name));
    }
}

void checkInserts(DbAssessment &check, const DbSchema &schema)
{
    for (const TepDbContract::Table &entry : TepDbContract::kTables) {
        const QString table = QString::fromLatin1(entry.name);
        if (TepDbContract::getsRows(table))
            checkLeftOutColumns(check, schema, table);
    }
}

bool seesAllColumns(const DbAssessment &check, const QString &table)
{
    return !check.attempt(QStringLiteral("SELECT * FROM `%1` LIMIT 0").arg(table)).failed();
}

/// The server hides columns on which an account has no rights, and the keys on them.
void noteHiddenColumns(DbAssessment &check, const DbSchema &schema)
{
    QStringList tables;
    for (const TepDbContract::Table &entry : TepDbContract::kTables) {
        const QString table = QString::fromLatin1(entry.name);
        if (TepDbContract::getsRows(table) && schema.hasTable(table)
            && !seesAllColumns(check, table))
            tables += table;
    }
    if (tables.isEmpty())
        return;
    check.setPartlySeen();
    check.report(
        CheckDbRules::kColumnsHidden, {},
        Text::tr(
            "This account has rights on single columns of these tables and sees no others: %1. "
            "This check cannot find a column that the site added there without a default value, "
            "which makes every new row fail, nor a unique key on hidden columns")
            .arg(tables.join(QStringLiteral(", "))));
}

void checkStatusOfNewPeople(DbAssessment &check, const DbSchema &schema)
{
    const DbColumn *const status =
        schema.column(QStringLiteral("people"), QStringLiteral("status"));
    if (status == nullptr || status->defaultValue == QLatin1String("1"))
        return;
    check.reportViolation(CheckDbRules::kStatusDefault, QStringLiteral("people.status"),
                          Text::tr("The default of people.status is not 1: people whom the plugin "
                                   "creates are inactive until their line of the export changes"));
}

void checkTransactions(DbAssessment &check, const DbSchema &schema)
{
    const QString table = QStringLiteral("admins_people");
    if (!schema.hasTable(table) || schema.isTransactional(table))
        return;
    check.report(
        CheckDbRules::kNotTransactional, table,
        Text::tr("The table %1 does not support transactions: if a supervisor cannot be set, "
                 "the previous one loses the person's requests all the same")
            .arg(table));
}

} // namespace

void DbRules::checkTables(DbAssessment &check, const DbSchema &schema)
{
    check.begin("tables", Text::tr("Tables"));
    NameCheck names(check, schema);
    for (const TepDbContract::Table &table : TepDbContract::kTables)
        names.checkTable(table);
    reportMissingElsewhere(check, names.missingElsewhere());
    checkInserts(check, schema);
    noteHiddenColumns(check, schema);
    checkStatusOfNewPeople(check, schema);
    checkTransactions(check, schema);
    check.end(Text::tr("All tables and columns exist, and new rows can be inserted."));
}
