#include "mirovahrctl/preview/previewportions.h"

#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/site/sqlsession.h"

#include <algorithm>

namespace {

/// Rows of a portion: some megabytes.
constexpr int kPortion = 20000;

/// The columns of the primary key, if they are numbers: texts are equal and in order by collations.
QStringList numbersOfPrimaryKey(const PreviewTable &table)
{
    const QStringList key = table.primaryKey();
    const bool areNumbers = std::all_of(key.cbegin(), key.cend(), [&table](const QString &column) {
        const int at = table.indexOf(column);
        return at >= 0 && table.columns.at(at).kind == PreviewColumn::Kind::Number;
    });
    return areNumbers ? key : QStringList();
}

} // namespace

PreviewReading::PreviewReading(SqlSession &site, const PreviewTable &table)
    : m_site(site)
    , m_table(table)
    , m_select(QStringLiteral("SELECT %1 FROM %2 t")
                   .arg(table.expressions(QStringLiteral("t")), SqlSession::name(table.name)))
    , m_key(numbersOfPrimaryKey(table))
{
}

bool PreviewReading::readAll(const Take &take)
{
    if (m_key.isEmpty())
        return m_site.forEachRow(m_select, take);
    QStringList last;
    int count = 0;
    do {
        count = 0;
        const bool isRead =
            m_site.forEachRow(m_select + rowsAfter(last), [&](const QStringList &row) {
                ++count;
                last = row;
                return take(row);
            });
        if (!isRead)
            return false;
    } while (count == kPortion);
    return true;
}

bool PreviewReading::readWhere(const QString &condition, const Take &take)
{
    return m_site.forEachRow(m_select + QStringLiteral(" WHERE ") + condition, take);
}

/// The end of the query for the portion that follows a row; the first portion follows none. A
/// comparison of rows, (a, b) > (1, 2), would not use the key.
QString PreviewReading::rowsAfter(const QStringList &row) const
{
    QStringList equal;
    QStringList later;
    QStringList columns;
    for (const QString &name : m_key) {
        const QString column = QStringLiteral("t.") + SqlSession::name(name);
        columns += column;
        if (row.isEmpty())
            continue;
        const QString &value = row.at(m_table.indexOf(name));
        later += (equal + QStringList(column + QStringLiteral(" > ") + value))
                     .join(QStringLiteral(" AND "));
        equal += column + QStringLiteral(" = ") + value;
    }
    return (later.isEmpty() ? QString()
                            : QStringLiteral(" WHERE ") + later.join(QStringLiteral(" OR ")))
        + QStringLiteral(" ORDER BY %1 LIMIT %2")
              .arg(columns.join(QStringLiteral(", ")))
              .arg(kPortion);
}
