#include "tests/support/localzone.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QTest>

namespace {

QDate today()
{
    return QDate::currentDate();
}

int monthOf(const QDate &date)
{
    return date.year() * 100 + date.month();
}

/// Jana, uid 4, a member of branch 1, whose plan has group 13 (calendar 3) from 202301 on.
MirovaRonRecord jana(uint calendar = 3, const QDate &since = QDate(2023, 1, 1))
{
    MirovaRonRecord record;
    record.osobniCislo = 1234;
    record.poradoveCisloPP = 1;
    record.prijmeni = QStringLiteral("Nováková");
    record.stredisko = 120;
    record.kalendar = calendar;
    record.kalendarPlatnostOd = since;
    return record;
}

/// How the log shows jana().
QString described(uint branch, uint calendar, const QString &since)
{
    return QStringLiteral("1234.1 Nováková  (S: %1, K: %2 from %3) N-V:  - ; ES: 0, RS:  -  '' "
                          "TPP: 0  DOV: 0 NOC: 0")
        .arg(branch)
        .arg(calendar)
        .arg(since);
}

} // namespace

/// Branch, calendar group and recalculation: the operations one by one.
class TestBranchCalendar : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void branchesAreLoaded_data() { addDebugLevels(); }
    void branchesAreLoaded();
    void withoutNumbersThereAreNoBranches_data();
    void withoutNumbersThereAreNoBranches();
    void theLastBranchOfANumberCounts();
    void aBranchThatIsGoneIsForgotten();
    void branchesThatCannotBeLoadedAreReportedAndForgotten_data() { addDebugLevels(); }
    void branchesThatCannotBeLoadedAreReportedAndForgotten();

    void anUnknownBranchIsReported_data() { addDebugLevels(); }
    void anUnknownBranchIsReported();
    void aBranchWithTheId0IsUnknown();
    void aMemberWithoutACalendarNeedsNothing();
    void aNewMemberWithoutACalendarIsQueued();
    void aCalendarWithoutAGroupIsReported_data();
    void aCalendarWithoutAGroupIsReported();
    void aPlannedCalendarIsLeftAlone_data();
    void aPlannedCalendarIsLeftAlone();
    void aCalendarFromTodayOnIsPlannedOnly_data();
    void aCalendarFromTodayOnIsPlannedOnly();
    void aCalendarFromThePastIsRecalculated();
    void aCalendarWithoutADateCountsFromTheBeginning();
    void anotherGroupOfTheSameMonthReplacesTheFirst();
    void aPlanThatCannotBeWrittenIsReported_data();
    void aPlanThatCannotBeWrittenIsReported();
    void aPersonWhoIsNotInTheTableIsQueuedAsUid0();
    void monthsThatCannotBeUpdatedDoNotUndoThePlan();
    void aRecalculationThatFailsDoesNotUndoThePlan();
    void everyLineOfAPlacementHasItsLevel_data() { addDebugLevels(); }
    void everyLineOfAPlacementHasItsLevel();

    void membershipIsThatOfThePid();
    void aFailedLookupIsReported_data();
    void aFailedLookupIsReported();
    void theGroupIsThatOfTheBranchsFamily();
    void onlyTheVeryAssignmentIsPlanned();

    void attendanceIsMarkedFromTheDateOn();
    void lockedAndEditedDaysAreNotMarked();
    void theLastCalculationMovesBackOnly_data();
    void theLastCalculationMovesBackOnly();
    void attendanceThatCannotBeMarkedStopsTheRecalculation();
    void aLastCalculationThatCannotBeSetIsReported();
    void aRecalculationFromNoDateIsFromTheEpoch_data();
    void aRecalculationFromNoDateIsFromTheEpoch();
    void datesBeforeTheEpochAreSigned_data();
    void datesBeforeTheEpochAreSigned();
    void theTextOfARecalculationHasTheDateInShort_data();
    void theTextOfARecalculationHasTheDateInShort();

private:
    /// Runs doSyncBranchAndCalendar() with the branches loaded before.
    Trace place(const MirovaRonRecord &record, bool &placed);
};

