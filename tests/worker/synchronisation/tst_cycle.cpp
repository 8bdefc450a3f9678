#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QTest>

using namespace SampleExport;

/// What a synchronisation does around its records: before the first, in which order it takes them,
/// and after the last.
class TestCycle : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void theServersMidnightIsThatOfTheProgram();

    void aKnownPersonIsReconciledInOrder();
    void everyStepForAKnownPersonHasItsPlace();
    void everyLineOfTheLogHasItsLevel_data() { addDebugLevels(); }
    void everyLineOfTheLogHasItsLevel();

    void anExportWithoutRecordsIsNotReconciled();
    void withoutRecordsNothingIsLoggedOrSent();
    void recordsAreTakenInTheOrderOfTheFile();
    void branchesAndFundAreLookedUpOncePerCycle();
    void theKnownPeopleAreFreedAtTheEndOfTheCycle_data();
    void theKnownPeopleAreFreedAtTheEndOfTheCycle();
    void aCycleGoesOnWithoutBranches();
    void aCycleGoesOnWhenTheFundCannotBeLookedUp();

    void newMembersJoinTheirBranchesInAscendingOrder();
    void newMembersReachTerminalsAndAdministrators();
    void membersThatCouldNotJoinAreForgotten();
    void theNextCycleAddsOnlyItsOwnMembers();
    void theBranchIdIsNarrowedAtTheCallOnly_data();
    void theBranchIdIsNarrowedAtTheCallOnly();
};

void TestCycle::theServersMidnightIsThatOfTheProgram()
{
    const QDate today = QDate::currentDate();
    QCOMPARE(m_db.value("SELECT midnightFromTs(UNIX_TIMESTAMP())").toLongLong(),
             localMidnight(today));
    QCOMPARE(m_db.value("SELECT monthFromTimestamp(UNIX_TIMESTAMP())").toInt(),
             today.year() * 100 + today.month());
    QCOMPARE(m_db.value("SELECT UNIX_TIMESTAMP('2025-07-01')").toLongLong(),
             localMidnight(QDate(2025, 7, 1)));
    QVERIFY(today.day() != 1);
}

void TestCycle::aKnownPersonIsReconciledInOrder()
{
    const Trace trace = synchronise({jana()});
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(12341, 4) << Sent::updatePerson(jana())
                           << Sent::notifyTerminals(12341, 4) << Sent::balance(12341)
                           << Sent::membership(12341, 1) << Sent::group(1, 3)
                           << Sent::plannedGroup(13, 4, 202301) << Sent::recalculation(4));
}

void TestCycle::everyStepForAKnownPersonHasItsPlace()
{
    m_db.run("DELETE FROM brape WHERE uid = 4");
    const QDate since(2025, 3, 1);
    const ExportRow line = jana()
                               .with(&ExportRow::telefon, "1")
                               .with(&ExportRow::dovolenaZustatek, "20")
                               .with(&ExportRow::kalendar, 2)
                               .with(&ExportRow::kalendarPlatnostOd, since)
                               .with(&ExportRow::nadrizenyOsobniCislo, 1002);
    const Trace trace = synchronise({line});
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(12341, 4) << Sent::updatePerson(line)
                           << Sent::notifyTerminals(12341, 4) << Sent::balance(12341)
                           << Sent::correction(4, 250) << Sent::findAdmin(1002)
                           << Sent::supervisor(2, 4) << Sent::membership(12341, 1)
                           << Sent::group(1, 2) << Sent::plannedGroup(12, 4, 202503)
                           << Sent::planGroup(12, 4, 202503) << Sent::updateMonths(4, 202503)
                           << Sent::recalculation(4, since) << Sent::recalculation(4)
                           << Sent::joinBranch(1, "4")
                           << Sent::propagation(1, {"4"}, {1, 2}, {1, 4}));
}

