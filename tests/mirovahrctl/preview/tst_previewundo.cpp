#include "tests/mirovahrctl/preview/undobench.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/patience.h"
#include "tests/support/programrun.h"
#include "tests/worker/support/middayzone.h"
#include "tests/worker/support/sampleexport.h"
#include "worker/schedule.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

#include <csignal>
#include <functional>

namespace {

constexpr int kNewcomer = 3901; ///< a personal number

const QString kJana = QStringLiteral("SELECT * FROM people WHERE uid = 4");

/// The connection that waits for the test.
const QString kHeld =
    QStringLiteral("SELECT ID FROM information_schema.PROCESSLIST WHERE STATE = 'User lock'");

/// The line of the result that begins like this; empty when there is none.
QString lineOf(const ProgramRun &client, const QString &beginning)
{
    const QStringList lines = client.output().split('\n');
    for (const QString &line : lines) {
        if (line.startsWith(beginning))
            return line;
    }
    return QString();
}

} // namespace

/// preview --undo: what its statements take back, what not, and when they take back nothing.
class TestPreviewUndo : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void init();

    void everythingIsAsBefore();
    void aSecondRunChangesNothing();
    void withoutASynchronisationNothingIsChanged();
    void aFileWithoutDifferencesChangesNothing();
    void bothFilesOfStatementsAreWritten();
    void theFlagThatForcesStaysReset();

    void aRowThatSomebodyHasChangedKeepsAll_data();
    void aRowThatSomebodyHasChangedKeepsAll();
    void theOthersAreTakenBackPartially_data();
    void theOthersAreTakenBackPartially();
    void theFileSaysWhatBecomesOfChangedRows_data();
    void theFileSaysWhatBecomesOfChangedRows();
    void withoutLimitsTheFileAnnouncesNone();
    void allChangedRowsAreNamed();
    void whatASynchronisationHasLeftOutIsNoChange();
    void aMomentBeforeTheCopyIsSomebodyElses();
    void aBalanceOfAnotherDayIsAChange();

    void newPeopleMayHaveOtherUids();
    void somebodyElseWithTheUidOfThePreviewStays();

    void whatATerminalHasFetchedIsNamed();
    void whatOthersHaveQueuedStays();
    void whatIsQueuedForPeopleWhoWereLeftAloneStays();
    void whatIsQueuedAfterTheUndoStays();
    void whatWasQueuedTwiceIsTakenBackTwice();
    void calculatedAttendanceIsNamed();
    void otherCalculationsAreNobodysConcern();

    void otherFormsOfTables_data();
    void otherFormsOfTables();
    void referringRowsGoFirst();
    void tablesWithoutTransactionsAreCheckedFirst();
    void tablesWithoutTransactionsAreLocked();
    void aTextIsTakenBackInEverySqlMode();
    void valuesOfEveryKindAreTakenBack();

    void triggersWriteTheirOwnTables();
    void triggersFireInTheTimeZoneOfTheSite();
    void whatATriggerHasRemovedComesBack();
    void aTableWithoutAKeyIsRefused_data();
    void aTableWithoutAKeyIsRefused();
    void anotherKindOfServerIsRefused();

    void aKilledStatementChangesNothing();
    void aKilledClientLeavesAllOrNothing();
    void aClientThatGoesOnAfterErrorsChangesNothing();
    void anAccountOfTheDatabaseIsEnough();

    void theReportSaysWhatIsNotTakenBack();

private:
    TestDatabase &site() { return m_bench.site(); }
    /// Previews the export, lets the plugin synchronise it, and remembers the state before.
    /// \a meanwhile is called between the two.
    void synchronise(
        const QStringList &options = {}, const std::function<void()> &meanwhile = [] {});
    void undo(ProgramRun &client, const QStringList &options = {})
    {
        m_bench.undo(client, options);
    }
    /// Queues somebody for the terminal of a branch, as the synchronisation would.
    void queueJana();
    /// What differs from the state before the synchronisation.
    QString leftOver() { return TestDatabase::difference(m_before, m_bench.state()); }
    /// Makes the last statement of the undo that writes wait until the test lets it go on.
    void holdWriting();
    void waitUntilHeld();
    void letWritingGoOn();

    UndoBench m_bench;
    DatabaseState m_before;
};

