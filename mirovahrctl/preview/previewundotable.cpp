#include "mirovahrctl/preview/previewundotable.h"

#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewscript.h"
#include "mirovahrctl/preview/previewundocolumns.h"

namespace {

constexpr char kCreateTemporary[] =
    "DROP TEMPORARY TABLE IF EXISTS %1;\n"
    "CREATE TEMPORARY TABLE %1 (undo_row INT UNSIGNED NOT NULL PRIMARY KEY%4)\n"
    "    SELECT 0 AS undo_row, %2 FROM %3 LIMIT 0;\n";

/// By which the rows of a queue are found, in the order of the queue: of one terminal there may be
/// thousands.
constexpr char kQueueIndex[] = ", KEY (`tid`, `ref_id`)";

// What concerns a new person whom the synchronisation has not created is as before.
constexpr char kTranslate[] =
    "UPDATE mirovahr_undo_rows r JOIN %1 t USING (undo_row)\n"
    "    JOIN mirovahr_undo_people p ON p.previewed = t.%2\n"
    "    SET r.state = 'before' WHERE r.kind = 'new' AND p.uid IS NULL;\n"
    "UPDATE %1 t SET t.%2 = IFNULL((SELECT p.uid FROM mirovahr_undo_people p WHERE p.previewed = "
    "t.%2), t.%2);\n";

constexpr char kLock[] = "SELECT COUNT(*) INTO v_locked FROM %1 a STRAIGHT_JOIN %2 ON %3 FOR "
                         "UPDATE;\n";

constexpr char kAssessNew[] = "UPDATE mirovahr_undo_rows r%1\n"
                              "    LEFT JOIN %2 ON %3\n"
                              "    SET r.state = CASE\n"
                              "        WHEN %4 IS NULL THEN 'before'\n"
                              "        WHEN %5 THEN 'written'\n"
                              "        ELSE 'changed' END\n"
                              "    WHERE r.kind = 'new' AND r.state IS NULL;\n";

constexpr char kLockQueue[] =
    "SELECT COUNT(*) INTO v_locked FROM %2 STRAIGHT_JOIN %1 a ON %3 FOR UPDATE;\n";

// Who has fetched a row has taken it away. Of more rows than the synchronisation has queued, nobody
// knows which are its own.
constexpr char kAssessQueue[] =
    "UPDATE mirovahr_undo_rows r JOIN %1 USING (undo_row) LEFT JOIN (\n"
    "        SELECT a.undo_row, COUNT(*) AS found FROM %2 STRAIGHT_JOIN %1 a ON %3\n"
    "        GROUP BY a.undo_row) f USING (undo_row)\n"
    "    SET r.is_fetched = IFNULL(f.found, 0) < r.copies,\n"
    "        r.state = CASE\n"
    "        WHEN f.found IS NULL THEN 'before'\n"
    "        WHEN f.found <= r.copies THEN 'written'\n"
    "        ELSE 'changed' END\n"
    "    WHERE r.state IS NULL;\n";

constexpr char kDeleteQueued[] =
    "DELETE %2 FROM %2 STRAIGHT_JOIN %1 a ON %3\n"
    "    STRAIGHT_JOIN mirovahr_undo_rows r ON r.undo_row = a.undo_row\n"
    "    WHERE r.state = 'written';\n";

constexpr char kAssessDays[] = "UPDATE mirovahr_undo_rows r%1\n"
                               "    JOIN %2 ON %3\n"
                               "    SET r.state = 'changed'\n"
                               "    WHERE r.kind = 'new' AND r.state = 'before';\n";

constexpr char kAssessChanged[] = "UPDATE mirovahr_undo_rows r%1\n"
                                  "    LEFT JOIN %2 ON %3\n"
                                  "    SET r.state = CASE\n"
                                  "        WHEN %4 IS NULL THEN 'changed'\n"
                                  "        WHEN %5 THEN 'before'\n"
                                  "        WHEN %6 THEN 'written'\n"
                                  "        ELSE 'changed' END\n"
                                  "    WHERE r.kind = 'changed';\n";

constexpr char kAssessCalculation[] = "UPDATE mirovahr_undo_rows r%1\n"
                                      "    JOIN %2 ON %3\n"
                                      "    SET r.is_calculated = TRUE\n"
                                      "    WHERE r.kind = 'changed' AND (%4);\n";

constexpr char kAssessRemoved[] = "UPDATE mirovahr_undo_rows r%1\n"
                                  "    LEFT JOIN %2 ON %3\n"
                                  "    SET r.state = CASE\n"
                                  "        WHEN %4 IS NULL THEN 'written'\n"
                                  "        WHEN %5 THEN 'before'\n"
                                  "        ELSE 'changed' END\n"
                                  "    WHERE r.kind = 'removed';\n";

constexpr char kDelete[] = "DELETE %1 FROM mirovahr_undo_rows r%2\n"
                           "    JOIN %1 ON %3\n"
                           "    WHERE r.kind = 'new' AND r.state = 'written';\n";

constexpr char kInsert[] = "INSERT INTO %1 (%2)\n"
                           "    SELECT %3 FROM mirovahr_undo_rows r%4\n"
                           "    WHERE r.kind = 'removed' AND r.state = 'written';\n";

constexpr char kUpdate[] = "UPDATE mirovahr_undo_rows r%1\n"
                           "    JOIN %2 ON %3\n"
                           "    SET %4\n"
                           "    WHERE r.kind = 'changed' AND r.state = 'written';\n";

// Others may have marked the terminal for what they have queued since.
constexpr char kUnmark[] =
    "UPDATE mirovahr_undo_rows r%1\n"
    "    JOIN %2 ON %3\n"
    "    SET %2.`syn` = %2.`syn` & ~(a.`syn` & ~b.`syn`)\n"
    "    WHERE v_written > 0 AND NOT EXISTS (SELECT 1 FROM `term_sync` WHERE `term_sync`.`tid` = "
    "%2.`tid`\n"
    "        AND `term_sync`.`created` >= %4 AND `term_sync`.`flags` & a.`syn` & ~b.`syn`);\n";

QString sql(const char *text)
{
    return QString::fromLatin1(text);
}

QString conjunction(const QStringList &conditions)
{
    return conditions.join(QStringLiteral("\n            AND "));
}

bool isText(const PreviewColumn &column)
{
    return column.kind == PreviewColumn::Kind::Text || column.kind == PreviewColumn::Kind::Bytes;
}

} // namespace

