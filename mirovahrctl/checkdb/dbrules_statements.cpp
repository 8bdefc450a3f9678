// The plugin's statements for a person: whether the server finds their rows by keys.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/checkdb/statementplan.h"
#include "mirovahrctl/pluginside/pluginstatements.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/site/dbschema.h"

#include <algorithm>

namespace {

constexpr char kSelectPerson[] = "SELECT uid, pid FROM people LIMIT 1";
constexpr char kSelectCalendar[] = "SELECT b.bid, g.calendarID FROM branches b"
                                   " JOIN `groups` g ON g.parent = b.mgid LIMIT 1";
constexpr char kSelectFund[] = "SELECT fid FROM funds WHERE iid = 3 AND unit = 2 LIMIT 1";
constexpr char kSelectCounts[] =
    "SELECT TABLE_NAME, TABLE_ROWS FROM information_schema.TABLES"
    " WHERE TABLE_SCHEMA = DATABASE() AND TABLE_NAME IN ('people', 'branches')";

/// Walking as many rows costs about what sending a statement costs.
constexpr double kFewRows = 500;

/// Rows that a server walks in a second: 1.3 million when 500 people were synchronised with 150,000
/// rows of `atten` in memory and no key on them. From a disk it walks fewer.
constexpr double kRowsPerSecond = 1000000;

using Sent = PluginStatement::Sent;

/// What the plugin's statements walk of one table.
struct Walk {
    int statements = 0;
    double most = 0; ///< rows, by one statement
    double total = 0; ///< rows, in a synchronisation in which everybody has changed
};

StatementValues readValues(const QSqlDatabase &site)
{
    const auto row = [&site](const char *sql) {
        return SqlSession(site).row(QLatin1String(sql));
    };
    StatementValues values;
    const QStringList person = row(kSelectPerson);
    if (!person.isEmpty()) {
        values.uid = person.at(0).toUInt();
        values.pid = person.at(1).toUInt();
    }
    const QStringList calendar = row(kSelectCalendar);
    if (!calendar.isEmpty()) {
        values.bid = calendar.at(0).toUInt();
        values.calendar = calendar.at(1).toUInt();
    }
    values.fid = row(kSelectFund).value(0).toUInt();
    return values;
}

/// Whether the server can find the rows of a lookup by the key.
bool serves(const DbKey &key, const TepDbContract::Lookup &lookup)
{
    const QStringList columns =
        TepDbContract::names(QByteArray(lookup.columns).toLower().constData());
    if (!key.findsRows)
        return false;
    for (const QString &column : key.columns) {
        if (column == columns.constLast())
            return true;
        if (!columns.contains(column))
            return false;
    }
    return false;
}

/// The columns of lookups in a sentence about what a table has no key on.
QString listed(const QStringList &lookups)
{
    QString list = lookups.constFirst();
    for (const QString &columns : lookups.mid(1))
        list = Text::tr("%1, and none on %2").arg(list, columns);
    return list;
}

/// The statements of one site.
class StatementCheck {
public:
    StatementCheck(DbAssessment &check, const DbSchema &schema)
        : m_check(check)
        , m_schema(schema)
        , m_site(check.sql().database())
    {
        const QVector<QStringList> counts = check.sql().rows(QLatin1String(kSelectCounts));
        for (const QStringList &row : counts)
            m_counts.insert(row.at(0), qMax(1.0, row.at(1).toDouble()));
    }

    void run()
    {
        const QVector<PluginStatement> statements = pluginStatements(readValues(m_site));
        for (const PluginStatement &statement : statements)
            explain(statement);
        for (auto it = m_walks.cbegin(); it != m_walks.cend(); ++it)
            report(it.key(), *it);
    }

    /// Why the server has not explained a statement; empty when it has explained all.
    QString errorString() const { return m_error; }

private:
    double count(const char *table) const { return m_counts.value(QLatin1String(table), 1); }

    void explain(const PluginStatement &statement)
    {
        SqlSession session(m_site);
        const auto plan = StatementPlan::of(session, statement.query);
        if (!plan) {
            m_error = session.errorString();
            return;
        }
        const double times = count(statement.sent == Sent::ForEachPerson ? "people" : "branches");
        for (auto it = plan->walked().cbegin(); it != plan->walked().cend(); ++it) {
            if (*it <= kFewRows)
                continue;
            Walk &walk = m_walks[it.key()];
            ++walk.statements;
            walk.most = qMax(walk.most, *it);
            walk.total += *it * times;
        }
    }

    /// The columns of the lookups that no key serves.
    QStringList missingKeys(const QString &table) const
    {
        const QVector<DbKey> keys = m_schema.keys(table);
        QStringList missing;
        for (const TepDbContract::Lookup &lookup : TepDbContract::kLookups) {
            const bool found = std::any_of(keys.cbegin(), keys.cend(), [&lookup](const DbKey &key) {
                return serves(key, lookup);
            });
            if (table == QLatin1String(lookup.table) && !found)
                missing += TepDbContract::names(lookup.columns).join(QStringLiteral(", "));
        }
        return missing;
    }

    void report(const QString &table, const Walk &walk)
    {
        const QStringList missing = missingKeys(table);
        if (missing.isEmpty())
            return; // so many rows belong to what is looked for
        m_check.report(
            CheckDbRules::kStatementScans, table,
            Text::tr("The table %1 has no key on %2: for each person or branch the plugin sends "
                     "%Ln statement(s) that walk up to %3 of its rows. A synchronisation in which "
                     "all %4 people have changed takes up to about %5 longer, estimated with %6 "
                     "rows a second",
                     nullptr, walk.statements)
                .arg(table, listed(missing), Language::number(walk.most, 0),
                     Language::number(count("people"), 0),
                     Wording::span(qint64(walk.total / kRowsPerSecond)),
                     Language::number(kRowsPerSecond, 0)));
    }

    DbAssessment &m_check;
    const DbSchema &m_schema;
    const QSqlDatabase m_site;
    QHash<QString, double> m_counts;
    QMap<QString, Walk> m_walks;
    QString m_error;
};

} // namespace

void DbRules::checkStatements(DbAssessment &check, const DbSchema &schema)
{
    check.begin("statements", Text::tr("Statements for a person"));
    StatementCheck statements(check, schema);
    statements.run();
    if (statements.errorString().isEmpty()) {
        check.end(Text::tr("The server finds their rows without walking a large table."));
        return;
    }
    check.setPartlySeen();
    check.writer().sentence(
        Text::tr("The server does not explain all of them: %1.").arg(statements.errorString()));
}