void TestPreviewUndo::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestPreviewUndo::init()
{
    site().reset();
    m_bench.writeIni();
    // Somebody moves, with a new surname and supervisor; somebody gets another balance; somebody is
    // new.
    m_bench.writeExport({SampleExport::jana()
                             .with(&ExportRow::prijmeni, "Malá")
                             .with(&ExportRow::stredisko, 130)
                             .with(&ExportRow::nadrizenyOsobniCislo, 1003),
                         SampleExport::maria().with(&ExportRow::dovolenaZustatek, "3.5"),
                         SampleExport::newcomer(kNewcomer).with(&ExportRow::prijmeni, "O''Hara")});
}

void TestPreviewUndo::synchronise(const QStringList &options,
                                  const std::function<void()> &meanwhile)
{
    const DatabaseState previewed = m_bench.state();
    QCOMPARE(m_bench.writeUndo(options), QString());
    QCOMPARE(TestDatabase::difference(previewed, m_bench.state()), QString());
    meanwhile();
    m_before = m_bench.state();
    QCOMPARE(m_bench.synchroniseSite(), QString());
    QVERIFY(!leftOver().isEmpty());
}

void TestPreviewUndo::everythingIsAsBefore()
{
    synchronise();
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
    QCOMPARE(client.output(),
             QString("Result\nRows taken back: 27\nRows that were as before already: 0\n"));
}

