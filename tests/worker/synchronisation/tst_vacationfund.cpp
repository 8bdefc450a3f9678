#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/refusecolumn.h"
#include "tests/worker/synchronisation/sent.h"

#include <QDateTime>
#include <QTest>

namespace {

QDate today()
{
    return QDate::currentDate();
}

QDate firstOfMonth()
{
    return QDate(today().year(), today().month(), 1);
}

} // namespace

/// The vacation fund: the operations one by one. Tomáš is uid 8, pid 20012; Jana uid 4, pid 12341.
class TestVacationFund : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void theFundIsFound_data() { addDebugLevels(); }
    void theFundIsFound();
    void onlyItemAndUnitTogetherMakeTheFund_data();
    void onlyItemAndUnitTogetherMakeTheFund();
    void theFundIdIsKeptIn16Bits_data();
    void theFundIdIsKeptIn16Bits();
    void aFundThatIsGoneIsRemembered();
    void aFundThatCannotBeLookedUpIsReportedAndRemembered_data() { addDebugLevels(); }
    void aFundThatCannotBeLookedUpIsReportedAndRemembered();

    void aCorrectionIsAllowedOnceADay_data();
    void aCorrectionIsAllowedOnceADay();
    void theWordOnTheMoveHasItsLevel_data();
    void theWordOnTheMoveHasItsLevel();
    void movesThatCannotBeCountedForbidACorrection_data() { addDebugLevels(); }
    void movesThatCannotBeCountedForbidACorrection();

    void calculatedAttendanceAllowsACorrection_data() { addDebugLevels(); }
    void calculatedAttendanceAllowsACorrection();
    void aRecentCalculationForbidsACorrection_data();
    void aRecentCalculationForbidsACorrection();
    void daysThatAreNotCalculatedForbidACorrection_data();
    void daysThatAreNotCalculatedForbidACorrection();
    void anUnknownPidForbidsACorrection();
    void attendanceThatCannotBeReadForbidsACorrection_data() { addDebugLevels(); }
    void attendanceThatCannotBeReadForbidsACorrection();
    void openDaysThatCannotBeCountedDoNotForbidACorrection_data() { addDebugLevels(); }
    void openDaysThatCannotBeCountedDoNotForbidACorrection();

    void withoutMovesTheBalanceIsZero_data() { addDebugLevels(); }
    void withoutMovesTheBalanceIsZero();
    void theBalanceCountsTheRightMoves_data();
    void theBalanceCountsTheRightMoves();
    void theBalanceIsThatOfThePersonAndTheFund();
    void aBalanceBeyond32BitsIsSaturated_data();
    void aBalanceBeyond32BitsIsSaturated();
    void aSumThatFailsIsReported_data() { addDebugLevels(); }
    void aSumThatFailsIsReported();
    void aSumOfCorrectionsThatFailsIsReported_data() { addDebugLevels(); }
    void aSumOfCorrectionsThatFailsIsReported();

    void aCorrectionIsWrittenForToday_data() { addDebugLevels(); }
    void aCorrectionIsWrittenForToday();
    void anotherCorrectionOfTheDayReplacesTheFirst();
    void theSameCorrectionAgainWritesNothing();
    void aCorrectionThatCannotBeWrittenIsReported_data() { addDebugLevels(); }
    void aCorrectionThatCannotBeWrittenIsReported();

private:
    void findFund()
    {
        observe([this] { m_worker->dbCheckDovolenkaFond(3); });
    }
    void addMove(int uid, int type, const QDate &day, qint64 value, int fid = 2);
    void addDay(const QDate &day, int ok, bool locked = false, bool edited = false);
};

void TestVacationFund::addMove(int uid, int type, const QDate &day, qint64 value, int fid)
{
    m_db.run(QString("INSERT INTO funds_move (type, day, month, value, fid, uid) "
                     "VALUES (%1, %2, %3, %4, %5, %6)")
                 .arg(type)
                 .arg(localMidnight(day))
                 .arg(day.year() * 100 + day.month())
                 .arg(value)
                 .arg(fid)
                 .arg(uid));
}

