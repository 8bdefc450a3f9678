#include "mirovahrctl/preview/previewundo.h"

#include "cli/text.h"
#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewscript.h"
#include "mirovahrctl/preview/previewundocolumns.h"
#include "mirovahrctl/preview/previewundolimits.h"
#include "mirovahrctl/preview/previewundoplan.h"
#include "mirovahrctl/preview/previewundotable.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QDateTime>
#include <QIODevice>

#include <algorithm>

namespace {

/// Characters that describe a row.
constexpr int kLongestDescription = 400;

// Export (%1), database (%2), time (%3), what becomes of changed rows (%4).
constexpr char kHeading[] =
    "-- Takes back what a synchronisation with %1\n"
    "-- changes in the database %2, by a preview of %3.\n"
    "-- To be run after that synchronisation, on the same database:\n"
    "--\n"
    "--     mariadb %2 <this_file\n"
    "--\n"
    "%4"
    "-- When the file has run already, or there was no synchronisation, it changes nothing.\n";

constexpr char kAllOrNone[] =
    "-- When somebody has changed one of the rows since, nothing is taken back, and the message\n"
    "-- names the row. With TRUE in place of FALSE below, all other rows are taken back then.\n";

constexpr char kPartial[] =
    "-- When somebody has changed one of the rows since, all others are taken back, and the\n"
    "-- result names the row. With FALSE in place of TRUE below, nothing is taken back then.\n";

constexpr char kNotTakenBack[] = "--\n"
                                 "-- Not taken back:\n";

constexpr char kMakeRows[] = "DROP TEMPORARY TABLE IF EXISTS mirovahr_undo_rows;\n"
                             "CREATE TEMPORARY TABLE mirovahr_undo_rows (\n"
                             "    undo_row INT UNSIGNED NOT NULL PRIMARY KEY,\n"
                             "    kind VARCHAR(10) NOT NULL,\n"
                             "    area VARCHAR(10) NOT NULL,\n"
                             "    copies INT UNSIGNED NOT NULL,\n"
                             "    uid BIGINT UNSIGNED NULL,\n"
                             "    what VARCHAR(400) NOT NULL,\n"
                             "    state VARCHAR(10) NULL,\n"
                             "    is_calculated BOOLEAN NOT NULL DEFAULT FALSE,\n"
                             "    is_fetched BOOLEAN NOT NULL DEFAULT FALSE,\n"
                             "    is_concerned BOOLEAN NOT NULL DEFAULT FALSE)\n"
                             "    CHARACTER SET utf8mb4;\n";

constexpr char kMakePeople[] = "DROP TEMPORARY TABLE IF EXISTS mirovahr_undo_people;\n"
                               "CREATE TEMPORARY TABLE mirovahr_undo_people (\n"
                               "    previewed BIGINT UNSIGNED NOT NULL PRIMARY KEY,\n"
                               "    pid BIGINT UNSIGNED NOT NULL,\n"
                               "    uid BIGINT UNSIGNED NULL);\n";

constexpr char kDropOwn[] = "DROP TEMPORARY TABLE mirovahr_undo_people, mirovahr_undo_rows;\n";

constexpr char kBeginCompound[] =
    "DELIMITER //\n"
    "BEGIN NOT ATOMIC\n"
    "DECLARE v_locked BIGINT;\n"
    "DECLARE v_changed BIGINT;\n"
    "DECLARE v_written BIGINT;\n"
    "DECLARE v_message VARCHAR(128) CHARACTER SET utf8mb4;\n"
    "DECLARE EXIT HANDLER FOR SQLEXCEPTION BEGIN ROLLBACK; RESIGNAL; END;\n";

constexpr char kFindPeople[] =
    "-- New people, who may have other uids than in the preview\n"
    "UPDATE mirovahr_undo_people p JOIN `people` ON `people`.`pid` = p.pid SET p.uid = "
    "`people`.`uid`;\n";

// Of somebody in whom the synchronisation has changed nothing, nothing was queued, fetched or
// calculated for its sake: such people are not concerned.
constexpr char kFindConcerned[] =
    "UPDATE mirovahr_undo_rows r JOIN (SELECT DISTINCT o.uid FROM mirovahr_undo_rows o\n"
    "        WHERE o.area = 'plain' AND o.state IN ('written', 'changed')) p USING (uid)\n"
    "    SET r.is_concerned = TRUE;\n"
    "UPDATE mirovahr_undo_rows r SET r.state = 'before'\n"
    "    WHERE r.area = 'queue' AND NOT r.is_concerned;\n";

// The server takes at most 128 characters for a message.
constexpr char kDecide[] =
    "-- All or none\n"
    "SELECT COUNT(*) INTO v_changed FROM mirovahr_undo_rows r\n"
    "    WHERE r.area = 'plain' AND r.state = 'changed';\n"
    "IF v_changed > 0 AND NOT @mirovahr_undo_partial THEN\n"
    "    SELECT r.what AS `Changed since the synchronisation` FROM mirovahr_undo_rows r\n"
    "        WHERE r.area = 'plain' AND r.state = 'changed' ORDER BY r.undo_row;\n"
    "    SELECT LEFT(CONCAT('Nothing was taken back. Rows changed since: ', v_changed,\n"
    "        ', the first: ', r.what), 128) INTO v_message FROM mirovahr_undo_rows r\n"
    "        WHERE r.area = 'plain' AND r.state = 'changed' ORDER BY r.undo_row LIMIT 1;\n"
    "    SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = v_message;\n"
    "END IF;\n"
    "SELECT COUNT(*) INTO v_written FROM mirovahr_undo_rows r\n"
    "    WHERE r.area <> 'queue' AND r.state = 'written';\n";

constexpr char kReport[] =
    "SELECT t.result AS `Result` FROM (\n"
    "    SELECT 1 AS place, 0 AS undo_row, CONCAT('Rows taken back: ', COUNT(*)) AS result\n"
    "        FROM mirovahr_undo_rows r WHERE r.state = 'written'\n"
    "    UNION ALL SELECT 2, 0, CONCAT('Rows that were as before already: ', COUNT(*))\n"
    "        FROM mirovahr_undo_rows r WHERE r.state = 'before'\n"
    "    UNION ALL SELECT 3, r.undo_row, CONCAT('Left, changed since: ', r.what)\n"
    "        FROM mirovahr_undo_rows r WHERE r.area = 'plain' AND r.state = 'changed'\n"
    "    UNION ALL SELECT 4, MIN(r.undo_row), CONCAT('Left, calculated since: ', r.what)\n"
    "        FROM mirovahr_undo_rows r\n"
    "        WHERE r.is_concerned\n"
    "        AND (r.is_calculated OR r.area = 'calculated' AND r.state = 'changed')\n"
    "        GROUP BY r.what\n"
    "    UNION ALL SELECT 5, r.undo_row, CONCAT('Left, fetched since: ', r.what)\n"
    "        FROM mirovahr_undo_rows r WHERE r.is_concerned AND r.is_fetched\n"
    "    UNION ALL SELECT 6, r.undo_row, CONCAT('Left, queued again since: ', r.what)\n"
    "        FROM mirovahr_undo_rows r WHERE r.area = 'queue' AND r.state = 'changed') t\n"
    "    ORDER BY t.place, t.undo_row;\n";

constexpr char kEndCompound[] = "END //\n"
                                "DELIMITER ;\n";

// Such tables have no transactions, but locks: nobody writes between the checks and the changes.
constexpr char kLockTables[] =
    "SET @old_autocommit = @@SESSION.autocommit, SESSION autocommit = 0;\n"
    "LOCK TABLES %1;\n";
constexpr char kUnlockTables[] = "UNLOCK TABLES;\n"
                                 "SET SESSION autocommit = @old_autocommit;\n";

using UndoRow = PreviewUndoPlan::Row;
using UndoRows = PreviewUndoPlan::Rows;

QString kindWord(UndoRow::Kind kind)
{
    switch (kind) {
    case UndoRow::Kind::New:
        return QStringLiteral("new");
    case UndoRow::Kind::Changed:
        return QStringLiteral("changed");
    case UndoRow::Kind::Removed:
        break;
    }
    return QStringLiteral("removed");
}

/// The position of the column that says whom a row concerns; the size when there is none.
int columnOfUid(const PreviewTable &table)
{
    const auto found = std::find_if(
        table.columns.cbegin(), table.columns.cend(), [&table](const PreviewColumn &column) {
            return PreviewUndoColumns::holdsUid(table.name, column.name);
        });
    return static_cast<int>(found - table.columns.cbegin());
}

/// Which rows keep all others from being taken back: the plain ones.
QString areaWord(const QString &table)
{
    if (PreviewUndoColumns::isQueue(table))
        return QStringLiteral("queue");
    if (PreviewUndoColumns::isMarks(table))
        return QStringLiteral("marks");
    return PreviewUndoColumns::isCalculated(table) ? QStringLiteral("calculated")
                                                   : QStringLiteral("plain");
}

} // namespace