void TestPreviewUndo::aSecondRunChangesNothing()
{
    synchronise();
    ProgramRun first;
    undo(first);
    COMPARE_STATUS(first, 0);
    ProgramRun second;
    undo(second);
    COMPARE_STATUS(second, 0);
    QCOMPARE(second.output(),
             QString("Result\nRows taken back: 0\nRows that were as before already: 27\n"));
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::withoutASynchronisationNothingIsChanged()
{
    const DatabaseState before = site().dumpAll();
    QCOMPARE(m_bench.writeUndo(), QString());
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(lineOf(client, "Rows taken back"), QString("Rows taken back: 0"));
    QVERIFY2(!client.output().contains("Left"), client.report().constData());
    QCOMPARE(TestDatabase::difference(before, site().dumpAll()), QString());
}

void TestPreviewUndo::aFileWithoutDifferencesChangesNothing()
{
    m_bench.writeExport({SampleExport::tomas()});
    m_before = m_bench.state();
    QCOMPARE(m_bench.writeUndo(), QString());
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(lineOf(client, "Rows taken back"), QString("Rows taken back: 0"));
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::bothFilesOfStatementsAreWritten()
{
    m_before = m_bench.state();
    QCOMPARE(m_bench.writeUndo({"--sql", m_bench.filePath("do.sql")}), QString());
    QVERIFY2(site().server().load(m_bench.filePath("do.sql")),
             qPrintable(site().server().errorString()));
    QVERIFY(!leftOver().isEmpty());
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::theFlagThatForcesStaysReset()
{
    const QString flag = QStringLiteral("SELECT value FROM vars WHERE name = '%1'")
                             .arg(QString(Schedule::kForceSyncKey));
    site().run(QStringLiteral("REPLACE INTO vars VALUES ('%1', '1')").arg(Schedule::kForceSyncKey));
    synchronise();
    QVERIFY(m_bench.undoText().contains("--   - The flag that forces a synchronisation"));
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(site().value(flag).toString(), QString("0"));
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::aRowThatSomebodyHasChangedKeepsAll_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("named");
    QTest::newRow("a cell that the synchronisation wrote")
        << "UPDATE people SET surname = 'Mala' WHERE uid = 4"
        << "people, 1234.1 Jana Malá";
    QTest::newRow("only its case") << "UPDATE people SET surname = 'malá' WHERE uid = 4"
                                   << "people, 1234.1 Jana Malá";
    QTest::newRow("a cell that it did not write") << "UPDATE people SET phone = '' WHERE uid = 4"
                                                  << "people, 1234.1 Jana Malá";
    QTest::newRow("a row that it added") << "UPDATE people SET gid = 11 WHERE pid = 39011"
                                         << "people, 3901.1 Eva O'Hara";
    QTest::newRow("a row that is gone") << "DELETE FROM admins_people WHERE aid = 1 AND uid = 4"
                                        << "admins_people, 1234.1 Jana Malá";
    QTest::newRow("a list") << "UPDATE vars SET value = CONCAT(value, ',1') WHERE name = "
                               "'exportPam.1.selPeople'"
                            << "vars, exportPam.1.selPeople";
    QTest::newRow("a balance") << "UPDATE funds_move SET value = 1 WHERE uid = 1 AND type = 3"
                               << "funds_move, 1001.1 Mária Kováčová: vacation balance corrected";
}

void TestPreviewUndo::aRowThatSomebodyHasChangedKeepsAll()
{
    QFETCH(QString, change);
    QFETCH(QString, named);
    synchronise();
    site().run(change);
    const DatabaseState changed = site().dumpAll();
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 1);
    QVERIFY2(client.errors().contains(": Nothing was taken back. Rows changed since: 1, the first: "
                                      + named),
             client.report().constData());
    QVERIFY2(client.output().startsWith("Changed since the synchronisation\n" + named),
             client.report().constData());
    QCOMPARE(TestDatabase::difference(changed, site().dumpAll()), QString());
}

void TestPreviewUndo::theOthersAreTakenBackPartially_data()
{
    QTest::addColumn<bool>("isSaidAtOnce");
    QTest::newRow("when the file was made for it") << true;
    QTest::newRow("when the file was changed for it") << false;
}

void TestPreviewUndo::theOthersAreTakenBackPartially()
{
    QFETCH(bool, isSaidAtOnce);
    synchronise(isSaidAtOnce ? QStringList{"--partial"} : QStringList());
    if (!isSaidAtOnce) {
        m_bench.replaceUndoText(m_bench.undoText().replace("SET @mirovahr_undo_partial = FALSE;",
                                                           "SET @mirovahr_undo_partial = TRUE;"));
    }
    site().run("UPDATE people SET phone = '' WHERE uid = 4");
    const TableRows jana = site().rows(kJana);
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(lineOf(client, "Left"), QString("Left, changed since: people, 1234.1 Jana Malá"));
    QCOMPARE(lineOf(client, "Rows taken back"), QString("Rows taken back: 26"));
    QCOMPARE(site().rows(kJana), jana);
    const QStringList differing = leftOver().split('\n');
    QCOMPARE(differing.size(), 2);
    QVERIFY2(differing.first().startsWith("- people: uid=4 "), qPrintable(differing.first()));
}

void TestPreviewUndo::theFileSaysWhatBecomesOfChangedRows_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("said");
    QTest::newRow("all or none") << QStringList()
                                 << "nothing is taken back, and the message\n"
                                    "-- names the row. With TRUE in place of FALSE below,";
    QTest::newRow("partially") << QStringList("--partial")
                               << "all others are taken back, and the\n"
                                  "-- result names the row. With FALSE in place of TRUE below,";
}

void TestPreviewUndo::theFileSaysWhatBecomesOfChangedRows()
{
    QFETCH(QStringList, options);
    QFETCH(QString, said);
    QCOMPARE(m_bench.writeUndo(options), QString());
    QVERIFY2(m_bench.undoText().contains("\n-- When somebody has changed one of the rows since, "
                                         + said),
             qPrintable(m_bench.undoText().left(1000)));
}

void TestPreviewUndo::withoutLimitsTheFileAnnouncesNone()
{
    m_bench.writeExport({});
    QCOMPARE(m_bench.writeUndo(), QString());
    QVERIFY2(!m_bench.undoText().contains("Not taken back"), qPrintable(m_bench.undoText()));
}

void TestPreviewUndo::allChangedRowsAreNamed()
{
    // The server takes short messages only, and these letters have two bytes each.
    const QString first = QStringLiteral("Ž").repeated(60);
    const QString last = QStringLiteral("Š").repeated(80);
    m_bench.writeExport(
        {SampleExport::jana().with(&ExportRow::jmeno, first).with(&ExportRow::prijmeni, last),
         SampleExport::peter().with(&ExportRow::telefon, "2")});
    synchronise();
    site().run("UPDATE people SET title = 'x' WHERE uid IN (2, 4)");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 1);
    QVERIFY2(client.errors().contains("Rows changed since: 2, the first: people, 1002.1 Peter"),
             client.report().constData());
    QVERIFY(client.output().contains("\npeople, 1002.1 Peter Horváth\n"));
    QVERIFY(client.output().contains("\npeople, 1234.1 " + first + ' ' + last + '\n'));

    site().run("UPDATE people SET title = 'MUDr.' WHERE uid = 4");
    site().run("UPDATE people SET title = '' WHERE uid = 2");
    ProgramRun again;
    undo(again);
    COMPARE_STATUS(again, 1);
    QVERIFY2(again.errors().contains("the first: people, 1234.1 ŽŽŽ"), again.report().constData());
}