void TestVacationFund::addDay(const QDate &day, int ok, bool locked, bool edited)
{
    m_db.run(QString("INSERT INTO atten (uid, `date`, ok, `lock`, man) VALUES (8, %1, %2, %3, %4)")
                 .arg(localMidnight(day))
                 .arg(ok)
                 .arg(locked ? 1 : 0)
                 .arg(edited ? 1 : 0));
}

void TestVacationFund::theFundIsFound()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    const Trace trace = observe([this] { m_worker->dbCheckDovolenkaFond(3); });
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::checkDovolenkaFond()"},
                      {1, "I MHRWorker::checkDovolenkaFond(): fid=2"}}));
    QCOMPARE(trace.statements, QStringList("SELECT fid FROM funds WHERE iid = 3 AND unit=2"));
}

void TestVacationFund::onlyItemAndUnitTogetherMakeTheFund_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("iid");
    QTest::addColumn<QString>("line");
    QTest::newRow("both") << "SELECT 1" << 3 << "I MHRWorker::checkDovolenkaFond(): fid=2";
    QTest::newRow("another item") << "SELECT 1" << 5 << "I MHRWorker::checkDovolenkaFond(): fid=3";
    QTest::newRow("an item without a fund")
        << "SELECT 1" << 4 << "I MHRWorker::checkDovolenkaFond(): fid=0";
    QTest::newRow("another unit") << "UPDATE funds SET unit = 1" << 3
                                  << "I MHRWorker::checkDovolenkaFond(): fid=0";
    QTest::newRow("no funds") << "DELETE FROM funds" << 3
                              << "I MHRWorker::checkDovolenkaFond(): fid=0";
}

void TestVacationFund::onlyItemAndUnitTogetherMakeTheFund()
{
    QFETCH(QString, statement);
    QFETCH(int, iid);
    QFETCH(QString, line);
    newWorker(1);
    m_db.rows(statement);
    const Trace trace =
        observe([&] { m_worker->dbCheckDovolenkaFond(static_cast<unsigned short>(iid)); });
    QCOMPARE(trace.log, QStringList(line));
}

void TestVacationFund::theFundIdIsKeptIn16Bits_data()
{
    QTest::addColumn<int>("fid");
    QTest::addColumn<QString>("line");
    QTest::newRow("65535") << 65535 << "I MHRWorker::checkDovolenkaFond(): fid=65535";
    QTest::newRow("65536") << 65536 << "I MHRWorker::checkDovolenkaFond(): fid=0";
    QTest::newRow("65539") << 65539 << "I MHRWorker::checkDovolenkaFond(): fid=3";
}

void TestVacationFund::theFundIdIsKeptIn16Bits()
{
    QFETCH(int, fid);
    QFETCH(QString, line);
    newWorker(1);
    m_db.run(QString("UPDATE funds SET fid = %1 WHERE fid = 2").arg(fid));
    QCOMPARE(observe([this] { m_worker->dbCheckDovolenkaFond(3); }).log, QStringList(line));
}

void TestVacationFund::aFundThatIsGoneIsRemembered()
{
    newWorker(1);
    findFund();
    m_db.run("DELETE FROM funds");
    QCOMPARE(observe([this] { m_worker->dbCheckDovolenkaFond(3); }).log,
             QStringList("I MHRWorker::checkDovolenkaFond(): fid=2"));
}

void TestVacationFund::aFundThatCannotBeLookedUpIsReportedAndRemembered()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    findFund();
    m_db.hideTable("funds");
    QCOMPARE(observe([this] { m_worker->dbCheckDovolenkaFond(3); }).log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::checkDovolenkaFond()"},
                      {0,
                       "C MHRWorker::checkDovolenkaFond() - SQL ERROR [1146]: Table 'tepdb.funds' "
                       "doesn't exist QMYSQL: Unable to execute query"},
                      {1, "I MHRWorker::checkDovolenkaFond(): fid=2"}}));
}

void TestVacationFund::aCorrectionIsAllowedOnceADay_data()
{
    QTest::addColumn<int>("uid");
    QTest::addColumn<int>("type");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("fid");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("a correction of today") << 8 << 3 << today() << 2 << false;
    QTest::newRow("a correction of yesterday") << 8 << 3 << today().addDays(-1) << 2 << true;
    QTest::newRow("a correction of tomorrow") << 8 << 3 << today().addDays(1) << 2 << true;
    QTest::newRow("another move of today") << 8 << 2 << today() << 2 << true;
    QTest::newRow("of another fund") << 8 << 3 << today() << 3 << true;
    QTest::newRow("of another person") << 4 << 3 << today() << 2 << true;
}