Trace TestBranchCalendar::place(const MirovaRonRecord &record, bool &placed)
{
    observe([this] { m_worker->dbLoadBranches(); });
    return observe([&] { placed = m_worker->doSyncBranchAndCalendar(record); });
}

void TestBranchCalendar::branchesAreLoaded()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    bool loaded = false;
    const Trace trace = observe([&] { loaded = m_worker->dbLoadBranches(); });
    QVERIFY(loaded);
    QCOMPARE(trace.log, linesAt(debugLevel, {{2, "D MHRWorker::dbLoadBranches()"}}));
    QCOMPARE(trace.statements,
             QStringList("SELECT bid, number FROM branches WHERE number IS NOT NULL"));
}

void TestBranchCalendar::withoutNumbersThereAreNoBranches_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("no branch") << "DELETE FROM branches";
    QTest::newRow("no branch with a number") << "UPDATE branches SET number = NULL";
}

void TestBranchCalendar::withoutNumbersThereAreNoBranches()
{
    QFETCH(QString, statement);
    m_db.run(statement);
    bool loaded = true;
    observe([&] { loaded = m_worker->dbLoadBranches(); });
    QVERIFY(!loaded);
    bool placed = true;
    const Trace trace = place(jana(), placed);
    QVERIFY(!placed);
    QCOMPARE(trace.log.filter("W MHRWorker: Branch '120' NOT FOUND").size(), 1);
}

void TestBranchCalendar::theLastBranchOfANumberCounts()
{
    m_db.run("INSERT INTO branches (bid, number, mgid) VALUES (5, 120, 1)");
    bool placed = false;
    const Trace trace = place(jana(), placed);
    QCOMPARE(trace.statements.first(), Sent::membership(12341, 5));
}

void TestBranchCalendar::aBranchThatIsGoneIsForgotten()
{
    bool placed = false;
    place(jana(), placed);
    QVERIFY(placed);
    m_db.run("DELETE FROM branches WHERE bid = 1");
    place(jana(), placed);
    QVERIFY(!placed);
}

void TestBranchCalendar::branchesThatCannotBeLoadedAreReportedAndForgotten()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    bool loaded = false;
    observe([&] { loaded = m_worker->dbLoadBranches(); });
    QVERIFY(loaded);
    m_db.hideTable("branches");
    const Trace trace = observe([&] { loaded = m_worker->dbLoadBranches(); });
    QVERIFY(!loaded);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbLoadBranches()"},
                      {0,
                       "C MHRWorker::dbLoadBranches() - SQL ERROR [1146]: Table 'tepdb.branches' "
                       "doesn't exist QMYSQL: Unable to execute query"}}));
    bool placed = true;
    observe([&] { placed = m_worker->doSyncBranchAndCalendar(jana()); });
    QVERIFY(!placed);
}

void TestBranchCalendar::anUnknownBranchIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    MirovaRonRecord record = jana();
    record.stredisko = 999;
    bool placed = true;
    const Trace trace = place(record, placed);
    QVERIFY(!placed);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{3, "D MHRWorker::doSyncBranchAndCalendar(1234.1)"},
                      {0,
                       "W MHRWorker: Branch '999' NOT FOUND for employee: '"
                           + described(999, 3, "1 Jan 2023") + "'"}}));
    QCOMPARE(trace.statements, QStringList());
}

void TestBranchCalendar::aBranchWithTheId0IsUnknown()
{
    m_db.run("UPDATE branches SET bid = 0 WHERE bid = 1");
    bool placed = true;
    const Trace trace = place(jana(), placed);
    QVERIFY(!placed);
    QCOMPARE(trace.log.filter("NOT FOUND").size(), 1);
    QCOMPARE(trace.statements, QStringList());
}

void TestBranchCalendar::aMemberWithoutACalendarNeedsNothing()
{
    bool placed = true;
    const Trace trace = place(jana(0), placed);
    QVERIFY(!placed);
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements, QStringList(Sent::membership(12341, 1)));
}

void TestBranchCalendar::aNewMemberWithoutACalendarIsQueued()
{
    m_db.run("DELETE FROM brape");
    bool placed = false;
    const Trace trace = place(jana(0), placed);
    QVERIFY(placed);
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements, QStringList(Sent::membership(12341, 1)));
}

