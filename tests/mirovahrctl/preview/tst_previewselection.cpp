#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/worker/support/middayzone.h"
#include "tests/worker/support/sampleexport.h"

#include <QTest>

namespace {

/// A closed day, and an open one long ago, of each person of the sample.
const char kOldDays[] =
    "REPLACE INTO atten SELECT uid, UNIX_TIMESTAMP('2024-05-06'), 1, 1, 0 FROM "
    "people UNION SELECT uid, UNIX_TIMESTAMP('2024-05-07'), 1, 0, 0 FROM people";

QString newDay(int uid)
{
    return QStringLiteral("REPLACE INTO atten VALUES (%1, %2, 1, 0, 0)")
        .arg(uid)
        .arg(QDate::currentDate().addDays(-1).startOfDay().toSecsSinceEpoch());
}

/// The number of days of a person (uid) at the site.
int daysOf(TestDatabase &site, int uid)
{
    return site.value(QStringLiteral("SELECT COUNT(*) FROM atten WHERE uid = %1").arg(uid)).toInt();
}

} // namespace

/// Which rows a preview copies.
class TestPreviewSelection : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void init();

    void openDaysOfThePeopleOfTheExportAreCopied();
    void allDaysOfSomebodyWhoGetsAnotherGroupAreCopied();
    void somebodyWhoStaysInTheGroupIsNotMoving();
    void movesOfThePeopleOfTheExportAreCopied();
    void theQueueIsLeftOut();
    void rowsOfTheNextPersonAreCopied();
    void anExportThatChangesMeanwhileIsRefused();
    void whatCouldReachOtherRowsHasAllRowsCopied_data();
    void whatCouldReachOtherRowsHasAllRowsCopied();
    void aTextThatChangesAStatementHasAllRowsCopied();
    void whatCannotReachOtherRowsHasNot_data();
    void whatCannotReachOtherRowsHasNot();
    void aWholeTableIsReadInPortions();
    void daysOfManyPeopleAreReadInPortions_data();
    void daysOfManyPeopleAreReadInPortions();

private:
    PreviewResult accepted(PreviewSelection::Extent extent = PreviewSelection::Extent::Reached);
    int queriesOfAttendance();

    PreviewBench m_bench;
};

void TestPreviewSelection::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestPreviewSelection::init()
{
    m_bench.site().reset();
    m_bench.writeIni();
    m_bench.site().run(kOldDays);
    m_bench.writeExport({SampleExport::jana()});
}

PreviewResult TestPreviewSelection::accepted(PreviewSelection::Extent extent)
{
    const PreviewResult result = m_bench.preview("root", extent);
    if (result.refusal)
        QTest::qFail(qPrintable(result.refusal->sentence), __FILE__, __LINE__);
    return result;
}

void TestPreviewSelection::openDaysOfThePeopleOfTheExportAreCopied()
{
    TestDatabase &site = m_bench.site();
    site.run(newDay(4));
    site.run(newDay(5));
    site.run("UPDATE atten SET ok = -1 WHERE `date` = UNIX_TIMESTAMP('2024-05-07')");
    QCOMPARE(accepted().doubts, QStringList());
    QCOMPARE(m_bench.copiedRows("atten"), 2); // yesterday, and the one that is to be calculated
}

void TestPreviewSelection::allDaysOfSomebodyWhoGetsAnotherGroupAreCopied()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::kalendar, 1)});
    QCOMPARE(accepted().doubts, QStringList());
    QCOMPARE(m_bench.copiedRows("atten"), daysOf(m_bench.site(), 4));
    QVERIFY(m_bench.copiedRows("groups_month") > 0);
}

void TestPreviewSelection::somebodyWhoStaysInTheGroupIsNotMoving()
{
    QCOMPARE(accepted().doubts, QStringList());
    QCOMPARE(m_bench.copiedRows("atten"), 0);
    QCOMPARE(m_bench.copiedRows("groups_month"), 0);
}

void TestPreviewSelection::movesOfThePeopleOfTheExportAreCopied()
{
    QCOMPARE(accepted().doubts, QStringList());
    QCOMPARE(m_bench.copiedRows("funds_move"),
             m_bench.site().value("SELECT COUNT(*) FROM funds_move WHERE uid = 4").toInt());
}