void TestVacationFund::aCorrectionIsAllowedOnceADay()
{
    QFETCH(int, uid);
    QFETCH(int, type);
    QFETCH(QDate, day);
    QFETCH(int, fid);
    findFund();
    addMove(uid, type, day, 100, fid);
    bool allowed = false;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckFundMove(20012); });
    QTEST(allowed, "allowed");
    QCOMPARE(trace.statements,
             QStringList("SELECT COUNT(*) FROM funds_move WHERE type=3 AND day = "
                         "midnightFromTs(UNIX_TIMESTAMP()) AND fid = 2 AND uid=(SELECT uid FROM "
                         "people WHERE pid = 20012)"));
}

void TestVacationFund::theWordOnTheMoveHasItsLevel_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<bool>("exists");
    for (int level = 0; level <= 3; ++level) {
        QTest::addRow("none, debug level %d", level) << level << false;
        QTest::addRow("one, debug level %d", level) << level << true;
    }
}

void TestVacationFund::theWordOnTheMoveHasItsLevel()
{
    QFETCH(int, debugLevel);
    QFETCH(bool, exists);
    newWorker(debugLevel);
    findFund();
    if (exists)
        addMove(8, 3, today(), 100);
    const QString word = exists ? "exists" : "OK - non exists";
    QCOMPARE(observe([this] { m_worker->dbCheckFundMove(20012); }).log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbCheckFundMove(pid: 20012)"},
                      {1, "I MHRWorker::dbCheckFundMove(pid: 20012): " + word}}));
}

void TestVacationFund::movesThatCannotBeCountedForbidACorrection()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    findFund();
    m_db.hideTable("funds_move");
    bool allowed = true;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckFundMove(20012); });
    QVERIFY(!allowed);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbCheckFundMove(pid: 20012)"},
                      {0,
                       "C MHRWorker::dbCheckFundMove() - SQL ERROR [1146]: Table "
                       "'tepdb.funds_move' doesn't exist QMYSQL: Unable to execute query"},
                      {1, "I MHRWorker::dbCheckFundMove(pid: 20012): exists"}}));
}

void TestVacationFund::calculatedAttendanceAllowsACorrection()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    bool allowed = false;
    uint uid = 0;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckAttendance(20012, uid); });
    QVERIFY(allowed);
    QCOMPARE(uid, 8U);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbCheckAttendance(pid: 20012)"},
                      {1, "I MHRWorker::dbCheckAttendance(pid: 20012): OK"}}));
    QCOMPARE(trace.statements,
             QStringList({"SELECT p.uid, calc, (SELECT COUNT(*) FROM atten a WHERE a.uid = p.uid "
                          "AND !a.lock AND a.ok = -1) uncalc FROM people p WHERE pid = 20012",
                          "SELECT COUNT(*) FROM atten WHERE uid = 8 AND `lock`=0 AND ok < 0 AND "
                          "date >= midnightFromTs(UNIX_TIMESTAMP())"}));
}

void TestVacationFund::aRecentCalculationForbidsACorrection_data()
{
    // The limit lies between 899 and 900 seconds. Values nearer to it than the duration of the test
    // need a moved clock.
    QTest::addColumn<int>("age");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("just now") << 0 << false;
    QTest::newRow("ten minutes ago") << 600 << false;
    QTest::newRow("fifteen minutes ago") << 900 << true;
    QTest::newRow("twenty minutes ago") << 1200 << true;
    QTest::newRow("in the future") << -600 << false;
}

