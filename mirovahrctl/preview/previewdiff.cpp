#include "mirovahrctl/preview/previewdiff.h"

#include "db/tepdbcontract.h"
#include "mirovahrctl/preview/previewcopy.h"
#include "mirovahrctl/preview/previewportions.h"

#include <QMap>

namespace {

// The columns of each unique key of a table of the copy, in order, and what keeps a key from
// identifying rows: columns that may be NULL, and prefixes.
constexpr char kKeys[] =
    "SELECT INDEX_NAME, COLUMN_NAME, NULLABLE, SUB_PART FROM information_schema.STATISTICS WHERE "
    "NON_UNIQUE = 0 AND TABLE_SCHEMA = DATABASE() AND TABLE_NAME = %1 ORDER BY INDEX_NAME <> "
    "'PRIMARY', INDEX_NAME, SEQ_IN_INDEX";

/// The columns of the primary key, or else of a unique key; none when rows may repeat.
QStringList keyOf(SqlSession &server, const PreviewTable &table)
{
    QStringList names;
    QHash<QString, QStringList> columns;
    QHash<QString, bool> isUsable;
    const QVector<QStringList> rows =
        server.rows(QString(QLatin1String(kKeys)).arg(SqlSession::literal(table.name)));
    for (const QStringList &row : rows) {
        const QString &name = row.at(0);
        if (!columns.contains(name))
            names += name;
        columns[name] += row.at(1);
        isUsable[name] = isUsable.value(name, true) && row.at(2).isEmpty() && row.at(3).isNull()
            && table.indexOf(row.at(1)) >= 0;
    }
    for (const QString &name : qAsConst(names)) {
        if (isUsable.value(name))
            return columns.value(name);
    }
    return {};
}

QString sameKey(const QStringList &key)
{
    QStringList conditions;
    for (const QString &column : key)
        conditions += QStringLiteral("a.%1 = b.%1").arg(SqlSession::name(column));
    return conditions.join(QStringLiteral(" AND "));
}

/// Compares bytes: by the columns' collations, "a" and "A" may be equal.
QString sameRow(const PreviewTable &table)
{
    QStringList conditions;
    for (const PreviewColumn &column : table.columns)
        conditions +=
            QStringLiteral("BINARY a.%1 <=> BINARY b.%1").arg(SqlSession::name(column.name));
    return conditions.join(QStringLiteral(" AND "));
}

/// The row, with the texts of the other one where they are equal: there may be hundreds of
/// thousands of changes, most of them alike.
QStringList sharing(QStringList row, const QStringList &other)
{
    for (int i = 0; i < qMin(row.size(), other.size()); ++i) {
        if (row.at(i) == other.at(i) && row.at(i).isNull() == other.at(i).isNull())
            row[i] = other.at(i);
    }
    return row;
}

} // namespace

QString PreviewChange::cell(const char *column) const
{
    return row().value(table->indexOf(QString::fromLatin1(column)));
}

bool PreviewChange::changes(int column) const
{
    if (before.isEmpty() || after.isEmpty())
        return true;
    const QString &old = before.at(column);
    const QString &fresh = after.at(column);
    return old.isNull() != fresh.isNull() || old != fresh;
}

PreviewDiff::PreviewDiff(PreviewSchema &schema, const QSqlDatabase &server)
    : m_schema(schema)
    , m_server(server)
{
    m_server.prepareForCopying();
    m_server.run(QStringLiteral("USE ") + SqlSession::name(schema.name));
}

bool PreviewDiff::read()
{
    for (PreviewTable &table : m_schema.tables) {
        table.key = keyOf(m_server, table);
        if (table.key.isEmpty())
            compareWithoutKey(table);
        else
            compareByKey(table);
    }
    return !m_server.failed();
}

void PreviewDiff::compareByKey(const PreviewTable &table)
{
    const QString after = SqlSession::name(table.name);
    const QString before = PreviewCopy::baselineName(m_schema) + QLatin1Char('.') + after;
    const QString key = sameKey(table.key);
    const QString first = SqlSession::name(table.key.first());
    const int count = table.columns.size();
    PreviewPortions(m_server, table, table.key, QStringLiteral("b"))
        .forEachRow(QStringLiteral("SELECT %1 FROM %2 b LEFT JOIN %3 a ON %4")
                        .arg(table.expressions(QStringLiteral("b")), before, after, key),
                    QStringLiteral("a.%1 IS NULL").arg(first), [&](const QStringList &row) {
                        add(table, row, {});
                        return true;
                    });
    PreviewPortions(m_server, table, table.key, QStringLiteral("a"))
        .forEachRow(
            QStringLiteral("SELECT %1, %2, b.%6 IS NULL FROM %3 a LEFT JOIN %4 b ON %5")
                .arg(table.expressions(QStringLiteral("a")), table.expressions(QStringLiteral("b")),
                     table.changingRows(), before, key, first),
            QStringLiteral("b.%1 IS NULL OR NOT (%2)").arg(first, sameRow(table)),
            [&](const QStringList &row) {
                const bool isNew = row.last() == QLatin1String("1");
                add(table, isNew ? QStringList() : row.mid(count, count), row.mid(0, count));
                return true;
            });
}

void PreviewDiff::compareWithoutKey(const PreviewTable &table)
{
    // Such tables are queues and short lists: all rows are held in memory.
    struct Bag {
        QStringList row;
        qint64 surplus = 0; ///< how many more of it there are than before
    };
    QMap<QString, Bag> bags;
    const auto count = [&](const QString &name, qint64 step) {
        m_server.forEachRow(
            QStringLiteral("SELECT %1 FROM %2 t").arg(table.expressions(QStringLiteral("t")), name),
            [&](const QStringList &row) {
                Bag &bag = bags[table.tuple(row)];
                bag.row = row;
                bag.surplus += step;
                return true;
            });
    };
    const QString name = SqlSession::name(table.name);
    count(PreviewCopy::baselineName(m_schema) + QLatin1Char('.') + name, -1);
    count(table.changingRows(), 1);
    for (const Bag &bag : qAsConst(bags)) {
        for (qint64 i = bag.surplus; i < 0; ++i)
            add(table, bag.row, {});
        for (qint64 i = 0; i < bag.surplus; ++i)
            add(table, {}, bag.row);
    }
}

void PreviewDiff::add(const PreviewTable &table, const QStringList &before,
                      const QStringList &after)
{
    const PreviewChange last = m_changes.isEmpty() ? PreviewChange() : m_changes.constLast();
    m_changes.append(
        {&table, sharing(before, last.before), sharing(sharing(after, last.after), before)});
}

bool PreviewMoments::isNow(const PreviewChange &change, int column) const
{
    if (change.isDelete() || !change.changes(column))
        return false;
    const TepDbContract::Column *const known =
        TepDbContract::findColumn(change.table->name, change.table->columns.at(column).name);
    const qint64 value = change.after.at(column).toLongLong();
    return known != nullptr && known->written.isNow && value >= m_begin && value <= m_end;
}
