// Unique keys: an upsert must update the row that it means, and no other.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/dbschema.h"

#include <QSet>

#include <algorithm>

namespace {

using Columns = QSet<QString>;

Columns toSet(const QStringList &names)
{
    return Columns(names.cbegin(), names.cend());
}

Columns columnsOf(const TepDbContract::UniqueKey &key)
{
    return toSet(TepDbContract::names(QByteArray(key.columns).toLower().constData()));
}

QString listed(const Columns &columns)
{
    QStringList names = columns.values();
    names.sort();
    return names.join(QStringLiteral(", "));
}

/// The keys of one table that the contract names.
class KeyCheck {
public:
    KeyCheck(DbAssessment &check, const DbSchema &schema, const TepDbContract::Table &table)
        : m_check(check)
        , m_table(QString::fromLatin1(table.name))
        , m_contract(table)
        , m_schema(schema)
        , m_keys(schema.uniqueKeys(m_table))
    {
    }

    void run()
    {
        for (const TepDbContract::UniqueKey &key : m_contract.keys) {
            if (key.use != TepDbContract::KeyUse::None)
                checkKey(key);
        }
        if (hasUpsert())
            checkFurtherKeys();
    }

private:
    bool hasUpsert() const
    {
        return m_contract.keys[0].use == TepDbContract::KeyUse::Upsert
            && TepDbContract::getsRows(m_table);
    }

    bool hasKey(const Columns &columns) const
    {
        return std::any_of(m_keys.cbegin(), m_keys.cend(),
                           [&columns](const DbKey &key) { return toSet(key.columns) == columns; });
    }

    void checkKey(const TepDbContract::UniqueKey &key)
    {
        const Columns columns = columnsOf(key);
        if (hasKey(columns))
            return;
        if (key.use == TepDbContract::KeyUse::Upsert)
            missingUpsertKey(columns);
        else
            missingIdentity(columns);
    }

    void missingUpsertKey(const Columns &columns)
    {
        if (TepDbContract::getsRows(m_table)) {
            m_check.reportViolation(
                CheckDbRules::kKeyMissing, m_table,
                Text::tr(
                    "The table %1 has no unique key on exactly %2: the plugin inserts a second "
                    "row instead of updating the first")
                    .arg(m_table, listed(columns)));
        } else {
            m_check.report(
                CheckDbRules::kKeyMissingElsewhere, m_table,
                Text::tr("The table %1 has no unique key on exactly %2: another component of the "
                         "attendance server inserts a second row instead of updating the first")
                    .arg(m_table, listed(columns)));
        }
    }

    void missingIdentity(const Columns &columns)
    {
        m_check.report(CheckDbRules::kIdentityMissing, m_table,
                       Text::tr("The table %1 has no unique key on %2: of two rows with the "
                                "same value, either may be used")
                           .arg(m_table, listed(columns)));
    }

    /// Whether the key is one of the contract's, or has more columns: then no upsert collides in it
    /// alone.
    bool isHarmless(const Columns &columns) const
    {
        return std::any_of(std::begin(m_contract.keys), std::end(m_contract.keys),
                           [&columns](const TepDbContract::UniqueKey &key) {
                               return key.use != TepDbContract::KeyUse::None
                                   && columns.contains(columnsOf(key));
                           });
    }

    /// Whether every new row gets a unique value in the key: then no upsert collides in it.
    bool neverCollides(const Columns &columns) const
    {
        return std::any_of(columns.cbegin(), columns.cend(), [this](const QString &name) {
            const DbColumn *const column = m_schema.column(m_table, name);
            return column != nullptr && column->uniquelyFilled
                && !TepDbContract::columnsWith(TepDbContract::I | TepDbContract::U, m_table)
                        .contains(column->name);
        });
    }

    void checkFurtherKeys()
    {
        for (const DbKey &key : m_keys) {
            const Columns columns = toSet(key.columns);
            if (!isHarmless(columns) && !neverCollides(columns))
                furtherKey(key.name, columns);
        }
    }

    void furtherKey(const QString &name, const Columns &columns)
    {
        m_check.report(
            CheckDbRules::kKeyUnexpected, m_table,
            Text::tr("The table %1 has a unique key %2 on %3: a row that the plugin inserts "
                     "can collide with another row in it and change that one instead")
                .arg(m_table, name, listed(columns)));
    }

    DbAssessment &m_check;
    const QString m_table;
    const TepDbContract::Table &m_contract;
    const DbSchema &m_schema;
    const QVector<DbKey> m_keys;
};

void checkAutomaticNumber(DbAssessment &check, const DbSchema &schema,
                          const TepDbContract::Table &table)
{
    const QString name = QString::fromLatin1(table.name);
    const DbColumn *const column = schema.column(name, QString::fromLatin1(table.generatedColumn));
    if (column == nullptr || column->automaticNumber || !TepDbContract::getsRows(name))
        return;
    check.reportViolation(CheckDbRules::kNotAutomatic, name + QLatin1Char('.') + column->name,
                          Text::tr("The column %1.%2 is not AUTO_INCREMENT: the plugin leaves its "
                                   "value to the server")
                              .arg(name, column->name));
}

} // namespace

void DbRules::checkKeys(DbAssessment &check, const DbSchema &schema)
{
    check.begin("keys", Text::tr("Unique keys"));
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        if (!schema.hasTable(QString::fromLatin1(table.name)))
            continue;
        KeyCheck(check, schema, table).run();
        checkAutomaticNumber(check, schema, table);
    }
    check.end(Text::tr("The unique keys are as the plugin requires."));
}