PreviewUndoTable::PreviewUndoTable(const PreviewUndoPlan::Rows &rows, int number, qint64 since)
    : m_rows(rows)
    , m_table(*rows.table)
    , m_name(SqlSession::name(rows.table->name))
    , m_number(number)
    , m_since(since)
{
}

QString PreviewUndoTable::creation() const
{
    QString text;
    const QVector<Side> own = sides();
    for (const Side side : own)
        text += sql(kCreateTemporary)
                    .arg(temporary(side), m_table.columnList(), m_name,
                         isQueue() ? sql(kQueueIndex) : QString());
    return text;
}

QString PreviewUndoTable::disposal() const
{
    QString text;
    const QVector<Side> own = sides();
    for (const Side side : own)
        text += QStringLiteral("DROP TEMPORARY TABLE %1;\n").arg(temporary(side));
    return text;
}

void PreviewUndoTable::writeRows(const PreviewMoments &moments, QIODevice &out) const
{
    const QVector<Side> own = sides();
    for (const Side side : own)
        writeRows(side, moments, out);
}

void PreviewUndoTable::writeRows(Side side, const PreviewMoments &moments, QIODevice &out) const
{
    PreviewScript::Inserts inserts(temporary(side),
                                   QStringLiteral("undo_row, ") + m_table.columnList(), out);
    for (const PreviewUndoPlan::Row &row : m_rows.rows) {
        QStringList cells = side == Side::Before ? row.change->before : row.change->after;
        if (cells.isEmpty())
            continue;
        for (int i = 0; i < cells.size() && side == Side::After; ++i) {
            if (moments.isNow(*row.change, i))
                cells[i] = QString::number(m_since);
        }
        inserts.add(QStringLiteral("(%1, ").arg(row.number) + m_table.tuple(cells).mid(1));
    }
}

QString PreviewUndoTable::translation() const
{
    QString text;
    const QVector<Side> own = sides();
    const QStringList columns = uidColumns();
    for (const Side side : own) {
        for (const QString &column : columns)
            text += sql(kTranslate).arg(temporary(side), SqlSession::name(column));
    }
    return text;
}

QString PreviewUndoTable::locking() const
{
    if (isQueue())
        return forQueue(kLockQueue);
    return sides().contains(Side::After)
        ? sql(kLock).arg(temporary(Side::After), m_name, isSameRow(Side::After))
        : QString();
}

QString PreviewUndoTable::assessment() const
{
    if (PreviewUndoColumns::isMarks(m_table.name))
        return QString();
    if (isQueue())
        return forQueue(kAssessQueue);
    QString text;
    if (m_rows.has(Kind::New))
        text += assessNew() + assessDays();
    if (m_rows.has(Kind::Changed))
        text += assessChanged() + assessCalculation();
    if (m_rows.has(Kind::Removed))
        text += assessRemoved();
    return text;
}