PreviewUndo::PreviewUndo(const PreviewSchema &schema, const PreviewMoments &moments,
                         const PreviewUndoPlan &plan)
    : m_schema(schema)
    , m_moments(moments)
    , m_plan(plan)
{
}

std::optional<PreviewRefusal> PreviewUndo::refusal() const
{
    if (!m_schema.serverVersion.contains(QLatin1String("MariaDB"))) {
        return PreviewRefusal{
            ExitStatus::Usage,
            Text::tr("--undo writes statements of MariaDB, and the site's server is version "
                     "%1")
                .arg(m_schema.serverVersion)};
    }
    const QStringList &keyless = m_plan.tablesWithoutKey();
    if (keyless.isEmpty())
        return std::nullopt;
    return PreviewRefusal{ExitStatus::ContractBroken,
                          Text::tr("The differences cannot be taken back, since no key "
                                   "identifies the rows of %1. Run check-db for details")
                              .arg(keyless.join(QStringLiteral(", ")))};
}

void PreviewUndo::write(const QString &exportFile, Extent extent, QIODevice &out) const
{
    out.write(heading(exportFile, extent).toUtf8());
    out.write(PreviewScript::kExactValues);
    std::vector<PreviewUndoTable> tables;
    for (const UndoRows &rows : m_plan.tables())
        tables.emplace_back(rows, static_cast<int>(tables.size()) + 1, m_schema.copiedAt);
    writeRows(out);
    writePeople(out);
    for (const PreviewUndoTable &table : tables) {
        out.write(table.creation().toUtf8());
        table.writeRows(m_moments, out);
    }
    // From here on the values go from table to table, and triggers fire.
    out.write(PreviewScript::kOwnTimeZone);
    out.write(compound(tables).toUtf8());
    for (const PreviewUndoTable &table : tables)
        out.write(table.disposal().toUtf8());
    out.write(kDropOwn);
    out.write(PreviewScript::kOwnSqlMode);
}