void TestBranchCalendar::aCalendarWithoutAGroupIsReported_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<uint>("calendar");
    QTest::addColumn<bool>("placed");
    QTest::newRow("member") << "SELECT 1" << 9U << false;
    QTest::newRow("new member") << "DELETE FROM brape" << 9U << true;
    QTest::newRow("branch without a family") << "UPDATE branches SET mgid = NULL" << 3U << false;
}

void TestBranchCalendar::aCalendarWithoutAGroupIsReported()
{
    QFETCH(QString, statement);
    QFETCH(uint, calendar);
    m_db.rows(statement);
    bool placed = false;
    const Trace trace = place(jana(calendar), placed);
    QTEST(placed, "placed");
    QCOMPARE(trace.log,
             QStringList(QString("W MHRWorker: Group ID NOT found for Branch 120 and calendar %1 "
                                 "[employee: '%2']!")
                             .arg(calendar)
                             .arg(described(120, calendar, "1 Jan 2023"))));
    QCOMPARE(trace.statements,
             QStringList({Sent::membership(12341, 1), Sent::group(1, int(calendar))}));
}

void TestBranchCalendar::aPlannedCalendarIsLeftAlone_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("member") << "SELECT 1";
    QTest::newRow("new member") << "DELETE FROM brape";
}

void TestBranchCalendar::aPlannedCalendarIsLeftAlone()
{
    QFETCH(QString, statement);
    m_db.rows(statement);
    const DatabaseState before = m_db.dumpAll();
    bool placed = false;
    const Trace trace = place(jana(), placed);
    QVERIFY(placed);
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             QStringList({Sent::membership(12341, 1), Sent::group(1, 3),
                          Sent::plannedGroup(13, 4, 202301)}));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestBranchCalendar::aCalendarFromTodayOnIsPlannedOnly_data()
{
    QTest::addColumn<QDate>("since");
    QTest::newRow("today") << today();
    QTest::newRow("tomorrow") << today().addDays(1);
    QTest::newRow("last day of this month")
        << QDate(today().year(), today().month(), today().daysInMonth());
    QTest::newRow("next year") << today().addYears(1);
}

void TestBranchCalendar::aCalendarFromTodayOnIsPlannedOnly()
{
    QFETCH(QDate, since);
    bool placed = false;
    const Trace trace = place(jana(2, since), placed);
    QVERIFY(placed);
    const int month = monthOf(since);
    QCOMPARE(trace.statements,
             QStringList({Sent::membership(12341, 1), Sent::group(1, 2),
                          Sent::plannedGroup(12, 4, month), Sent::planGroup(12, 4, month),
                          Sent::updateMonths(4, month)}));
    QCOMPARE(m_db.rows("SELECT gid FROM groups_plan WHERE uid = 4 ORDER BY since"),
             TableRows({{"11"}, {"13"}, {"12"}}));
}

void TestBranchCalendar::aCalendarFromThePastIsRecalculated()
{
    const QDate since = today().addDays(-1);
    bool placed = false;
    const Trace trace = place(jana(2, since), placed);
    QVERIFY(placed);
    const int month = monthOf(since);
    QCOMPARE(trace.statements,
             QStringList({Sent::membership(12341, 1), Sent::group(1, 2),
                          Sent::plannedGroup(12, 4, month), Sent::planGroup(12, 4, month),
                          Sent::updateMonths(4, month)})
                 << Sent::recalculation(4, since));
}

void TestBranchCalendar::aCalendarWithoutADateCountsFromTheBeginning()
{
    bool placed = false;
    const Trace trace = place(jana(2, QDate()), placed);
    QVERIFY(placed);
    // The months follow a planned one only, and 0 is none.
    QCOMPARE(
        trace.statements,
        QStringList({Sent::membership(12341, 1), Sent::group(1, 2), Sent::plannedGroup(12, 4, 0),
                     Sent::planGroup(12, 4, 0),
                     "UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND `date` >= 0 "
                     "AND uid =4",
                     "UPDATE people set lastCalc = 0, calc = 0 WHERE lastCalc > 0 AND uid=4"}));
}

