#include "mirovahrctl/preview/previewundoplan.h"

#include "db/tepdbcontract.h"
#include "mirovahrctl/preview/previewcard.h"
#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewundocolumns.h"
#include "worker/schedule.h"

#include <algorithm>

namespace {

using UndoRow = PreviewUndoPlan::Row;
using UndoRows = PreviewUndoPlan::Rows;

UndoRow::Kind kindOf(const PreviewChange &change)
{
    if (change.isInsert())
        return UndoRow::Kind::New;
    return change.isDelete() ? UndoRow::Kind::Removed : UndoRow::Kind::Changed;
}

bool isForceFlag(const PreviewChange &change)
{
    return change.table->name == QLatin1String("vars")
        && change.cell("name") == Schedule::kForceSyncKey;
}

bool isNewPerson(const PreviewChange &change)
{
    return change.table->name == QLatin1String("people") && change.isInsert();
}

/// The columns by which a row is found at the site. A number that the server gives to each row
/// identifies none there: others may have added rows in between.
QStringList keyAtSite(const PreviewTable &table)
{
    QVector<QStringList> keys = table.uniqueKeys();
    keys.prepend(table.key);
    const auto found = std::find_if(keys.cbegin(), keys.cend(), [&table](const QStringList &key) {
        return std::none_of(key.cbegin(), key.cend(), [&table](const QString &column) {
            return PreviewUndoColumns::isRowNumber(table, column);
        });
    });
    return found == keys.cend() ? QStringList() : *found;
}

/// The longest way of references that leads to the table. A circle of references has no order.
int distance(const QString &table, const PreviewSchema &schema, QStringList way = {})
{
    way += table;
    int longest = 0;
    for (const PreviewTable &other : schema.tables) {
        if (other.parents.contains(table) && !way.contains(other.name))
            longest = std::max(longest, 1 + distance(other.name, schema, way));
    }
    return longest;
}

} // namespace

bool PreviewUndoPlan::Rows::has(UndoRow::Kind kind) const
{
    return std::any_of(rows.cbegin(), rows.cend(),
                       [kind](const UndoRow &row) { return row.kind == kind; });
}

PreviewUndoPlan::PreviewUndoPlan(const PreviewSchema &schema, const QVector<PreviewChange> &changes,
                                 const PreviewMoments &moments, PreviewNames &names)
    : m_moments(moments)
    , m_words(names, moments)
{
    for (const PreviewChange &change : changes)
        add(change);
    finish(schema);
}

const UndoRows *PreviewUndoPlan::find(const char *table) const
{
    const auto found =
        std::find_if(m_tables.cbegin(), m_tables.cend(), [table](const UndoRows &rows) {
            return rows.table->name == QLatin1String(table);
        });
    return found == m_tables.cend() ? nullptr : &*found;
}

void PreviewUndoPlan::add(const PreviewChange &change)
{
    const PreviewTable &table = *change.table;
    if (!TepDbContract::isWritten(table.name)) {
        ++m_rowsOfOthers[table.name];
    } else if (isForceFlag(change)) {
        m_hasForceFlag = true;
    } else if (PreviewUndoColumns::isQueue(table.name)) {
        addToQueue(change);
    } else if (!keyOf(table).isEmpty()) {
        addRow(change);
        if (isNewPerson(change))
            m_newPeople.append({change.cell("uid"), change.cell("pid")});
    } else if (!m_tablesWithoutKey.contains(table.name)) {
        m_tablesWithoutKey += table.name;
    }
}

QStringList PreviewUndoPlan::keyOf(const PreviewTable &table)
{
    const auto known = m_keys.constFind(&table);
    return known != m_keys.constEnd() ? *known : *m_keys.insert(&table, keyAtSite(table));
}

void PreviewUndoPlan::addToQueue(const PreviewChange &change)
{
    // Only a program of the site takes rows out of the queue.
    if (change.isDelete()) {
        ++m_rowsOfOthers[change.table->name];
        return;
    }
    QStringList row = change.after;
    for (int i = 0; i < row.size(); ++i) {
        if (m_moments.isNow(change, i))
            row[i].clear();
    }
    const QString content = change.table->tuple(row);
    const auto known = m_queued.constFind(content);
    if (known != m_queued.constEnd()) {
        ++m_tables.last().rows[*known].copies;
        return;
    }
    addRow(change);
    m_queued.insert(content, m_tables.constLast().rows.size() - 1);
}

/// Changes come table by table.
void PreviewUndoPlan::addRow(const PreviewChange &change)
{
    if (m_tables.isEmpty() || m_tables.constLast().table != change.table) {
        const bool isQueue = PreviewUndoColumns::isQueue(change.table->name);
        m_tables.append({change.table, isQueue ? QStringList() : keyOf(*change.table), {}});
    }
    QVector<UndoRow> &rows = m_tables.last().rows;
    QString what = describe(change);
    // Of the days of a person there may be hundreds.
    if (!rows.isEmpty() && rows.constLast().what == what)
        what = rows.constLast().what;
    rows.append({++m_rowCount, kindOf(change), &change, what});
}

void PreviewUndoPlan::finish(const PreviewSchema &schema)
{
    for (const UndoRows &rows : qAsConst(m_tables)) {
        if (schema.tablesOutsideSnapshot.contains(rows.table->name))
            m_tablesWithoutTransactions += rows.table->name;
    }
    std::stable_sort(m_tables.begin(), m_tables.end(),
                     [&schema](const UndoRows &a, const UndoRows &b) {
                         return distance(a.table->name, schema) < distance(b.table->name, schema);
                     });
}

QString PreviewUndoPlan::describe(const PreviewChange &change) const
{
    const QString &table = change.table->name;
    if (table == QLatin1String("vars"))
        return QStringLiteral("%1, %2").arg(table, change.cell("name"));
    const PreviewWords::Lines lines = m_words.describe(change);
    const QString row = QStringLiteral("%1, %2").arg(table, lines.constFirst().who);
    if (table == QLatin1String("people") || PreviewUndoColumns::isCalculated(table))
        return row;
    const Card card = previewCard(lines);
    return QStringLiteral("%1: %2").arg(row, (card.what + card.details).join(QStringLiteral("; ")));
}