QString PreviewUndo::heading(const QString &exportFile, Extent extent) const
{
    const bool isPartial = extent == Extent::Partial;
    QString text =
        QString::fromLatin1(kHeading).arg(exportFile.simplified(), m_schema.name.simplified(),
                                          Moment::fileText(QDateTime::currentDateTime()),
                                          QString::fromLatin1(isPartial ? kPartial : kAllOrNone));
    const QStringList sentences = undoLimits(m_schema, m_plan);
    if (!sentences.isEmpty())
        text += QString::fromLatin1(kNotTakenBack);
    for (const QString &sentence : sentences)
        text += QStringLiteral("--   - %1\n").arg(sentence.simplified());
    return text
        + QStringLiteral("SET @mirovahr_undo_partial = %1;\n")
              .arg(isPartial ? QStringLiteral("TRUE") : QStringLiteral("FALSE"));
}

void PreviewUndo::writeRows(QIODevice &out) const
{
    out.write(kMakeRows);
    PreviewScript::Inserts inserts(QStringLiteral("mirovahr_undo_rows"),
                                   QStringLiteral("undo_row, kind, area, copies, uid, what"), out);
    for (const UndoRows &rows : m_plan.tables()) {
        const QString area = areaWord(rows.table->name);
        const int uid = columnOfUid(*rows.table);
        for (const UndoRow &row : rows.rows) {
            inserts.add(QStringLiteral("(%1, '%2', '%3', %4, %5, %6)")
                            .arg(QString::number(row.number), kindWord(row.kind), area,
                                 QString::number(row.copies),
                                 row.change->row().value(uid, QStringLiteral("NULL")),
                                 SqlSession::literal(row.what.left(kLongestDescription))));
        }
    }
}

void PreviewUndo::writePeople(QIODevice &out) const
{
    out.write(kMakePeople);
    PreviewScript::Inserts inserts(QStringLiteral("mirovahr_undo_people"),
                                   QStringLiteral("previewed, pid"), out);
    for (const PreviewUndoPlan::NewPerson &person : m_plan.newPeople())
        inserts.add(QStringLiteral("(%1, %2)").arg(person.uid, person.pid));
}

QString PreviewUndo::compound(const std::vector<PreviewUndoTable> &tables) const
{
    QString preparations;
    QString changes;
    QString insertions;
    const bool hasNewPeople = !m_plan.newPeople().isEmpty();
    for (const PreviewUndoTable &table : tables) {
        preparations += hasNewPeople ? table.translation() : QString();
        preparations += table.locking() + table.assessment();
        changes += table.deletion();
        insertions.prepend(table.insertion()); // first the rows to which others refer
    }
    changes += insertions;
    for (const PreviewUndoTable &table : tables)
        changes += table.update();
    const bool hasTransactions = m_plan.tablesWithoutTransactions().isEmpty();
    const QString text = QString::fromLatin1(kBeginCompound)
        + (hasTransactions ? QStringLiteral("START TRANSACTION;\n") : QString())
        + (hasNewPeople ? QString::fromLatin1(kFindPeople) : QString()) + preparations
        + QString::fromLatin1(kFindConcerned) + QString::fromLatin1(kDecide) + changes
        + QStringLiteral("COMMIT;\n") + QString::fromLatin1(kReport)
        + QString::fromLatin1(kEndCompound);
    return hasTransactions ? text : lockTables() + text + QString::fromLatin1(kUnlockTables);
}

QString PreviewUndo::lockTables() const
{
    QStringList locks;
    for (const UndoRows &rows : m_plan.tables())
        locks += QStringLiteral("%1 WRITE").arg(SqlSession::name(rows.table->name));
    if (m_plan.find("term") && !m_plan.find("term_sync"))
        locks += QStringLiteral("`term_sync` WRITE");
    return QString::fromLatin1(kLockTables).arg(locks.join(QStringLiteral(", ")));
}