void TestVacationFund::aRecentCalculationForbidsACorrection()
{
    QFETCH(int, age);
    newWorker(1);
    m_db.run(QString("UPDATE people SET calc = %1 WHERE uid = 8")
                 .arg(QDateTime::currentSecsSinceEpoch() - age));
    bool allowed = false;
    uint uid = 0;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckAttendance(20012, uid); });
    QTEST(allowed, "allowed");
    QCOMPARE(uid, 8U);
    QCOMPARE(trace.log,
             QStringList(QString("I MHRWorker::dbCheckAttendance(pid: 20012): ")
                         + (allowed ? "OK" : "NO OK")));
    QCOMPARE(trace.statements.size(), allowed ? 2 : 1);
}

void TestVacationFund::daysThatAreNotCalculatedForbidACorrection_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("ok");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("edited");
    QTest::addColumn<bool>("allowed");
    QTest::addColumn<int>("statements");
    const QDate past(2025, 3, 3);
    QTest::newRow("calculated") << past << 1 << false << false << true << 2;
    QTest::newRow("-1 long ago") << past << -1 << false << false << false << 1;
    QTest::newRow("-1 edited by hand") << past << -1 << false << true << false << 1;
    QTest::newRow("-1 locked") << past << -1 << true << false << true << 2;
    QTest::newRow("-2 long ago") << past << -2 << false << false << true << 2;
    QTest::newRow("-2 yesterday") << today().addDays(-1) << -2 << false << false << true << 2;
    QTest::newRow("-2 today") << today() << -2 << false << false << false << 2;
    QTest::newRow("-2 tomorrow") << today().addDays(1) << -2 << false << false << false << 2;
    QTest::newRow("-2 today, locked") << today() << -2 << true << false << true << 2;
    QTest::newRow("-1 today") << today() << -1 << false << false << false << 1;
}

void TestVacationFund::daysThatAreNotCalculatedForbidACorrection()
{
    QFETCH(QDate, day);
    QFETCH(int, ok);
    QFETCH(bool, locked);
    QFETCH(bool, edited);
    addDay(day, ok, locked, edited);
    newWorker(1);
    bool allowed = false;
    uint uid = 0;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckAttendance(20012, uid); });
    QTEST(allowed, "allowed");
    QTEST(trace.statements.size(), "statements");
    QCOMPARE(uid, 8U);
    QCOMPARE(trace.log,
             QStringList(QString("I MHRWorker::dbCheckAttendance(pid: 20012): ")
                         + (allowed ? "OK" : "NO OK")));
}

void TestVacationFund::anUnknownPidForbidsACorrection()
{
    newWorker(1);
    bool allowed = true;
    uint uid = 77;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckAttendance(99, uid); });
    QVERIFY(!allowed);
    QCOMPARE(uid, 77U); // untouched
    QCOMPARE(trace.log, QStringList("I MHRWorker::dbCheckAttendance(pid: 99): NO OK"));
    QCOMPARE(trace.statements, QStringList(Sent::calculation(99)));
}

void TestVacationFund::attendanceThatCannotBeReadForbidsACorrection()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    m_db.hideTable("atten");
    bool allowed = true;
    uint uid = 77;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckAttendance(20012, uid); });
    QVERIFY(!allowed);
    QCOMPARE(uid, 77U);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbCheckAttendance(pid: 20012)"},
                      {0,
                       "C MHRWorker::dbCheckAttendance() - SQL ERROR [1146]: Table 'tepdb.atten' "
                       "doesn't exist QMYSQL: Unable to execute query"},
                      {1, "I MHRWorker::dbCheckAttendance(pid: 20012): NO OK"}}));
    QCOMPARE(trace.statements, QStringList(Sent::calculation(20012)));
}

void TestVacationFund::openDaysThatCannotBeCountedDoNotForbidACorrection()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    addDay(today(), -2); // would forbid it
    refuseColumn(m_db, "atten", "date");
    bool allowed = false;
    uint uid = 0;
    const Trace trace = observe([&] { allowed = m_worker->dbCheckAttendance(20012, uid); });
    QVERIFY(allowed);
    QCOMPARE(
        trace.log,
        linesAt(debugLevel,
                {{2, "D MHRWorker::dbCheckAttendance(pid: 20012)"},
                 {0, "C MHRWorker::dbCheckAttendance() - SQL ERROR " + SqlErrors::refusedColumn()},
                 {1, "I MHRWorker::dbCheckAttendance(pid: 20012): OK"}}));
}

