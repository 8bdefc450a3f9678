#include "db/tepdbcontract.h"
#include "tests/mirovahrctl/preview/randomsite.h"
#include "tests/mirovahrctl/preview/undobench.h"
#include "tests/support/environmentnumber.h"
#include "tests/support/programrun.h"
#include "tests/worker/support/middayzone.h"
#include "worker/schedule.h"

#include <QDateTime>
#include <QSet>
#include <QTest>

#include <iterator>
#include <random>

namespace {

/// How many databases are tested, and the first seed.
const char kCount[] = "MIROVAHR_UNDO_CASES";
const char kSeed[] = "MIROVAHR_UNDO_SEED";
constexpr uint kQuickCount = 4;
/// They run in turn, each on the database as the previous one left it.
constexpr int kExports = 3;

/// The triggers of random sites write here.
const QString kHistory = QStringLiteral("history");

/// How somebody changes a row: in a column that the synchronisation writes, or in another one.
struct Disturbance {
    const char *table;
    const char *key;
    const char *column;
    const char *value;
};

constexpr Disturbance kDisturbances[] = {
    {"people", "uid", "phone", "'+421'"},
    {"brape", "bid uid", "since", "2"},
    {"groups_plan", "uid since", "gid", "gid + 1000"},
    {"people_pam", "uid", "id", "id + 1000"},
    {"funds_move", "uid fid day type", "value", "value + 1000"},
    {"admins_people", "aid uid", "request", "9"},
};

/// "uid=4 date=1" for these columns of a row.
QStringList cellsOf(const QStringList &row, const char *columns)
{
    const QStringList names = QString(columns).split(' ');
    QStringList cells;
    for (const QString &cell : row) {
        if (names.contains(cell.section('=', 0, 0)))
            cells += cell;
    }
    return cells;
}

/// The rows with the same cells in these columns.
TableRows rowsWith(const TableRows &rows, const QStringList &cells, const char *columns)
{
    TableRows found;
    for (const QStringList &row : rows) {
        if (cellsOf(row, columns) == cells)
            found += row;
    }
    return found;
}

} // namespace

/// For random databases and exports: what a real synchronisation has changed, the statements of
/// preview --undo take back.
class TestPreviewUndoRandom : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void everythingIsTakenBack_data();
    void everythingIsTakenBack();
    void everyTableWasTakenBack();

private:
    TestDatabase &site() { return m_bench.site(); }
    /// Makes it one of the sites that differ in their tables.
    void vary();
    /// Somebody else writes between the preview and the synchronisation.
    void writeBetween();
    void tryExport();
    /// Somebody changes a row that the synchronisation has changed. What differs from the state
    /// before then, for good; empty when there is no such row.
    QString disturb(const DatabaseState &before);
    /// Sees that all or nothing is taken back, and lets the next run take back all but that row.
    void refuse();
    /// The tables in which no trigger writes.
    DatabaseState state();

    int draw(int count) { return static_cast<int>(m_random() % static_cast<quint32>(count)); }

    UndoBench m_bench;
    std::mt19937 m_random;
    QSet<QString> m_tables; ///< that have been taken back so far
    int m_disturbed = 0;
    bool m_hasLeftBehind = false; ///< rows that somebody who was deleted has left behind
};

void TestPreviewUndoRandom::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(site().errorString()));
}

void TestPreviewUndoRandom::everythingIsTakenBack_data()
{
    addSeeds(kCount, kQuickCount, kSeed);
}

void TestPreviewUndoRandom::everythingIsTakenBack()
{
    QFETCH(quint32, seed);
    site().reset();
    m_random.seed(seed);
    RandomSite randomSite(seed);
    randomSite.fill(site());
    m_hasLeftBehind = draw(2) == 0;
    if (m_hasLeftBehind)
        randomSite.fillLeftBehind(site());
    m_bench.writeIni(randomSite.ini());
    vary();
    for (int i = 0; i < kExports && !QTest::currentTestFailed(); ++i) {
        m_bench.exportFile().writeBytes(randomSite.exportContent(
            i % 2 == 0 ? RandomSite::Texts::Harmless : RandomSite::Texts::Any));
        tryExport();
    }
}

void TestPreviewUndoRandom::vary()
{
    site().run(QStringLiteral("SET GLOBAL sql_mode = '%1'")
                   .arg(draw(3) == 0 ? "NO_BACKSLASH_ESCAPES" : "STRICT_TRANS_TABLES"));
    switch (draw(4)) {
    case 0:
        site().removeOwnNumbers();
        break;
    case 1:
        site().addOwnNumbers();
        break;
    case 2:
        for (const char *table : {"people", "brape", "funds_move", "vars"})
            site().run(QStringLiteral("ALTER TABLE %1 ENGINE=MyISAM").arg(table));
        break;
    default:
        break;
    }
}