void TestBranchCalendar::anotherGroupOfTheSameMonthReplacesTheFirst()
{
    bool placed = false;
    place(jana(2, QDate(2023, 1, 15)), placed);
    QVERIFY(placed);
    QCOMPARE(m_db.rows("SELECT gid, since FROM groups_plan WHERE uid = 4 ORDER BY since"),
             TableRows({{"11", "201904"}, {"12", "202301"}}));
    // The month of the attendance that the sample has.
    QCOMPARE(m_db.rows("SELECT gid, month FROM groups_month WHERE uid = 4"),
             TableRows({{"12", "202503"}}));
}

void TestBranchCalendar::aPlanThatCannotBeWrittenIsReported_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<bool>("placed");
    QTest::newRow("member") << "SELECT 1" << false;
    QTest::newRow("new member") << "DELETE FROM brape" << true;
}

void TestBranchCalendar::aPlanThatCannotBeWrittenIsReported()
{
    QFETCH(QString, statement);
    m_db.rows(statement);
    m_db.refuse("INSERT", "groups_plan");
    bool placed = false;
    const Trace trace = place(jana(2, QDate(2024, 5, 6)), placed);
    QTEST(placed, "placed");
    QCOMPARE(trace.log,
             QStringList({"C GroupsPlanRepo::add - ERROR[1644]: refused by the test QMYSQL: Unable "
                          "to execute query",
                          "W MHRWorker: can't add record '" + described(120, 2, "6 May 2024")
                              + "' into [groups_plan]!"}));
    QCOMPARE(trace.statements.last(), Sent::planGroup(12, 4, 202405));
}

void TestBranchCalendar::aPersonWhoIsNotInTheTableIsQueuedAsUid0()
{
    MirovaRonRecord record = jana();
    record.osobniCislo = quint32(newPersonalNumber());
    const uint pid = record.getPid();
    const DatabaseState before = m_db.dumpAll();
    bool placed = false;
    const Trace trace = place(record, placed);
    QVERIFY(placed);
    QCOMPARE(
        trace.log,
        QStringList(
            "W MHRWorker: can't add record '"
            + described(120, 3, "1 Jan 2023").replace("1234", QString::number(record.osobniCislo))
            + "' into [groups_plan]!"));
    QCOMPARE(trace.statements,
             QStringList({Sent::findUid(pid), Sent::membership(pid, 1), Sent::group(1, 3),
                          Sent::plannedGroup(13, 0, 202301)}));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestBranchCalendar::monthsThatCannotBeUpdatedDoNotUndoThePlan()
{
    m_db.refuse("INSERT", "groups_month");
    bool placed = false;
    const Trace trace = place(jana(2, QDate(2024, 5, 6)), placed);
    QVERIFY(placed);
    QCOMPARE(trace.log,
             QStringList("C GroupsPlanRepo::updateGroupsMonth - ERROR[1644]: refused by the test "
                         "QMYSQL: Unable to execute query"));
    QCOMPARE(m_db.value("SELECT gid FROM groups_plan WHERE uid = 4 AND since = 202405").toInt(),
             12);
    QCOMPARE(trace.statements.mid(5), Sent::recalculation(4, QDate(2024, 5, 6)));
}

void TestBranchCalendar::aRecalculationThatFailsDoesNotUndoThePlan()
{
    m_db.refuse("UPDATE", "atten");
    bool placed = false;
    const Trace trace = place(jana(2, QDate(2024, 5, 6)), placed);
    QVERIFY(placed);
    QCOMPARE(trace.log,
             QStringList("C MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR "
                         + SqlErrors::refused()));
    QCOMPARE(m_db.value("SELECT gid FROM groups_plan WHERE uid = 4 AND since = 202405").toInt(),
             12);
}

void TestBranchCalendar::everyLineOfAPlacementHasItsLevel()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    bool placed = false;
    QCOMPARE(place(jana(2, QDate(2024, 5, 6)), placed).log,
             linesAt(debugLevel,
                     {{3, "D MHRWorker::doSyncBranchAndCalendar(1234.1)"},
                      {2, "D MHRWorker::dbCheckPersonInBranch(12341, 1)"},
                      {2, "D MHRWorker::getGroupIdByCalendar(B: 1, C: 2)"},
                      {2, "D MHRWorker::dbCheckGroupsPlan(12, 4, 202405)"},
                      {2, "D GroupsPlanRepo::add(G: 12, U: 4, S: 202405)"},
                      {2, "D GroupsPlanRepo::updateGroupsMonth(4, 202405)"},
                      {2, "D MHRWorker::dbChangeLastCalc(4, 6 May 2024)"}}));
}