void TestCycle::everyLineOfTheLogHasItsLevel()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    const QDate today = QDate::currentDate();
    const QDate recalculated = QDate(today.year(), today.month(), 1).addMonths(-1);
    const QVector<LogLine> lines = {
        {2, "D MHRWorker::checkSync(): #1"},
        {2, "D MHRWorker::dbCheckOpen()"},
        {1, "D MHRWorker: BEGIN synchronization #1 (force: NO)"},
        {2, "D MHRWorker::loadAndParseData()"},
        {3,
         "D MHRWorker::loadAndParseData() - fields: OsobniCislo, PoradoveCisloPP, Titul, Jmeno, "
         "Prijmeni, TitulZa, Telefon, DatumNastupu, DatumVystupu, Stredisko, StrediskoPopis, "
         "Kalendar, KalendarPlatnostOd, TypPracovnihoPomeru, StavPracovnihoPomeru, EvidencniStav, "
         "DovolenaZustatek, NadrizenyOsobniCislo"},
        {3, "I MHRWorker::loadAndParseData() - loading data from file: '" + m_export->path() + "'"},
        {3,
         "D MHRWorker::parseLine('1234|1|Ing.|Jana|Nováková||555123456|2019-04-01 "
         "00:00:00.000||120|Sklad|3|2023-01-01 00:00:00.000|11|1|0|17.5|0')"},
        {2, "D MHRWorker::dbLoadPeople()"},
        {2, "D MHRWorker::doSync() - stack count: 1"},
        {2, "D MHRWorker::dbLoadBranches()"},
        {2, "D MHRWorker::checkDovolenkaFond()"},
        {1, "I MHRWorker::checkDovolenkaFond(): fid=2"},
        {3,
         "D MHRWorker::doSyncRecord(1234.1 Nováková Jana (S: 120, K: 3 from 1 Jan 2023) N-V: 1 Apr "
         "2019 - ; ES: 0, RS:  -  '' TPP: 11  DOV: 17.5 NOC: 0)"},
        {2, "D MHRWorker::dbCheckFundMove(pid: 12341)"},
        {1, "I MHRWorker::dbCheckFundMove(pid: 12341): OK - non exists"},
        {2, "D MHRWorker::dbCheckAttendance(pid: 12341)"},
        {1, "I MHRWorker::dbCheckAttendance(pid: 12341): OK"},
        {1, "D MHRWorker::dbUpdatePerson(1234.1)"},
        {2, "D MHRWorker::addTermSyncPerson(12341, U, people)"},
        {2, "D MHRWorker::loadFundStatusAndMove3(pid: 12341)"},
        {1, "I MHRWorker::loadFundStatusAndMove3(pid: 12341): 1750, load OK: YES"},
        {3, "D MHRWorker::doSyncBranchAndCalendar(1234.1)"},
        {2, "D MHRWorker::dbCheckPersonInBranch(12341, 1)"},
        {2, "D MHRWorker::getGroupIdByCalendar(B: 1, C: 3)"},
        {2, "D MHRWorker::dbCheckGroupsPlan(13, 4, 202301)"},
        {2, "D MHRWorker::dbChangeLastCalc(4, " + shortDate(recalculated) + ")"},
        {1, "D MHRWorker: END synchronization #1 (waiting records: 0)"},
        {2, "D MHRWorker::dbCheckOpen()"}};
    QCOMPARE(synchronise({jana()}).log, linesAt(debugLevel, lines));
}

void TestCycle::anExportWithoutRecordsIsNotReconciled()
{
    newWorker(1);
    const Trace trace = synchronise({jana().with(&ExportRow::osobniCislo, "none")});
    QCOMPARE(trace.statements, QStringList(Sent::readForce()));
    QCOMPARE(trace.log,
             QStringList({"D MHRWorker: BEGIN synchronization #1 (force: NO)",
                          "D MHRWorker: END synchronization #1 (waiting records: 0)"}));
}

void TestCycle::withoutRecordsNothingIsLoggedOrSent()
{
    newWorker(3);
    const Trace trace = observe([this] { m_worker->doSync(); });
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements, QStringList());
}

void TestCycle::recordsAreTakenInTheOrderOfTheFile()
{
    newWorker(1);
    const Trace trace = synchronise({peter(), jana(), maria(), jana()});
    QCOMPARE(trace.log.filter("dbCheckAttendance("),
             QStringList({"I MHRWorker::dbCheckAttendance(pid: 10021): OK",
                          "I MHRWorker::dbCheckAttendance(pid: 12341): OK",
                          "I MHRWorker::dbCheckAttendance(pid: 10011): OK",
                          "I MHRWorker::dbCheckAttendance(pid: 12341): OK"}));
}