QString PreviewUndoTable::deletion() const
{
    if (isQueue())
        return forQueue(kDeleteQueued);
    return m_rows.has(Kind::New)
        ? sql(kDelete).arg(m_name, joinTemporary(Side::After), isSameRow(Side::After))
        : QString();
}

QString PreviewUndoTable::insertion() const
{
    if (!m_rows.has(Kind::Removed))
        return QString();
    QStringList cells;
    for (const PreviewColumn &column : m_table.columns)
        cells += QStringLiteral("b.%1").arg(SqlSession::name(column.name));
    return sql(kInsert).arg(m_name, m_table.columnList(), cells.join(QStringLiteral(", ")),
                            joinTemporary(Side::Before));
}

QString PreviewUndoTable::update() const
{
    if (!m_rows.has(Kind::Changed))
        return QString();
    if (PreviewUndoColumns::isMarks(m_table.name)) {
        return sql(kUnmark).arg(joinChanged(), m_name, isSameRow(Side::After),
                                QString::number(m_since));
    }
    QStringList assignments;
    for (const PreviewColumn &column : m_table.columns) {
        if (m_rows.key.contains(column.name))
            continue;
        const QString old = QStringLiteral("b.%1").arg(SqlSession::name(column.name));
        const QString own = cell(column.name);
        assignments += QStringLiteral("%1 = %2").arg(
            own,
            PreviewUndoColumns::isCalculated(m_table.name, column.name)
                ? QStringLiteral("IF(%1, %2, %3)").arg(isCell(column, Side::After), old, own)
                : old);
    }
    return sql(kUpdate).arg(joinChanged(), m_name, isSameRow(Side::After),
                            assignments.join(QStringLiteral(",\n        ")));
}

QString PreviewUndoTable::assessNew() const
{
    return sql(kAssessNew)
        .arg(joinTemporary(Side::After), m_name, isSameRow(Side::After), cell(m_rows.key.first()),
             isAsWritten(Kind::New));
}

/// Finds rows that a synchronisation on a later day has added instead.
QString PreviewUndoTable::assessDays() const
{
    QStringList conditions;
    bool hasDay = false;
    for (const QString &column : m_rows.key) {
        const bool isDay = PreviewUndoColumns::isDay(m_table.name, column);
        hasDay = hasDay || isDay;
        conditions += QStringLiteral("%1 %2 a.%3")
                          .arg(cell(column), isDay ? QStringLiteral(">") : QStringLiteral("="),
                               SqlSession::name(column));
    }
    return hasDay
        ? sql(kAssessDays).arg(joinTemporary(Side::After), m_name, conjunction(conditions))
        : QString();
}

QString PreviewUndoTable::assessChanged() const
{
    return sql(kAssessChanged)
        .arg(joinChanged(), m_name, isSameRow(Side::After), cell(m_rows.key.first()),
             isAsBefore(Kind::Changed), isAsWritten(Kind::Changed));
}

/// Finds rows in which something was calculated since, and so is not taken back.
QString PreviewUndoTable::assessCalculation() const
{
    QStringList conditions;
    for (const PreviewColumn &column : m_table.columns) {
        if (PreviewUndoColumns::isCalculated(m_table.name, column.name)) {
            conditions += QStringLiteral("NOT %1 AND NOT %2 AND NOT a.%3 <=> b.%3")
                              .arg(isCell(column, Side::After), isCell(column, Side::Before),
                                   SqlSession::name(column.name));
        }
    }
    return conditions.isEmpty() ? QString()
                                : sql(kAssessCalculation)
                                      .arg(joinChanged(), m_name, isSameRow(Side::After),
                                           conditions.join(QStringLiteral("\n            OR ")));
}

QString PreviewUndoTable::assessRemoved() const
{
    return sql(kAssessRemoved)
        .arg(joinTemporary(Side::Before), m_name, isSameRow(Side::Before), cell(m_rows.key.first()),
             isAsBefore(Kind::Removed));
}

bool PreviewUndoTable::isQueue() const
{
    return m_rows.key.isEmpty();
}

QString PreviewUndoTable::forQueue(const char *statement) const
{
    return sql(statement).arg(temporary(Side::After), m_name, isAsWritten(Kind::New));
}

QString PreviewUndoTable::isSameRow(Side side) const
{
    QStringList conditions;
    for (const QString &column : m_rows.key) {
        conditions +=
            QStringLiteral("%1 = %2.%3")
                .arg(cell(column), side == Side::Before ? QStringLiteral("b") : QStringLiteral("a"),
                     SqlSession::name(column));
    }
    return conditions.join(QStringLiteral(" AND "));
}