void TestBranchCalendar::membershipIsThatOfThePid()
{
    bool member = false;
    const Trace trace = observe([&] { member = m_worker->dbCheckPersonInBranch(12341, 1); });
    QVERIFY(member);
    QCOMPARE(trace.statements,
             QStringList("SELECT COUNT(*) FROM brape WHERE bid = 1 AND uid = (SELECT uid FROM "
                         "people WHERE pid = 12341 LIMIT 1)"));
    observe([&] { member = m_worker->dbCheckPersonInBranch(12341, 2); });
    QVERIFY(!member);
    observe([&] { member = m_worker->dbCheckPersonInBranch(4, 1); }); // a uid is no pid
    QVERIFY(!member);
}

void TestBranchCalendar::aFailedLookupIsReported_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("debugLevel");
    for (const char *operation : {"membership", "group", "plan"}) {
        for (int level = 0; level <= 3; ++level)
            QTest::newRow(qPrintable(QString("%1, debug level %2").arg(operation).arg(level)))
                << operation << level;
    }
}

void TestBranchCalendar::aFailedLookupIsReported()
{
    QFETCH(QString, operation);
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    uint result = 1;
    Trace trace;
    QVector<LogLine> lines;
    if (operation == "membership") {
        m_db.hideTable("brape");
        trace = observe([&] { result = m_worker->dbCheckPersonInBranch(12341, 1) ? 1 : 0; });
        lines = {
            {2, "D MHRWorker::dbCheckPersonInBranch(12341, 1)"},
            {0, "C MHRWorker::dbCheckPersonInBranch() - SQL ERROR " + SqlErrors::missing("brape")}};
    } else if (operation == "group") {
        m_db.hideTable("mastergroups");
        trace = observe([&] { result = m_worker->dbGetGroupIdByCalendar(1, 3); });
        lines = {{2, "D MHRWorker::getGroupIdByCalendar(B: 1, C: 3)"},
                 {0,
                  "C MHRWorker::getGroupIdByCalendar() - SQL ERROR "
                      + SqlErrors::missing("mastergroups")}};
    } else {
        m_db.hideTable("groups_plan");
        trace = observe([&] { result = m_worker->dbCheckGroupsPlan(13, 4, 202301) ? 1 : 0; });
        lines = {
            {2, "D MHRWorker::dbCheckGroupsPlan(13, 4, 202301)"},
            {0,
             "C MHRWorker::dbCheckGroupsPlan() - SQL ERROR " + SqlErrors::missing("groups_plan")}};
    }
    QCOMPARE(result, 0U);
    QCOMPARE(trace.log, linesAt(debugLevel, lines));
}

void TestBranchCalendar::theGroupIsThatOfTheBranchsFamily()
{
    const auto group = [this](uint bid, uint calendar) {
        uint gid = 99;
        observe([&] { gid = m_worker->dbGetGroupIdByCalendar(bid, calendar); });
        return gid;
    };
    QCOMPARE(group(1, 3), 13U);
    QCOMPARE(group(2, 3), 23U);
    QCOMPARE(group(2, 2), 0U);
    QCOMPARE(group(4, 1), 0U);
    QCOMPARE(group(99, 1), 0U);
    m_db.run("DELETE FROM mastergroups WHERE mgid = 2");
    QCOMPARE(group(2, 3), 0U);
}

