#include "mirovahrctl/preview/previewportions.h"

#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/site/sqlsession.h"

#include <algorithm>

namespace {

/// Rows of a portion: some megabytes.
constexpr int kPortion = 20000;

/// Texts are equal and in order by collations, so a portion cannot begin behind one.
bool consistsOfNumbers(const PreviewTable &table, const QStringList &key)
{
    return std::all_of(key.cbegin(), key.cend(), [&table](const QString &name) {
        const int at = table.indexOf(name);
        return at >= 0 && table.columns.at(at).kind == PreviewColumn::Kind::Number;
    });
}

} // namespace

PreviewPortions::PreviewPortions(SqlSession &server, const PreviewTable &table,
                                 const QStringList &key, const QString &owner)
    : m_server(server)
    , m_table(table)
    , m_key(key)
    , m_owner(owner)
{
}

bool PreviewPortions::forEachRow(const QString &select, const QString &condition, const Take &take)
{
    const QString query = select + QStringLiteral(" WHERE (") + condition + QLatin1Char(')');
    if (m_key.isEmpty())
        return m_server.forEachRow(query, take);
    if (!consistsOfNumbers(m_table, m_key))
        return m_server.forEachRow(query + order(), take);

    const QString limit = QStringLiteral(" LIMIT %1").arg(kPortion);
    QStringList last;
    int count = 0;
    do {
        count = 0;
        const bool isRead = m_server.forEachRow(query + behind(last) + order() + limit,
                                                [&](const QStringList &row) {
                                                    ++count;
                                                    last = row;
                                                    return take(row);
                                                });
        if (!isRead)
            return false;
    } while (count == kPortion);
    return true;
}

QString PreviewPortions::column(const QString &name) const
{
    return m_owner + QLatin1Char('.') + SqlSession::name(name);
}

QString PreviewPortions::order() const
{
    QStringList columns;
    for (const QString &name : m_key)
        columns += column(name);
    return QStringLiteral(" ORDER BY ") + columns.join(QStringLiteral(", "));
}

/// What else holds for the portion that follows a row; the first portion follows none. A comparison
/// of rows, (a, b) > (1, 2), would not use the key.
QString PreviewPortions::behind(const QStringList &row) const
{
    if (row.isEmpty())
        return {};
    QStringList equal;
    QStringList later;
    for (const QString &name : m_key) {
        const QString &value = row.at(m_table.indexOf(name));
        later += (equal + QStringList(column(name) + QStringLiteral(" > ") + value))
                     .join(QStringLiteral(" AND "));
        equal += column(name) + QStringLiteral(" = ") + value;
    }
    return QStringLiteral(" AND (") + later.join(QStringLiteral(" OR ")) + QLatin1Char(')');
}
