#include "tests/worker/support/statechanges.h"

#include <QDateTime>

namespace {

using Row = QMap<QString, QString>;

/// The key columns of a table; none where rows may repeat.
QStringList keyOf(const QString &table)
{
    static const QMap<QString, QStringList> keys = {
        {"admins", {"aid"}},
        {"admins_people", {"aid", "uid"}},
        {"atten", {"uid", "date"}},
        {"brape", {"bid", "uid"}},
        {"branches", {"bid"}},
        {"funds_move", {"uid", "fid", "day", "type"}},
        {"groups_month", {"uid", "month"}},
        {"groups_plan", {"uid", "since"}},
        {"people", {"uid"}},
        {"people_pam", {"uid"}},
        {"people_term", {"tid", "uid"}},
        {"term", {"tid"}},
        {"vars", {"name"}},
    };
    return keys.value(table);
}

bool isMoment(const QString &table, const QString &column)
{
    return column == "created" || column == "edited" || (table == "brape" && column == "since");
}

bool isTimestamp(const QString &table, const QString &column)
{
    static const QStringList columns = {"begin", "end", "rsBegin", "rsEnd", "lastCalc",
                                        "date",  "day", "created", "edited"};
    return columns.contains(column) || isMoment(table, column);
}

QString day(qint64 seconds)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(seconds);
    return time.toString(time.time() == QTime(0, 0) ? "yyyy-MM-dd" : "yyyy-MM-dd hh:mm:ss");
}

QString columnOf(const QString &cell)
{
    return cell.section('=', 0, 0);
}

QString valueOf(const QString &cell)
{
    return cell.section('=', 1);
}

QString keyText(const QString &table, const QStringList &row)
{
    const QStringList key = keyOf(table);
    QStringList cells;
    for (const QString &cell : row) {
        if (key.isEmpty() || key.contains(columnOf(cell)))
            cells += cell;
    }
    return cells.join(' ');
}

/// The cells in which two rows differ, as "column old -> new".
QStringList differences(const QStringList &before, const QStringList &after)
{
    QStringList texts;
    for (int i = 0; i < before.size(); ++i) {
        if (before[i] != after[i]) {
            texts += columnOf(before[i]) + ' ' + valueOf(before[i]) + " -> " + valueOf(after[i]);
        }
    }
    return texts;
}

QStringList changesOf(const QString &table, TableRows before, const TableRows &after)
{
    QStringList lines;
    for (const QStringList &row : after) {
        if (before.removeOne(row))
            continue;
        const QString key = keyText(table, row);
        const auto old = std::find_if(before.begin(), before.end(), [&](const QStringList &other) {
            return keyText(table, other) == key;
        });
        if (old == before.end() || keyOf(table).isEmpty()) {
            lines += table + " + " + row.join(' ');
            continue;
        }
        lines += table + ' ' + key + ": " + differences(*old, row).join(", ");
        before.erase(old);
    }
    for (const QStringList &row : before)
        lines += table + " - " + row.join(' ');
    return lines;
}

} // namespace

StateChanges::StateChanges(TestDatabase &db)
    : m_db(db)
{
    start();
}

void StateChanges::start()
{
    m_begin = QDateTime::currentSecsSinceEpoch();
    m_before = state();
}

QStringList StateChanges::lines()
{
    return between(m_before, state());
}

QStringList StateChanges::between(const DatabaseState &before, const DatabaseState &after)
{
    QStringList lines;
    for (auto it = after.cbegin(); it != after.cend(); ++it)
        lines += changesOf(it.key(), before.value(it.key()), it.value());
    lines.sort();
    return lines;
}

DatabaseState StateChanges::state() const
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    DatabaseState state = m_db.dumpAll();
    for (auto it = state.begin(); it != state.end(); ++it) {
        for (QStringList &row : it.value()) {
            for (QString &cell : row) {
                const QString column = columnOf(cell);
                const qint64 seconds = valueOf(cell).toLongLong();
                if (seconds == 0 || !isTimestamp(it.key(), column))
                    continue;
                const bool isNow = seconds >= m_begin && seconds <= now;
                cell = column + '='
                    + (isNow && isMoment(it.key(), column) ? QString("now") : day(seconds));
            }
        }
    }
    return state;
}

QStringList sorted(QStringList lines)
{
    lines.sort();
    return lines;
}