void TestCycle::branchesAndFundAreLookedUpOncePerCycle()
{
    for (int cycle = 0; cycle < 2; ++cycle) {
        const QStringList statements = synchronise({peter(), jana(), maria()}).statements;
        QCOMPARE(statements.mid(0, 4), Sent::begin());
        QCOMPARE(statements.count(Sent::branches()), 1);
        QCOMPARE(statements.count(Sent::fund()), 1);
    }
}

void TestCycle::theKnownPeopleAreFreedAtTheEndOfTheCycle_data()
{
    // The people are kept in another place once a row was turned into a record.
    QTest::addColumn<bool>("isChanged");
    QTest::newRow("some were looked for") << true;
    QTest::newRow("nobody was looked for") << false;
}

void TestCycle::theKnownPeopleAreFreedAtTheEndOfTheCycle()
{
    QFETCH(bool, isChanged);
    synchronise({jana(), peter()});
    synchronise({isChanged ? jana().with(&ExportRow::telefon, "1") : jana(), peter()});
    for (const quint32 pid : {12341U, 10021U, 10011U})
        QVERIFY(!m_worker->knownPerson(pid));

    // The next cycle loads them again.
    observe([this] { QVERIFY(m_worker->dbLoadPeople()); });
    for (const quint32 pid : {12341U, 10021U, 10011U})
        QVERIFY(m_worker->knownPerson(pid));
}

void TestCycle::aCycleGoesOnWithoutBranches()
{
    synchronise({jana(), jan()});
    m_export->write({jana().with(&ExportRow::strediskoPopis, "a"),
                     jan().with(&ExportRow::strediskoPopis, "b")});
    const Trace trace = observe([this] {
        m_worker->loadAndParseData();
        m_worker->dbLoadPeople();
        m_db.hideTable("branches");
        m_worker->doSync();
    });
    QCOMPARE(
        trace.log,
        QStringList({"C MHRWorker::dbLoadBranches() - SQL ERROR " + SqlErrors::missing("branches"),
                     "W MHRWorker: Branch '120' NOT FOUND for employee: '1234.1 Nováková Jana "
                     "(S: 120, K: 3 from 1 Jan 2023) N-V: 1 Apr 2019 - ; ES: 0, RS:  -  '' "
                     "TPP: 11  DOV: 17.5 NOC: 0'",
                     "W MHRWorker: Branch '120' NOT FOUND for employee: '1235.1 Szabó Ján (S: "
                     "120, K: 2 from 1 Jun 2020) N-V: 15 Jun 2020 - ; ES: 0, RS:  -  '' TPP: "
                     "11  DOV: 0 NOC: 0'"}));
    QCOMPARE(trace.statements,
             QStringList(Sent::people())
                 << Sent::branches() << Sent::fund() << Sent::fundChecks(12341, 4)
                 << Sent::recalculation(4) << Sent::fundChecks(12351, 5) << Sent::recalculation(5));
}

void TestCycle::aCycleGoesOnWhenTheFundCannotBeLookedUp()
{
    newWorker(1);
    m_db.hideTable("funds");
    const Trace trace = synchronise({tomas()});
    QCOMPARE(trace.log,
             QStringList(
                 {"D MHRWorker: BEGIN synchronization #1 (force: NO)",
                  "C MHRWorker::checkDovolenkaFond() - SQL ERROR " + SqlErrors::missing("funds"),
                  "I MHRWorker::checkDovolenkaFond(): fid=0", "D MHRWorker::dbUpdatePerson(2001.2)",
                  "D MHRWorker: END synchronization #1 (waiting records: 0)"}));
}

void TestCycle::newMembersJoinTheirBranchesInAscendingOrder()
{
    m_db.run("INSERT INTO branches (bid, number) VALUES (500, 801), (7, 802), (65535, 803), "
             "(40, 804), (1000, 805), (300, 806)");
    const auto in = [](ExportRow line, int costCentre) {
        return line.with(&ExportRow::stredisko, costCentre);
    };
    const Trace trace =
        synchronise({in(maria(), 801), in(peter(), 802), in(zuzana(), 803), in(jana(), 804),
                     in(jan(), 805), in(tomas(), 806), in(newcomer(newPersonalNumber()), 801)});
    QCOMPARE(trace.statements.filter("INSERT INTO brape"),
             QStringList({Sent::joinBranch(7, "2"), Sent::joinBranch(40, "4"),
                          Sent::joinBranch(300, "8"), Sent::joinBranch(500, "1,9"),
                          Sent::joinBranch(1000, "5"), Sent::joinBranch(65535, "3")}));
    QCOMPARE(m_db.rows("SELECT bid, uid FROM brape WHERE bid > 4 ORDER BY bid, uid"),
             TableRows({{"7", "2"},
                        {"40", "4"},
                        {"300", "8"},
                        {"500", "1"},
                        {"500", "9"},
                        {"1000", "5"},
                        {"65535", "3"}}));
}