bool PreviewUndoTable::isPlain(const PreviewColumn &column) const
{
    return PreviewUndoColumns::isKnown(m_table.name, column.name)
        && !PreviewUndoColumns::isCalculated(m_table.name, column.name);
}

QString PreviewUndoTable::isAsBefore(Kind kind) const
{
    QStringList conditions;
    for (const PreviewColumn &column : m_table.columns) {
        const bool isCalculated = PreviewUndoColumns::isCalculated(m_table.name, column.name);
        if (kind == Kind::Removed || isPlain(column))
            conditions += isCell(column, Side::Before);
        else
            conditions += isCalculated ? isNotWritten(column) : isUntouched(column);
    }
    return conjunction(conditions);
}

QString PreviewUndoTable::isAsWritten(Kind kind) const
{
    QStringList conditions;
    for (const PreviewColumn &column : m_table.columns) {
        const bool isCalculated = PreviewUndoColumns::isCalculated(m_table.name, column.name);
        if (isPlain(column))
            conditions += isAsWritten(column, kind);
        else if (kind == Kind::Changed && !isCalculated)
            conditions += isUntouched(column);
    }
    return conjunction(conditions);
}

QString PreviewUndoTable::isAsWritten(const PreviewColumn &column, Kind kind) const
{
    const QString name = SqlSession::name(column.name);
    QStringList ways{isCell(column, Side::After)};
    if (kind == Kind::Changed)
        ways += isCell(column, Side::Before);
    if (PreviewUndoColumns::isMoment(m_table.name, column.name)) {
        const QString isLater = QStringLiteral("a.%1 = %2 AND %3 > %2")
                                    .arg(name, QString::number(m_since), cell(column.name));
        ways += kind == Kind::Changed ? isLater + QStringLiteral(" AND NOT a.%1 <=> b.%1").arg(name)
                                      : isLater;
    }
    return ways.size() == 1 ? ways.first()
                            : QStringLiteral("(%1)").arg(ways.join(QStringLiteral(" OR ")));
}

/// The cell is as before, or somebody else has changed it.
QString PreviewUndoTable::isNotWritten(const PreviewColumn &column) const
{
    return QStringLiteral("(%1 OR NOT %2)")
        .arg(isCell(column, Side::Before), isCell(column, Side::After));
}

/// The cell is as before, or the synchronisation has changed it to whatever.
QString PreviewUndoTable::isUntouched(const PreviewColumn &column) const
{
    return QStringLiteral("(%1 OR NOT a.%2 <=> b.%2)")
        .arg(isCell(column, Side::Before), SqlSession::name(column.name));
}

/// Compares texts byte by byte: by their collations, "a" and "A" may be equal.
QString PreviewUndoTable::isCell(const PreviewColumn &column, Side side) const
{
    const QString other = (side == Side::Before ? QStringLiteral("b.") : QStringLiteral("a."))
        + SqlSession::name(column.name);
    return isText(column) ? QStringLiteral("BINARY %1 <=> BINARY %2").arg(cell(column.name), other)
                          : QStringLiteral("%1 <=> %2").arg(cell(column.name), other);
}

QVector<PreviewUndoTable::Side> PreviewUndoTable::sides() const
{
    QVector<Side> sides;
    if (m_rows.has(Kind::Changed) || m_rows.has(Kind::Removed))
        sides += Side::Before;
    if (m_rows.has(Kind::Changed) || m_rows.has(Kind::New))
        sides += Side::After;
    return sides;
}

QStringList PreviewUndoTable::uidColumns() const
{
    QStringList names;
    for (const PreviewColumn &column : m_table.columns) {
        if (PreviewUndoColumns::holdsUid(m_table.name, column.name))
            names += column.name;
    }
    return names;
}

QString PreviewUndoTable::temporary(Side side) const
{
    return QStringLiteral("mirovahr_undo_%1_%2")
        .arg(side == Side::Before ? QStringLiteral("before") : QStringLiteral("after"),
             QString::number(m_number));
}

QString PreviewUndoTable::joinTemporary(Side side) const
{
    return QStringLiteral("\n    JOIN %1 %2 USING (undo_row)")
        .arg(temporary(side), side == Side::Before ? QStringLiteral("b") : QStringLiteral("a"));
}

QString PreviewUndoTable::joinChanged() const
{
    return joinTemporary(Side::Before) + joinTemporary(Side::After);
}

QString PreviewUndoTable::cell(const QString &column) const
{
    return m_name + QLatin1Char('.') + SqlSession::name(column);
}