void TestPreviewUndo::whatASynchronisationHasLeftOutIsNoChange()
{
    synchronise();
    site().run("UPDATE people SET surname = 'Nováková' WHERE uid = 4");
    site().run("DELETE FROM brape WHERE bid = 2 AND uid = 4");
    site().run("DELETE FROM funds_move WHERE uid = 1 AND type = 3");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
    QCOMPARE(lineOf(client, "Rows that were"), QString("Rows that were as before already: 2"));
}

void TestPreviewUndo::aMomentBeforeTheCopyIsSomebodyElses()
{
    synchronise();
    site().run("UPDATE people SET edited = 1700000000 WHERE uid = 4");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 1);
    QVERIFY2(client.errors().contains("the first: people, 1234.1 Jana Malá"),
             client.report().constData());
}

void TestPreviewUndo::aBalanceOfAnotherDayIsAChange()
{
    synchronise();
    site().run("UPDATE funds_move SET day = day + 86400 WHERE uid = 1 AND type = 3");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 1);
    QVERIFY2(client.errors().contains("Rows changed since: 1, the first: funds_move, 1001.1 "),
             client.report().constData());
}

void TestPreviewUndo::newPeopleMayHaveOtherUids()
{
    synchronise({}, [this] {
        // The first takes the uid of the preview, and the second one is not even there any more.
        site().run("INSERT INTO people (pid, pamId) VALUES (50011, '5001.1'), (50021, '5002.1')");
        site().run("DELETE FROM people WHERE pid = 50021");
    });
    QVERIFY(site().value("SELECT uid FROM people WHERE pid = 39011").toInt()
            > site().value("SELECT uid + 1 FROM people WHERE pid = 50011").toInt());
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
    QCOMPARE(lineOf(client, "Rows taken back"), QString("Rows taken back: 27"));
}

void TestPreviewUndo::somebodyElseWithTheUidOfThePreviewStays()
{
    synchronise({}, [this] {
        // Who would be created is not; somebody else gets the uid, and joins the same branch.
        m_bench.writeExport({SampleExport::maria().with(&ExportRow::dovolenaZustatek, "3.5")});
        site().run("INSERT INTO people (pid, pamId) VALUES (50011, '5001.1')");
        const QString uid = site().value("SELECT uid FROM people WHERE pid = 50011").toString();
        site().run("INSERT INTO brape SELECT 1, " + uid + ", UNIX_TIMESTAMP()");
        site().run("INSERT INTO people_term VALUES (1, " + uid + ")");
        site().run("INSERT INTO people_pam VALUES (" + uid + ", 1)");
    });
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
    QCOMPARE(lineOf(client, "Left"), QString());
}