void TestPreviewSelection::theQueueIsLeftOut()
{
    m_bench.site().run("INSERT INTO term_sync SELECT tid, 'U', 'people', 'uid', 1, NULL, NULL, 1, "
                       "2 FROM term");
    const PreviewResult result = accepted();
    QCOMPARE(result.doubts, QStringList());
    int queued = 0;
    for (const PreviewedRow &row : result.rows)
        queued += row.table == "term_sync" ? 1 : 0;
    QVERIFY(queued > 0);
    QCOMPARE(m_bench.copiedRows("term_sync"), queued);
}

void TestPreviewSelection::rowsOfTheNextPersonAreCopied()
{
    m_bench.site().run("INSERT INTO atten VALUES (9, 1, 1, 1, 0), (7, 2, 1, 1, 0)");
    m_bench.writeExport({SampleExport::newcomer(5555)});
    QCOMPARE(accepted().doubts, QStringList());
    QCOMPARE(m_bench.copiedRows("atten"), 1);
}

void TestPreviewSelection::anExportThatChangesMeanwhileIsRefused()
{
    const PreviewResult result = m_bench.preview("root", PreviewSelection::Extent::Reached, [this] {
        m_bench.writeExport({SampleExport::jan()});
    });
    QVERIFY(result.refusal);
    QCOMPARE(result.refusal->status, ExitStatus::Usage);
    QCOMPARE(result.refusal->sentence,
             "'" + m_bench.exportFile().path() + "' was changed meanwhile. Run preview again");
}

void TestPreviewSelection::whatCouldReachOtherRowsHasAllRowsCopied_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("undo");
    QTest::addColumn<QString>("doubt");
    const QString all = "All rows of all tables were copied, because ";
    QTest::newRow("a trigger") << "CREATE TRIGGER loud AFTER UPDATE ON vars FOR EACH ROW SET @n = 1"
                               << "DROP TRIGGER loud"
                               << all + "the site has triggers, such as loud";
    QTest::newRow("a routine that uses the table")
        << "CREATE OR REPLACE FUNCTION midnightFromTs(p_ts BIGINT) RETURNS BIGINT READS SQL DATA "
           "RETURN (SELECT MIN(`date`) FROM atten)"
        << ""
        << "All rows of atten were copied, because the routine midnightFromTs uses it";
    QTest::newRow("a routine that runs texts")
        << "CREATE OR REPLACE PROCEDURE updateTermsSync(a INT, b INT) EXECUTE IMMEDIATE 'DO 1'"
        << "" << all + "the routine updateTermsSync runs statements that it makes";
    QTest::newRow("a key across people")
        << "ALTER TABLE groups_month ADD UNIQUE KEY (gid, month)"
        << ""
        << "All rows of groups_month were copied, because it has the unique key gid, month";
    QTest::newRow("a key with what is written")
        << "ALTER TABLE atten ADD UNIQUE KEY (uid, `date`, ok)"
        << ""
        << "All rows of atten were copied, because it has the unique key uid, date, ok";
    QTest::newRow("a key without the day")
        << "ALTER TABLE funds_move ADD UNIQUE KEY (uid, fid, value)"
        << ""
        << "All rows of funds_move were copied, because it has the unique key uid, fid, value";
    QTest::newRow("a table that refers to it")
        << "ALTER TABLE groups_plan ADD FOREIGN KEY (uid) REFERENCES atten (uid)"
        << ""
        << "All rows of atten were copied, because groups_plan refers to it";
    QTest::newRow("a reference that may cascade")
        << "ALTER TABLE groups_month ADD KEY (gid), ADD FOREIGN KEY (gid) REFERENCES groups_plan "
           "(uid) ON UPDATE CASCADE"
        << ""
        << "All rows of groups_month were copied, because it refers to groups_plan";
    QTest::newRow("uids that are not counted")
        << "ALTER TABLE people MODIFY uid INT UNSIGNED NOT NULL DEFAULT 0"
        << "" << all + "the server does not count people.uid";
    QTest::newRow("numbers that are texts") << "ALTER TABLE people MODIFY pid VARCHAR(20)"
                                            << "" << all + "people.pid is not a number";
    QTest::newRow("an id that is a fraction")
        << "ALTER TABLE people MODIFY pid DECIMAL(12, 2); UPDATE people SET pid = 9.5 WHERE uid = 1"
        << "" << all + "there are ids that are no whole numbers of 32 bits";
}