void TestPreviewUndoRandom::writeBetween()
{
    for (int people = draw(3); people > 0; --people) {
        site().run("INSERT INTO people (pid, pamId) SELECT n, CONCAT(n DIV 10, '.', n MOD 10) FROM "
                   "(SELECT GREATEST(MAX(pid), 900000000) + 1 AS n FROM people) next");
        site().run("INSERT INTO brape (bid, uid, since) SELECT 1, MAX(uid), UNIX_TIMESTAMP() FROM "
                   "people");
    }
}

void TestPreviewUndoRandom::tryExport()
{
    // A row that the next synchronisation writes again changes then, in whatever second.
    site().run("UPDATE people SET created = 1, edited = 1");
    site().run("UPDATE brape SET since = 1");
    QCOMPARE(m_bench.writeUndo(draw(2) == 0 ? QStringList() : QStringList{"--all-rows"}),
             QString());
    // Of rows that wait for another uid than in the preview, the preview knows nothing.
    if (!m_hasLeftBehind)
        writeBetween();
    // An ordinary synchronisation may handle several lines of one person otherwise.
    site().run(QStringLiteral("REPLACE INTO vars VALUES ('%1', '1')").arg(Schedule::kForceSyncKey));
    const DatabaseState before = state();
    const TableRows history = site().dumpAll()[kHistory];
    QCOMPARE(m_bench.synchroniseSite(), QString());
    const DatabaseState synchronised = state();
    for (auto table = before.begin(); table != before.end(); ++table) {
        if (*table != synchronised[table.key()])
            m_tables += table.key();
    }
    const QString changed = draw(2) == 0 ? disturb(before) : QString();
    if (!changed.isEmpty())
        refuse();
    ProgramRun client;
    m_bench.undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(TestDatabase::difference(before, state()), changed);
    QVERIFY2(client.output().count("\nLeft") == (changed.isEmpty() ? 0 : 1),
             client.report().constData());
    // What triggers have written before is still there.
    const TableRows historyAfterwards = site().dumpAll()[kHistory];
    for (const QStringList &row : history)
        QVERIFY2(historyAfterwards.contains(row), qPrintable(row.join(' ')));
}

QString TestPreviewUndoRandom::disturb(const DatabaseState &before)
{
    const DatabaseState now = state();
    const int count = std::size(kDisturbances);
    const int first = draw(count);
    for (int i = 0; i < count; ++i) {
        const Disturbance &how = kDisturbances[(first + i) % count];
        TableRows candidates = now[how.table];
        for (const QStringList &row : before[how.table])
            candidates.removeOne(row);
        if (candidates.isEmpty())
            continue;
        const QStringList cells = cellsOf(candidates[draw(candidates.size())], how.key);
        site().run(QStringLiteral("UPDATE %1 SET %2 = %3 WHERE %4")
                       .arg(how.table, how.column, how.value, cells.join(" AND ")));
        const auto rowOf = [&](const DatabaseState &state) {
            return DatabaseState{{how.table, rowsWith(state[how.table], cells, how.key)}};
        };
        ++m_disturbed;
        return TestDatabase::difference(rowOf(before), rowOf(state()));
    }
    return QString();
}

void TestPreviewUndoRandom::refuse()
{
    const DatabaseState disturbed = site().dumpAll();
    ProgramRun client;
    m_bench.undo(client);
    COMPARE_STATUS(client, 1);
    QCOMPARE(TestDatabase::difference(disturbed, site().dumpAll()), QString());
    m_bench.replaceUndoText(m_bench.undoText().replace("SET @mirovahr_undo_partial = FALSE;",
                                                       "SET @mirovahr_undo_partial = TRUE;"));
}

DatabaseState TestPreviewUndoRandom::state()
{
    DatabaseState state = m_bench.state();
    state.remove(kHistory);
    return state;
}

void TestPreviewUndoRandom::everyTableWasTakenBack()
{
    // Also for a single database, to reproduce a failure.
    QVERIFY(m_tables.contains("people"));
    if (environmentNumber(kCount, kQuickCount) < kQuickCount)
        return;
    QVERIFY(m_disturbed > 0);
    QSet<QString> missing;
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        if (TepDbContract::isWritten(table.name) && !m_tables.contains(table.name))
            missing += table.name;
    }
    QCOMPARE(QStringList(missing.values()), QStringList());
}

QTEST_GUILESS_MAIN(TestPreviewUndoRandom)
#include "tst_previewundorandom.moc"