void TestPreviewUndo::whatATerminalHasFetchedIsNamed()
{
    synchronise();
    site().run("DELETE FROM term_sync WHERE tid = 4");
    site().run("UPDATE term SET syn = 0 WHERE tid = 4");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QVERIFY2(
        client.output().endsWith("\nLeft, fetched since: term_sync, 1234.1 Jana Malá: is queued "
                                 "for terminal 4 (Predajňa)\n"),
        client.report().constData());
    QCOMPARE(client.output().count("Left"), 1);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::whatOthersHaveQueuedStays()
{
    synchronise();
    site().run("INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags) SELECT 1, "
               "'U', 'people', 'uid', uid, UNIX_TIMESTAMP(), 2 FROM people WHERE uid IN (2, 4)");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    // The two rows, that of the synchronisation which equals one of them, and the terminal's mark.
    QCOMPARE(leftOver().count("\n+ term_sync: tid=1 "), 3);
    QCOMPARE(leftOver().count("\n+ term: tid=1 bid=1 status=1 flags=323 syn=2"), 1);
    QCOMPARE(leftOver().count('\n'), 4);
    QCOMPARE(
        lineOf(client, "Left"),
        QString("Left, queued again since: term_sync, 1234.1 Jana Malá: is queued for terminal "
                "1 (Sklad)"));
}

void TestPreviewUndo::queueJana()
{
    site().run("INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags) VALUES (1, "
               "'U', 'people', 'uid', 4, UNIX_TIMESTAMP(), 2)");
}

void TestPreviewUndo::whatIsQueuedForPeopleWhoWereLeftAloneStays()
{
    synchronise({}, [this] {
        m_bench.writeExport({SampleExport::maria().with(&ExportRow::dovolenaZustatek, "3.5")});
    });
    queueJana();
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    // The row, and the mark of its terminal.
    QVERIFY2(leftOver().contains("\n+ term_sync: tid=1 type=U ref=people "),
             qPrintable(leftOver()));
    QCOMPARE(leftOver().count('\n'), 2);
    QCOMPARE(lineOf(client, "Left"), QString());
}

void TestPreviewUndo::whatIsQueuedAfterTheUndoStays()
{
    synchronise();
    ProgramRun first;
    undo(first);
    COMPARE_STATUS(first, 0);
    // The terminal had fetched the row, and somebody does what the first run asks for.
    queueJana();
    ProgramRun second;
    undo(second);
    COMPARE_STATUS(second, 0);
    QCOMPARE(lineOf(second, "Rows taken back"), QString("Rows taken back: 0"));
    QVERIFY2(leftOver().startsWith("+ term_sync: tid=1 type=U ref=people "),
             qPrintable(leftOver()));
}

void TestPreviewUndo::whatWasQueuedTwiceIsTakenBackTwice()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá"),
                         SampleExport::jana().with(&ExportRow::prijmeni, "Veľká")});
    synchronise();
    QCOMPARE(site().value("SELECT COUNT(*) FROM term_sync WHERE ref_id = 4").toInt(), 2);
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::calculatedAttendanceIsNamed()
{
    site().run("UPDATE people SET calc = 1700000000 WHERE uid = 4");
    m_bench.writeExport(
        {SampleExport::jana().with(&ExportRow::prijmeni, "Malá").with(&ExportRow::stredisko, 130)});
    synchronise();
    QCOMPARE(site().value("SELECT calc FROM people WHERE uid = 4").toInt(), 0);
    site().run("UPDATE people SET calc = UNIX_TIMESTAMP(), lastCalc = UNIX_TIMESTAMP() WHERE uid = "
               "4");
    site().run("UPDATE atten SET ok = 2 WHERE uid = 4 AND ok = -1");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QVERIFY2(client.output().endsWith("\nLeft, calculated since: people, 1234.1 Jana Malá\nLeft, "
                                      "calculated since: atten, 1234.1 Jana Malá\n"),
             client.report().constData());
    QCOMPARE(site().value("SELECT surname FROM people WHERE uid = 4").toString(),
             QString("Nováková"));
    QVERIFY(site().value("SELECT calc > 1700000000 FROM people WHERE uid = 4").toBool());
    QCOMPARE(leftOver().count("\n+ ") + leftOver().startsWith("+ "), 2);
}

void TestPreviewUndo::otherCalculationsAreNobodysConcern()
{
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá"),
                         SampleExport::peter().with(&ExportRow::stredisko, 120)});
    synchronise({}, [this] {
        m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá")});
    });
    // Of Peter the attendance server calculates what the synchronisation did not ask for.
    site().run(
        "UPDATE people SET calc = UNIX_TIMESTAMP(), lastCalc = UNIX_TIMESTAMP() WHERE uid IN "
        "(2, 4)");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(lineOf(client, "Left"), QString());
    QCOMPARE(lineOf(client, "Rows taken back"), QString("Rows taken back: 2"));
    QCOMPARE(site().value("SELECT surname FROM people WHERE uid = 4").toString(),
             QString("Nováková"));
}

void TestPreviewUndo::otherFormsOfTables_data()
{
    QTest::addColumn<QString>("form");
    QTest::newRow("queues without a number for each row") << "plain queues";
    QTest::newRow("every table with a number for each row") << "numbers";
    QTest::newRow("ids of 32 bits") << "wide ids";
}