void TestPreviewSelection::whatCouldReachOtherRowsHasAllRowsCopied()
{
    QFETCH(QString, change);
    QFETCH(QString, undo);
    QFETCH(QString, doubt);
    TestDatabase &site = m_bench.site();
    site.run("SET SESSION foreign_key_checks = 0");
    for (const QString &statement : change.split(';'))
        site.run(statement);
    site.run("SET SESSION foreign_key_checks = 1");
    const PreviewResult result = accepted();
    if (!undo.isEmpty())
        site.run(undo);
    QCOMPARE(result.doubts.value(0), doubt);
    const QString table =
        doubt.section(' ', 3, 3) == "all" ? "funds_move" : doubt.section(' ', 3, 3);
    QCOMPARE(m_bench.copiedRows(qPrintable(table)),
             site.value("SELECT COUNT(*) FROM " + table).toInt());
}

void TestPreviewSelection::aTextThatChangesAStatementHasAllRowsCopied()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "O''Hara")});
    QCOMPARE(accepted().doubts, QStringList());
    m_bench.writeExport(
        {SampleExport::jana(), SampleExport::jan().with(&ExportRow::prijmeni, "O'Hara")});
    QCOMPARE(accepted().doubts,
             QStringList{"All rows of all tables were copied, because a text in line 2 of the "
                         "export changes the plugin's statements"});
    m_bench.writeExport({SampleExport::jana()});
    m_bench.writeIni("[MES]\n5=\"it's\"");
    QCOMPARE(accepted().doubts,
             QStringList{"All rows of all tables were copied, because a relationship state of the "
                         "configuration changes the plugin's statements"});
    QCOMPARE(m_bench.copiedRows("atten"),
             m_bench.site().value("SELECT COUNT(*) FROM atten").toInt());
}

void TestPreviewSelection::whatCannotReachOtherRowsHasNot_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("a routine that uses other tables")
        << "CREATE OR REPLACE PROCEDURE updateTermsSync(a INT, b INT) UPDATE term SET syn = 2";
    QTest::newRow("rows without a number") << "ALTER TABLE term_sync DROP id";
    QTest::newRow("a reference to people")
        << "ALTER TABLE atten ADD FOREIGN KEY (uid) REFERENCES people (uid) ON DELETE CASCADE";
}

void TestPreviewSelection::whatCannotReachOtherRowsHasNot()
{
    QFETCH(QString, change);
    m_bench.site().run(change);
    QCOMPARE(accepted().doubts, QStringList());
    QCOMPARE(m_bench.copiedRows("atten"), 0);
}

int TestPreviewSelection::queriesOfAttendance()
{
    return m_bench.site()
        .value("SELECT COUNT(*) FROM mysql.general_log WHERE user_host LIKE 'root%' AND argument "
               "LIKE 'SELECT CAST(% FROM `atten` t%'")
        .toInt();
}

void TestPreviewSelection::aWholeTableIsReadInPortions()
{
    TestDatabase &site = m_bench.site();
    // The portions end within the days of a person, and with the last row.
    site.run("DELETE FROM atten");
    site.run("INSERT INTO atten SELECT 4 + seq % 3, 86400 * (seq DIV 3), 1, 1, 0 FROM "
             "seq_0_to_39999");
    site.clearStatements();
    accepted(PreviewSelection::Extent::All);
    QCOMPARE(m_bench.copiedRows("atten"), 40000);
    QCOMPARE(queriesOfAttendance(), 3);
}

void TestPreviewSelection::daysOfManyPeopleAreReadInPortions_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("queries");
    QTest::newRow("found by a key") << "ADD PRIMARY KEY (uid, `date`)" << 4;
    QTest::newRow("found by walking the table") << "ADD KEY (`date`)" << 2;
}

void TestPreviewSelection::daysOfManyPeopleAreReadInPortions()
{
    QFETCH(QString, key);
    QFETCH(int, queries);
    TestDatabase &site = m_bench.site();
    site.run("DELETE FROM atten");
    site.run("ALTER TABLE atten DROP PRIMARY KEY, " + key);
    QVector<ExportRow> lines;
    for (int number = 2001; number <= 2250; ++number)
        lines += SampleExport::newcomer(number);
    m_bench.writeExport(lines);
    site.run("INSERT INTO people (uid, pid, pamId, surname, bid) SELECT 100 + seq, 10 * seq + 1, "
             "CONCAT(seq, '.1'), 'Malá', 1 FROM seq_2001_to_2250");
    site.run("INSERT INTO atten SELECT uid, 86400, -1, 0, 0 FROM people WHERE uid > 2000");
    site.clearStatements();
    QCOMPARE(accepted().doubts, QStringList());
    QCOMPARE(m_bench.copiedRows("atten"), 250);
    QCOMPARE(queriesOfAttendance(), queries);
}

QTEST_GUILESS_MAIN(TestPreviewSelection)
#include "tst_previewselection.moc"