void TestBranchCalendar::onlyTheVeryAssignmentIsPlanned()
{
    const auto planned = [this](uint gid, uint uid, uint since) {
        bool found = false;
        observe([&] { found = m_worker->dbCheckGroupsPlan(gid, uid, since); });
        return found;
    };
    QVERIFY(planned(13, 4, 202301));
    QVERIFY(!planned(11, 4, 202301));
    QVERIFY(!planned(13, 5, 202301));
    QVERIFY(!planned(13, 4, 202302));
}

void TestBranchCalendar::attendanceIsMarkedFromTheDateOn()
{
    bool changed = false;
    const Trace trace =
        observe([&] { changed = m_worker->dbChangeLastCalc(5, QDate(2025, 3, 4)); });
    QVERIFY(changed);
    QCOMPARE(trace.statements,
             QStringList({QString("UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND `date` "
                                  ">= %1 AND uid =5")
                              .arg(localMidnight(QDate(2025, 3, 4))),
                          QString("UPDATE people set lastCalc = %1, calc = 0 WHERE lastCalc > %1 "
                                  "AND uid=5")
                              .arg(localMidnight(QDate(2025, 3, 3)))}));
    QCOMPARE(m_db.rows("SELECT ok FROM atten WHERE uid = 5 ORDER BY `date`"),
             TableRows({{"1"}, {"-1"}, {"-1"}}));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM atten WHERE ok = -1 AND uid <> 5").toInt(), 0);
    QCOMPARE(m_db.value("SELECT lastCalc FROM people WHERE uid = 5").toLongLong(),
             localMidnight(QDate(2025, 3, 3)));
    QCOMPARE(m_db.value("SELECT lastCalc FROM people WHERE uid = 4").toLongLong(),
             localMidnight(QDate(2025, 3, 31)));
}

void TestBranchCalendar::lockedAndEditedDaysAreNotMarked()
{
    bool changed = false;
    observe([&] { changed = m_worker->dbChangeLastCalc(4, QDate(2025, 3, 1)); });
    QVERIFY(changed);
    QCOMPARE(m_db.rows("SELECT `lock`, man, ok FROM atten WHERE uid = 4 ORDER BY `date`"),
             TableRows({{"1", "0", "1"}, {"0", "1", "1"}, {"0", "0", "-1"}}));
}

void TestBranchCalendar::theLastCalculationMovesBackOnly_data()
{
    QTest::addColumn<QDate>("lastCalc");
    QTest::addColumn<bool>("moved");
    QTest::newRow("later") << QDate(2025, 3, 31) << true;
    QTest::newRow("on the date itself") << QDate(2025, 3, 4) << true;
    QTest::newRow("on the day before") << QDate(2025, 3, 3) << false;
    QTest::newRow("earlier") << QDate(2025, 2, 1) << false;
}

void TestBranchCalendar::theLastCalculationMovesBackOnly()
{
    QFETCH(QDate, lastCalc);
    QFETCH(bool, moved);
    m_db.run(QString("UPDATE people SET calc = 5, lastCalc = %1 WHERE uid = 5")
                 .arg(localMidnight(lastCalc)));
    bool changed = false;
    observe([&] { changed = m_worker->dbChangeLastCalc(5, QDate(2025, 3, 4)); });
    QVERIFY(changed);
    const QDate expected = moved ? QDate(2025, 3, 3) : lastCalc;
    QCOMPARE(m_db.rows("SELECT lastCalc, calc FROM people WHERE uid = 5"),
             TableRows({{QString::number(localMidnight(expected)), moved ? "0" : "5"}}));
}

void TestBranchCalendar::attendanceThatCannotBeMarkedStopsTheRecalculation()
{
    m_db.hideTable("atten");
    bool changed = true;
    const Trace trace =
        observe([&] { changed = m_worker->dbChangeLastCalc(5, QDate(2025, 3, 4)); });
    QVERIFY(!changed);
    QCOMPARE(trace.log,
             QStringList("C MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR [1146]: Table "
                         "'tepdb.atten' doesn't exist QMYSQL: Unable to execute query"));
    QCOMPARE(trace.statements, Sent::recalculation(5, QDate(2025, 3, 4)).mid(0, 1));
}