void TestPreviewUndo::otherFormsOfTables()
{
    QFETCH(QString, form);
    if (form == "plain queues")
        site().removeOwnNumbers();
    else if (form == "numbers")
        site().addOwnNumbers();
    else
        site().widenIds();
    synchronise({}, [this] {
        // Takes the next number.
        site().run("INSERT INTO brape (bid, uid, since) VALUES (3, 2, 1)");
        site().run("INSERT INTO people_term (tid, uid) VALUES (7, 2)");
    });
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::referringRowsGoFirst()
{
    site().run("DELETE FROM people_term WHERE uid NOT IN (SELECT uid FROM people)");
    for (const char *table :
         {"admins_people", "brape", "groups_plan", "people_pam", "people_term"}) {
        site().run(QStringLiteral("ALTER TABLE %1 ADD CONSTRAINT FOREIGN KEY (uid) REFERENCES "
                                  "people (uid)")
                       .arg(table));
    }
    synchronise();
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::tablesWithoutTransactionsAreCheckedFirst()
{
    for (const char *table : {"people", "vars", "term_sync", "brape"})
        site().run(QStringLiteral("ALTER TABLE %1 ENGINE=MyISAM").arg(table));
    synchronise();
    QVERIFY2(
        m_bench.undoText().contains("these tables have no transactions, and what is written by "
                                    "then stays: people, brape, term_sync, vars."),
        qPrintable(m_bench.undoText()));
    site().run("UPDATE vars SET value = '' WHERE name = 'exportPam.1.selPeople'");
    const DatabaseState changed = site().dumpAll();
    ProgramRun refused;
    undo(refused);
    COMPARE_STATUS(refused, 1);
    QCOMPARE(TestDatabase::difference(changed, site().dumpAll()), QString());

    site().run("UPDATE vars SET value = '10011,10021,10031,12341,12351,12361' WHERE name = "
               "'exportPam.1.selPeople'");
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::tablesWithoutTransactionsAreLocked()
{
    site().run("ALTER TABLE brape ENGINE=MyISAM");
    synchronise();
    holdWriting();
    ProgramRun client;
    m_bench.startUndo(client);
    waitUntilHeld();
    {
        QSqlDatabase other =
            site().server().addConnection("other", PrivateMariaDb::Account::Administrator);
        other.setDatabaseName(site().server().databaseName());
        QVERIFY(other.open());
        QSqlQuery query(other);
        QVERIFY(query.exec("SET SESSION lock_wait_timeout = 0"));
        for (const char *table : {"brape", "people", "atten", "term_sync"}) {
            QVERIFY(!query.exec(QStringLiteral("DELETE FROM %1 WHERE FALSE").arg(table)));
            QCOMPARE(query.lastError().nativeErrorCode(), QString("1205"));
        }
    }
    QSqlDatabase::removeDatabase("other");
    letWritingGoOn();
    client.waitForEnd();
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::aTextIsTakenBackInEverySqlMode()
{
    site().run("UPDATE people SET surname = CONCAT('\"', CHAR(39), CHAR(92), CHAR(10), '-- //'), "
               "name = CHAR(92), title = '%1' WHERE uid = 4");
    const QString mode = site().value("SELECT @@GLOBAL.sql_mode").toString();
    site().run("SET GLOBAL sql_mode = 'NO_BACKSLASH_ESCAPES,ANSI_QUOTES,ONLY_FULL_GROUP_BY'");
    synchronise();
    ProgramRun client;
    undo(client);
    site().run("SET GLOBAL sql_mode = '" + mode + "'");
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::valuesOfEveryKindAreTakenBack()
{
    site().run(
        "ALTER TABLE people ADD weight FLOAT, ADD size DOUBLE, ADD price DECIMAL(20, 4), ADD "
        "mask BIT(9), ADD mark VARBINARY(9), ADD kind ENUM('á', 'b'), ADD at DATETIME(3), "
        "ADD touched TIMESTAMP NULL ON UPDATE CURRENT_TIMESTAMP, ADD note TEXT CHARACTER SET "
        "latin2, ADD twice DOUBLE AS (weight * 2) VIRTUAL");
    site().run(
        "UPDATE people SET weight = 0.1, size = 1e-300, price = -12345678901234.5678, mask = "
        "5, mark = X'00FF27', kind = 'á', at = '2026-03-29 02:30:00.125', touched = '2020-01-"
        "01', note = 'Žluťoučký' WHERE uid = 4");
    site().run("UPDATE people SET at = '0000-00-00', touched = NULL WHERE uid = 1");
    site().run(
        "CREATE TRIGGER everything BEFORE UPDATE ON people FOR EACH ROW IF NEW.surname = "
        "'Malá' THEN SET NEW.weight = 3, NEW.size = 3, NEW.price = 3, NEW.mask = 3, NEW.mark "
        "= NULL, NEW.kind = 'b', NEW.at = NOW(3), NEW.note = NOW(3); END IF");
    synchronise();
    QCOMPARE(site().value("SELECT weight FROM people WHERE uid = 4").toInt(), 3);
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::triggersWriteTheirOwnTables()
{
    site().run("CREATE TABLE trail (id INT PRIMARY KEY AUTO_INCREMENT, what VARCHAR(90))");
    site().run("CREATE TRIGGER keep_trail AFTER UPDATE ON people FOR EACH ROW INSERT INTO trail "
               "(what) VALUES (CONCAT(OLD.surname, ' becomes ', NEW.surname))");
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá")});
    synchronise();
    QVERIFY(
        m_bench.undoText().contains("--   - What triggers and routines of the site have changed "
                                    "in trail.\n"));
    QVERIFY(m_bench.undoText().contains("they fire again (keep_trail).\n"));
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(),
             QString("+ trail: id=1 what=Nováková becomes Malá\n+ trail: id=2 what=Malá becomes "
                     "Nováková"));
}

void TestPreviewUndo::triggersFireInTheTimeZoneOfTheSite()
{
    site().run("CREATE TABLE trail (id INT PRIMARY KEY AUTO_INCREMENT, zone VARCHAR(90))");
    site().run("CREATE TRIGGER keep_trail AFTER UPDATE ON people FOR EACH ROW INSERT INTO trail "
               "(zone) VALUES (@@SESSION.time_zone)");
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá")});
    synchronise();
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString("+ trail: id=1 zone=SYSTEM\n+ trail: id=2 zone=SYSTEM"));
}

void TestPreviewUndo::whatATriggerHasRemovedComesBack()
{
    site().run(
        "CREATE TRIGGER moving AFTER UPDATE ON people FOR EACH ROW IF NOT OLD.bid <=> NEW.bid "
        "THEN DELETE FROM brape WHERE uid = NEW.uid AND bid <> NEW.bid; END IF");
    synchronise();
    QCOMPARE(site().value("SELECT COUNT(*) FROM brape WHERE bid = 1 AND uid = 4").toInt(), 0);
    ProgramRun client;
    undo(client);
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::aTableWithoutAKeyIsRefused_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("none") << "DROP PRIMARY KEY";
    QTest::newRow("of a column without a value")
        << "DROP PRIMARY KEY, MODIFY uid INT UNSIGNED NULL, ADD UNIQUE KEY (bid, uid)";
    QTest::newRow("of the beginning of a text")
        << "DROP PRIMARY KEY, ADD note VARCHAR(9) NOT NULL DEFAULT '', ADD UNIQUE KEY (bid, uid, "
           "note(3))";
}

void TestPreviewUndo::aTableWithoutAKeyIsRefused()
{
    QFETCH(QString, keys);
    site().run("ALTER TABLE brape " + keys);
    const ToolRun tool = runTool(
        QStringList{"preview", m_bench.exportFile().path(), "--undo", m_bench.filePath("none.sql")}
        + m_bench.arguments());
    COMPARE_EXIT(tool, ExitStatus::ContractBroken);
    QCOMPARE(tool.err,
             QString("mirovahrctl: preview: The differences cannot be taken back, since no key "
                     "identifies the rows of brape. Run check-db for details.\n"));
    QVERIFY(!QFileInfo::exists(m_bench.filePath("none.sql")));
}

void TestPreviewUndo::anotherKindOfServerIsRefused()
{
    PreviewBench other;
    QVERIFY2(other.start({"--version=5.7.44-log"}), qPrintable(other.site().errorString()));
    other.writeExport({SampleExport::jana()});
    const ToolRun tool = runTool(
        QStringList{"preview", other.exportFile().path(), "--undo", other.filePath("none.sql")}
        + other.arguments());
    COMPARE_EXIT(tool, ExitStatus::Usage);
    QCOMPARE(tool.err,
             QString("mirovahrctl: preview: --undo writes statements of MariaDB, and the site's "
                     "server is version 5.7.44-log.\n"));
}

void TestPreviewUndo::holdWriting()
{
    site().run("DO GET_LOCK('test', 0)");
    site().run("CREATE TRIGGER held BEFORE UPDATE ON vars FOR EACH ROW DO GET_LOCK('test', 1000)");
}

void TestPreviewUndo::waitUntilHeld()
{
    QTRY_VERIFY_WITH_TIMEOUT(site().value(kHeld).toInt() > 0, kPatienceMs);
}

void TestPreviewUndo::letWritingGoOn()
{
    site().run("DO RELEASE_LOCK('test')");
}

void TestPreviewUndo::aKilledStatementChangesNothing()
{
    synchronise();
    const DatabaseState synchronised = site().dumpAll();
    holdWriting();
    ProgramRun client;
    m_bench.startUndo(client);
    waitUntilHeld();
    site().run("KILL " + site().value(kHeld).toString());
    client.waitForEnd();
    QVERIFY(client.status() != 0);
    QCOMPARE(TestDatabase::difference(synchronised, site().dumpAll()), QString());

    letWritingGoOn();
    site().run("DROP TRIGGER held");
    ProgramRun again;
    undo(again);
    COMPARE_STATUS(again, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::aKilledClientLeavesAllOrNothing()
{
    synchronise();
    const DatabaseState synchronised = m_bench.state();
    holdWriting();
    ProgramRun client;
    m_bench.startUndo(client);
    waitUntilHeld();
    client.sendSignal(SIGKILL);
    client.waitForEnd();
    letWritingGoOn();
    const QString others =
        "SELECT COUNT(*) FROM information_schema.PROCESSLIST WHERE USER = 'root' "
        "AND ID <> CONNECTION_ID()";
    QTRY_COMPARE_WITH_TIMEOUT(site().value(others).toInt(), 0, kPatienceMs);
    const DatabaseState state = m_bench.state();
    const bool isAll = TestDatabase::difference(m_before, state).isEmpty();
    const bool isNone = TestDatabase::difference(synchronised, state).isEmpty();
    QVERIFY2(isAll || isNone, qPrintable(leftOver()));
}

void TestPreviewUndo::aClientThatGoesOnAfterErrorsChangesNothing()
{
    synchronise();
    site().refuse("UPDATE", "vars");
    const DatabaseState synchronised = site().dumpAll();
    ProgramRun client;
    undo(client, {"--force"});
    QVERIFY2(client.errors().contains("refused by the test"), client.report().constData());
    QCOMPARE(TestDatabase::difference(synchronised, site().dumpAll()), QString());
}

void TestPreviewUndo::anAccountOfTheDatabaseIsEnough()
{
    site().run("ALTER TABLE brape ENGINE=MyISAM");
    synchronise();
    site().run("CREATE USER undoer@localhost");
    site().run("GRANT SELECT, INSERT, UPDATE, DELETE, CREATE TEMPORARY TABLES, LOCK TABLES ON "
               "tepdb.* TO undoer@localhost");
    ProgramRun client;
    undo(client, {"--user=undoer"});
    site().run("DROP USER undoer@localhost");
    COMPARE_STATUS(client, 0);
    QCOMPARE(leftOver(), QString());
}

void TestPreviewUndo::theReportSaysWhatIsNotTakenBack()
{
    const ToolRun tool = runTool(QStringList{"preview", m_bench.exportFile().path(), "--undo",
                                             m_bench.filePath("u.sql"), "--details"}
                                 + m_bench.arguments());
    COMPARE_EXIT(tool, ExitStatus::Fine);
    const int heading =
        tool.out.indexOf("What " + m_bench.filePath("u.sql") + " does not take back");
    QVERIFY2(heading > 0, tool.report().constData());
    QVERIFY(tool.out.indexOf("What a terminal has fetched from its queue.") > heading);
    QVERIFY(tool.out.indexOf("The uids of new people: ") > heading);
    QVERIFY(tool.out.indexOf("A payroll export that was made in between.") > heading);
}

QTEST_GUILESS_MAIN(TestPreviewUndo)
#include "tst_previewundo.moc"