void TestVacationFund::withoutMovesTheBalanceIsZero()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    findFund();
    bool ok = false;
    int balance = -1;
    const Trace trace = observe([&] { balance = m_worker->loadFundStatusAndMove3(20012, ok); });
    QVERIFY(ok);
    QCOMPARE(balance, 0);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::loadFundStatusAndMove3(pid: 20012)"},
                      {1, "I MHRWorker::loadFundStatusAndMove3(pid: 20012): 0, load OK: YES"}}));
    const QString monthStart = QString::number(localMidnight(firstOfMonth()));
    QCOMPARE(trace.statements,
             QStringList({"SELECT SUM(fm.value) FROM funds_move fm JOIN people p USING(uid) WHERE "
                          "fm.day < "
                              + monthStart + "  AND fm.fid = 2 AND p.pid = 20012",
                          "SELECT SUM(fm.value) FROM funds_move fm JOIN people p USING(uid) WHERE "
                          "fm.type=3 AND fm.day >= "
                              + monthStart
                              + " AND fm.day < midnightFromTs(UNIX_TIMESTAMP()) AND fm.fid = 2 "
                                "AND p.pid = 20012"}));
}

void TestVacationFund::theBalanceCountsTheRightMoves_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<bool>("counted");
    const QDate lastOfBefore = firstOfMonth().addDays(-1);
    QTest::newRow("entitlement, last month") << 1 << lastOfBefore << true;
    QTest::newRow("vacation, last month") << 2 << lastOfBefore << true;
    QTest::newRow("correction, last month") << 3 << lastOfBefore << true;
    QTest::newRow("vacation, first of this month") << 2 << firstOfMonth() << false;
    QTest::newRow("correction, first of this month") << 3 << firstOfMonth() << true;
    QTest::newRow("correction, yesterday") << 3 << today().addDays(-1) << true;
    QTest::newRow("vacation, today") << 2 << today() << false;
    QTest::newRow("correction, today") << 3 << today() << false;
    QTest::newRow("correction, tomorrow") << 3 << today().addDays(1) << false;
}

void TestVacationFund::theBalanceCountsTheRightMoves()
{
    QFETCH(int, type);
    QFETCH(QDate, day);
    QFETCH(bool, counted);
    findFund();
    addMove(8, 1, QDate(2025, 1, 1), 2500);
    addMove(8, type, day, -130);
    bool ok = false;
    int balance = -1;
    observe([&] { balance = m_worker->loadFundStatusAndMove3(20012, ok); });
    QVERIFY(ok);
    QCOMPARE(balance, counted ? 2370 : 2500);
}

void TestVacationFund::theBalanceIsThatOfThePersonAndTheFund()
{
    findFund();
    bool ok = false;
    int balance = -1;
    observe([&] { balance = m_worker->loadFundStatusAndMove3(12341, ok); });
    QCOMPARE(balance, 2000 - 300 + 50); // not the 800 of fund 3, nor what Mária has
    observe([&] { balance = m_worker->loadFundStatusAndMove3(10011, ok); });
    QCOMPARE(balance, 2500 - 500);
}

void TestVacationFund::aBalanceBeyond32BitsIsSaturated_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("balance");
    QTest::addColumn<QString>("line");
    QTest::newRow("great") << 2147483647 << 2147483647
                           << "I MHRWorker::loadFundStatusAndMove3(pid: 20012): 2147483647, load "
                              "OK: YES";
    QTest::newRow("small") << (-2147483647 - 1) << (-2147483647 - 1)
                           << "I MHRWorker::loadFundStatusAndMove3(pid: 20012): -2147483648, load "
                              "OK: YES";
}

void TestVacationFund::aBalanceBeyond32BitsIsSaturated()
{
    QFETCH(int, value);
    QFETCH(QString, line);
    newWorker(1);
    findFund();
    addMove(8, 1, QDate(2025, 1, 1), value);
    addMove(8, 1, QDate(2025, 2, 1), value);
    bool ok = false;
    int balance = 0;
    const Trace trace = observe([&] { balance = m_worker->loadFundStatusAndMove3(20012, ok); });
    QVERIFY(ok);
    QTEST(balance, "balance");
    QCOMPARE(trace.log, QStringList(line));
}

