#include "mirovahrctl/checkdb/statementplan.h"

#include "mirovahrctl/site/sqlsession.h"

#include <QRegularExpression>

namespace {

/// One table of an EXPLAIN.
struct Step {
    explicit Step(const QStringList &row)
        : select(row.value(0))
        , table(row.value(2))
        // MySQL has two columns more: "partitions" and "filtered".
        , rows(row.value(row.size() > 10 ? 9 : 8).toDouble())
        , buffered(row.constLast().contains(QLatin1String("join buffer")))
    {
    }

    QString select; ///< number of the SELECT in the query
    QString table; ///< the alias, where it has one
    double rows; ///< for one row of the step before
    bool buffered; ///< walked once for many rows of the step before
};

/// The tables of a query by their aliases, and by their names.
QHash<QString, QString> tablesOf(const QString &query)
{
    // The word behind a name may be its alias, and may be the JOIN before the next one.
    static const QRegularExpression source(
        QStringLiteral("\\b(?:FROM|JOIN) `?(\\w+)`?(?= (\\w+)|)"));
    QHash<QString, QString> tables;
    QRegularExpressionMatchIterator it = source.globalMatch(query);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        tables.insert(match.captured(1), match.captured(1));
        tables.insert(match.captured(2), match.captured(1));
    }
    return tables;
}

} // namespace

std::optional<StatementPlan> StatementPlan::of(SqlSession &site, const QString &query)
{
    const QVector<QStringList> explained = site.rows(QStringLiteral("EXPLAIN ") + query);
    if (site.failed())
        return std::nullopt;
    const QHash<QString, QString> tables = tablesOf(query);
    StatementPlan plan;
    QHash<QString, double> walkedBefore; // by the SELECT
    for (const QStringList &row : explained) {
        const Step step(row);
        const double before = step.buffered ? 1 : walkedBefore.value(step.select, 1);
        const double walked = before * step.rows;
        walkedBefore.insert(step.select, walked);
        plan.m_walked[tables.value(step.table)] += walked;
    }
    return plan;
}