void TestCycle::newMembersReachTerminalsAndAdministrators()
{
    m_db.run("DELETE FROM brape");
    newWorker(1);
    const Trace trace = synchronise({jana(), maria()});
    QCOMPARE(trace.statements.mid(trace.statements.indexOf(Sent::joinBranch(1, "4,1"))),
             QStringList(Sent::joinBranch(1, "4,1"))
                 << Sent::propagation(1, {"4", "1"}, {1, 2}, {1, 4}));
    QCOMPARE(trace.log.filter("BranchesRepository"),
             QStringList({"I BranchesRepository::addPeopleToBranch(1, '4,1')",
                          "I BranchesRepository::slotAddedPeopleToBranch(1, '4,1')",
                          "I BranchesRepository::getTids4Branch(1)",
                          "I BranchesRepository::getAids4Branch(1)"}));
}

void TestCycle::membersThatCouldNotJoinAreForgotten()
{
    m_db.run("DELETE FROM brape");
    m_db.refuse("INSERT", "brape");
    Trace trace = synchronise({jana()});
    QCOMPARE(trace.statements.last(), Sent::joinBranch(1, "4"));
    QCOMPARE(trace.log,
             QStringList("C BranchesRepository::addPeopleToBranch - ERROR: refused by "
                         "the test QMYSQL: Unable to execute query"));

    m_db.allow("INSERT", "brape");
    trace = synchronise();
    QCOMPARE(trace.statements, Sent::begin() << Sent::fundChecks(12341, 4));
    QCOMPARE(m_db.dump("brape"), QString());
}

void TestCycle::theNextCycleAddsOnlyItsOwnMembers()
{
    m_db.run("DELETE FROM brape");
    synchronise({jana()});
    const Trace trace = synchronise({jana(), maria()});
    QCOMPARE(trace.statements.filter("INSERT INTO brape"), QStringList(Sent::joinBranch(1, "1")));
}

void TestCycle::theBranchIdIsNarrowedAtTheCallOnly_data()
{
    QTest::addColumn<int>("bid");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<TableRows>("joined");
    QTest::newRow("65535 is itself")
        << 65535 << "I BranchesRepository::addPeopleToBranch(65535, '8')"
        << QStringList(Sent::joinBranch(65535, "8")) << TableRows({{"65535"}});
    QTest::newRow("65536 becomes 0, which is refused")
        << 65536 << "I BranchesRepository::addPeopleToBranch(0, '8')" << QStringList()
        << TableRows();
    QTest::newRow("65537 becomes 1") << 65537 << "I BranchesRepository::addPeopleToBranch(1, '8')"
                                     << QStringList(Sent::joinBranch(1, "8")) << TableRows({{"1"}});
}

void TestCycle::theBranchIdIsNarrowedAtTheCallOnly()
{
    QFETCH(int, bid);
    QFETCH(QString, call);
    QFETCH(QStringList, statements);
    QFETCH(TableRows, joined);
    m_db.widenIds();
    m_db.run(QString("INSERT INTO branches (bid, number) VALUES (%1, 999)").arg(bid));
    newWorker(1);
    const Trace trace = synchronise({tomas().with(&ExportRow::stredisko, 999)});
    QVERIFY(trace.statements.contains(Sent::membership(20012, bid)));
    QCOMPARE(trace.log.filter("addPeopleToBranch"), QStringList(call));
    QCOMPARE(trace.statements.filter("INSERT INTO brape"), statements);
    QCOMPARE(m_db.rows("SELECT bid FROM brape WHERE uid = 8"), joined);
}

QTEST_GUILESS_MAIN(TestCycle)
#include "tst_cycle.moc"