void TestBranchCalendar::aLastCalculationThatCannotBeSetIsReported()
{
    m_db.hideTable("people");
    bool changed = true;
    const Trace trace =
        observe([&] { changed = m_worker->dbChangeLastCalc(5, QDate(2025, 3, 4)); });
    QVERIFY(!changed);
    QCOMPARE(trace.log,
             QStringList("C MHRWorker::dbChangeLastCalc() [UPDATE people] - SQL ERROR [1146]: "
                         "Table 'tepdb.people' doesn't exist QMYSQL: Unable to execute query"));
    QCOMPARE(trace.statements, Sent::recalculation(5, QDate(2025, 3, 4)));
    // What the first statement did stays: there is no transaction.
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM atten WHERE uid = 5 AND ok = -1").toInt(), 2);
}

void TestBranchCalendar::aRecalculationFromNoDateIsFromTheEpoch_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("Greenwich") << QByteArray("UTC0");
    QTest::newRow("east") << QByteArray("CET-1CEST,M3.5.0,M10.5.0/3");
    QTest::newRow("far east") << QByteArray("STD-14");
    QTest::newRow("far west") << QByteArray("STD12");
}

void TestBranchCalendar::aRecalculationFromNoDateIsFromTheEpoch()
{
    QFETCH(QByteArray, zone);
    const LocalZone local(zone);
    bool changed = false;
    const Trace trace = observe([&] { changed = m_worker->dbChangeLastCalc(5, QDate()); });
    QVERIFY(changed);
    QCOMPARE(
        trace.statements,
        QStringList({"UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND `date` >= 0 "
                     "AND uid =5",
                     "UPDATE people set lastCalc = 0, calc = 0 WHERE lastCalc > 0 AND uid=5"}));
}

void TestBranchCalendar::datesBeforeTheEpochAreSigned_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("midnight");
    QTest::addColumn<QString>("dayBefore");
    QTest::newRow("last day of 1969") << QByteArray("UTC0") << QDate(1969, 12, 31) << "-86400"
                                      << "-172800";
    QTest::newRow("first day of 1970") << QByteArray("UTC0") << QDate(1970, 1, 1) << "0"
                                       << "-86400";
    QTest::newRow("first day of 1970, east") << QByteArray("STD-2") << QDate(1970, 1, 1) << "-7200"
                                             << "-93600";
    QTest::newRow("1900") << QByteArray("UTC0") << QDate(1900, 1, 1) << "-2208988800"
                          << "-2209075200";
    QTest::newRow("beyond 32 bits") << QByteArray("UTC0") << QDate(2200, 1, 1) << "7258118400"
                                    << "7258032000";
}

void TestBranchCalendar::datesBeforeTheEpochAreSigned()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, date);
    QFETCH(QString, midnight);
    QFETCH(QString, dayBefore);
    const LocalZone local(zone);
    bool changed = false;
    const Trace trace = observe([&] { changed = m_worker->dbChangeLastCalc(5, date); });
    QVERIFY(changed);
    QCOMPARE(trace.statements,
             QStringList({"UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND `date` >= "
                              + midnight + " AND uid =5",
                          "UPDATE people set lastCalc = " + dayBefore
                              + ", calc = 0 WHERE lastCalc > " + dayBefore + " AND uid=5"}));
}

void TestBranchCalendar::theTextOfARecalculationHasTheDateInShort_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("level 1") << 1 << QDate(2025, 3, 4) << QStringList();
    QTest::newRow("level 2") << 2 << QDate(2025, 3, 4)
                             << QStringList("D MHRWorker::dbChangeLastCalc(5, 4 Mar 2025)");
    QTest::newRow("no date") << 2 << QDate() << QStringList("D MHRWorker::dbChangeLastCalc(5, )");
}

void TestBranchCalendar::theTextOfARecalculationHasTheDateInShort()
{
    QFETCH(int, debugLevel);
    QFETCH(QDate, date);
    newWorker(debugLevel);
    const Trace trace = observe([&] { m_worker->dbChangeLastCalc(5, date); });
    QTEST(trace.log, "log");
}

QTEST_GUILESS_MAIN(TestBranchCalendar)
#include "tst_branchcalendar.moc"