void TestVacationFund::aSumThatFailsIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    findFund();
    addMove(8, 2, QDate(2025, 1, 1), 2500);
    addMove(8, 3, firstOfMonth(), 30);
    refuseColumn(m_db, "funds_move", "value", "type = 2");
    bool ok = true;
    int balance = -1;
    const Trace trace = observe([&] { balance = m_worker->loadFundStatusAndMove3(20012, ok); });
    QVERIFY(!ok);
    QCOMPARE(balance, 30); // the second sum is still made
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::loadFundStatusAndMove3(pid: 20012)"},
                      {0,
                       "C MHRWorker::loadFundStatusAndMove3() - SQL 1 ERROR "
                           + SqlErrors::refusedColumn()},
                      {1, "I MHRWorker::loadFundStatusAndMove3(pid: 20012): 30, load OK: NO"}}));
    QCOMPARE(trace.statements, Sent::balance(20012));
}

void TestVacationFund::aSumOfCorrectionsThatFailsIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    findFund();
    addMove(8, 2, QDate(2025, 1, 1), 2500);
    addMove(8, 3, firstOfMonth(), 30);
    refuseColumn(m_db, "funds_move", "value", "type = 3");
    bool ok = true;
    int balance = -1;
    const Trace trace = observe([&] { balance = m_worker->loadFundStatusAndMove3(20012, ok); });
    QVERIFY(!ok);
    QCOMPARE(balance, 2500);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::loadFundStatusAndMove3(pid: 20012)"},
                      {0,
                       "C MHRWorker::loadFundStatusAndMove3() - SQL 2 ERROR "
                           + SqlErrors::refusedColumn()},
                      {1, "I MHRWorker::loadFundStatusAndMove3(pid: 20012): 2500, load OK: NO"}}));
}

void TestVacationFund::aCorrectionIsWrittenForToday()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    findFund();
    bool written = false;
    const Trace trace = observe([&] { written = m_worker->writeFundMove3(8, -250); });
    QVERIFY(written);
    QCOMPARE(trace.log,
             linesAt(debugLevel, {{1, "D MHRWorker::writeFundMove3(uid: 8, value: -250)"}}));
    const QString midnight = QString::number(localMidnight(today()));
    QCOMPARE(trace.statements,
             QStringList("INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES(3, "
                         + midnight + ", monthFromTimestamp(" + midnight
                         + "), -250, 2, 8) ON DUPLICATE KEY UPDATE value=VALUES(value)"));
    QCOMPARE(m_db.rows("SELECT type, day, month, value, fid FROM funds_move WHERE uid = 8"),
             TableRows({{"3", midnight, QString::number(today().year() * 100 + today().month()),
                         "-250", "2"}}));
}

void TestVacationFund::anotherCorrectionOfTheDayReplacesTheFirst()
{
    findFund();
    bool written = false;
    observe([&] { m_worker->writeFundMove3(8, 100); });
    observe([&] { written = m_worker->writeFundMove3(8, 200); });
    QVERIFY(written);
    QCOMPARE(m_db.rows("SELECT value FROM funds_move WHERE uid = 8"), TableRows({{"200"}}));
}

void TestVacationFund::theSameCorrectionAgainWritesNothing()
{
    findFund();
    bool written = true;
    observe([&] { m_worker->writeFundMove3(8, 100); });
    const Trace trace = observe([&] { written = m_worker->writeFundMove3(8, 100); });
    QVERIFY(!written);
    QCOMPARE(trace.log, QStringList());
}

void TestVacationFund::aCorrectionThatCannotBeWrittenIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    findFund();
    m_db.hideTable("funds_move");
    bool written = true;
    const Trace trace = observe([&] { written = m_worker->writeFundMove3(8, 100); });
    QVERIFY(!written);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::writeFundMove3(uid: 8, value: 100)"},
                      {0,
                       "C MHRWorker::writeFundMove3() - SQL ERROR [1146]: Table "
                       "'tepdb.funds_move' doesn't exist QMYSQL: Unable to execute query\n SQL: "
                           + Sent::correction(8, 100)}}));
}

QTEST_GUILESS_MAIN(TestVacationFund)
#include "tst_vacationfund.moc"
