#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/refusecolumn.h"
#include "tests/worker/synchronisation/sent.h"

#include <QRegularExpression>
#include <QTest>

using namespace SampleExport;

namespace {

QDate today()
{
    return QDate::currentDate();
}

ExportRow tomasWith(const QString &balance)
{
    return tomas().with(&ExportRow::dovolenaZustatek, balance);
}

QString notWritten(const QString &value)
{
    return "W MHRWorker::doSyncRecord() - funds_move type (type=3, valeu=" + value
        + ") not writed for uid 8 (pid: 20012)";
}

} // namespace

/// When the driver corrects a vacation balance, by how much, and when it tries again.
class TestBalance : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void aChangedBalanceIsCorrectedAndRecalculated();
    void theCorrectionIsTheDifferenceToTheBalanceInTheFund();
    void anEqualBalanceIsNotCorrected();
    void theTargetIsTruncated_data();
    void theTargetIsTruncated();

    void aBalanceThatDoesNotFitIsNotWritten_data();
    void aBalanceThatDoesNotFitIsNotWritten();
    void aDifferenceThatDoesNotFitIsNotWritten_data();
    void aDifferenceThatDoesNotFitIsNotWritten();
    void aBalanceBeyond32BitsIsCorrectedWhenTheDifferenceFits();

    void withoutAFundBalancesAreLeftAlone();
    void withoutAFundAChangedBalanceStillAsksForARecalculation();
    void anUnchangedBalanceIsNotLoaded();
    void aForcedCycleLoadsAnUnchangedBalance();
    void anotherChangeLeavesAnUnchangedBalanceAlone();

    void bothChecksAreMadeEvenWhenTheFirstFails();
    void anUncalculatedPersonIsCorrectedOnceCalculated();
    void asLongAsItIsNotCalculatedNothingIsLoaded();
    void aCorrectedPersonIsLookedAtAgainOnTheNextDay();
    void aFundThatIsGoneLeavesTheFlagsAsTheyWere_data();
    void aFundThatIsGoneLeavesTheFlagsAsTheyWere();

    void aBalanceThatCannotBeLoadedIsReported_data() { addDebugLevels(); }
    void aBalanceThatCannotBeLoadedIsReported();
    void aBalanceThatCannotBeLoadedAsksForNoRecalculation();
    void aCorrectionThatCannotBeWrittenIsReported_data() { addDebugLevels(); }
    void aCorrectionThatCannotBeWrittenIsReported();
};

void TestBalance::aChangedBalanceIsCorrectedAndRecalculated()
{
    synchronise({tomas()});
    const Trace trace = synchronise({tomasWith("12.345")});
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::balance(20012)
                           << Sent::correction(8, 1234) << Sent::recalculation(8));
    QCOMPARE(m_db.rows("SELECT type, day, month, value, fid FROM funds_move WHERE uid = 8"),
             TableRows({{"3", QString::number(localMidnight(today())),
                         QString::number(today().year() * 100 + today().month()), "1234", "2"}}));
}

void TestBalance::theCorrectionIsTheDifferenceToTheBalanceInTheFund()
{
    QVERIFY(synchronise({jana().with(&ExportRow::dovolenaZustatek, "20")})
                .statements.contains(Sent::correction(4, 250)));
    QVERIFY(synchronise({maria().with(&ExportRow::dovolenaZustatek, "-1")})
                .statements.contains(Sent::correction(1, -2100)));
}

void TestBalance::anEqualBalanceIsNotCorrected()
{
    synchronise({tomas(), jana()});
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM funds_move WHERE type = 3").toInt(), 1);
}

void TestBalance::theTargetIsTruncated_data()
{
    QTest::addColumn<QString>("days");
    QTest::addColumn<int>("hundredths");
    QTest::newRow("12.345") << "12.345" << 1234;
    QTest::newRow("12.349, not rounded") << "12.349" << 1234;
    QTest::newRow("1.15, whose product lies below 115") << "1.15" << 114;
    QTest::newRow("-0.5") << "-0.5" << -50;
    QTest::newRow("-12.349, toward zero") << "-12.349" << -1234;
    QTest::newRow("greatest") << "21474836.47" << 2147483647;
    QTest::newRow("least") << "-21474836.48" << (-2147483647 - 1);
}

void TestBalance::theTargetIsTruncated()
{
    QFETCH(QString, days);
    QFETCH(int, hundredths);
    QCOMPARE(synchronise({tomasWith(days)}).statements.filter("INSERT INTO funds_move"),
             QStringList(Sent::correction(8, hundredths)));
    QCOMPARE(m_db.value("SELECT value FROM funds_move WHERE uid = 8").toInt(), hundredths);
}

void TestBalance::aBalanceThatDoesNotFitIsNotWritten_data()
{
    QTest::addColumn<QString>("days");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("shown");
    QTest::newRow("not a number") << "nan" << 0 << "0";
    QTest::newRow("infinite") << "inf" << 0 << "2147483647";
    QTest::newRow("infinite, less a balance") << "inf" << 100 << "2147483647";
    QTest::newRow("negative infinite") << "-inf" << -100 << "-2147483648";
    QTest::newRow("huge") << "1e300" << 100 << "2147483647";
    QTest::newRow("one too many") << "21474836.48" << 0 << "2147483647";
    QTest::newRow("one too few") << "-21474836.49" << 0 << "-2147483648";
    QTest::newRow("one too many, though the difference fits")
        << "21474836.48" << 100 << "2147483548";
}

void TestBalance::aBalanceThatDoesNotFitIsNotWritten()
{
    QFETCH(QString, days);
    QFETCH(int, current);
    QFETCH(QString, shown);
    m_db.run(QString("INSERT INTO funds_move (type, day, month, value, fid, uid) "
                     "VALUES (1, UNIX_TIMESTAMP('2025-01-01'), 202501, %1, 2, 8)")
                 .arg(current));
    synchronise({tomas().with(&ExportRow::dovolenaZustatek, QString::number(current / 100))});
    const DatabaseState before = m_db.dumpAll();
    const Trace trace = synchronise({tomasWith(days)});
    QCOMPARE(trace.log, QStringList(notWritten(shown)));
    QCOMPARE(trace.statements, Sent::begin() << Sent::fundChecks(20012, 8) << Sent::balance(20012));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestBalance::aDifferenceThatDoesNotFitIsNotWritten_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("days");
    QTest::addColumn<QString>("shown");
    QTest::newRow("too great") << -1 << "21474836.47"
                               << "2147483647";
    QTest::newRow("too small") << 1 << "-21474836.48"
                               << "-2147483648";
}

void TestBalance::aDifferenceThatDoesNotFitIsNotWritten()
{
    QFETCH(int, current);
    QFETCH(QString, days);
    QFETCH(QString, shown);
    m_db.run(QString("INSERT INTO funds_move (type, day, month, value, fid, uid) "
                     "VALUES (1, UNIX_TIMESTAMP('2025-01-01'), 202501, %1, 2, 8)")
                 .arg(current));
    const Trace trace = synchronise({tomasWith(days)});
    QCOMPARE(trace.log, QStringList(notWritten(shown)));
    QCOMPARE(trace.statements.filter("INSERT INTO funds_move"), QStringList());
}

void TestBalance::aBalanceBeyond32BitsIsCorrectedWhenTheDifferenceFits()
{
    m_db.run("INSERT INTO funds_move (type, day, month, value, fid, uid) "
             "VALUES (1, UNIX_TIMESTAMP('2025-01-01'), 202501, 2147483647, 2, 8), "
             "(2, UNIX_TIMESTAMP('2025-01-01'), 202501, 2147483647, 2, 8)");
    newWorker(1);
    const Trace trace = synchronise({tomasWith("21474836.47")});
    QVERIFY(trace.log.contains(
        "I MHRWorker::loadFundStatusAndMove3(pid: 20012): 2147483647, load OK: YES"));
    QVERIFY(trace.statements.contains(Sent::correction(8, -2147483647)));
}

void TestBalance::withoutAFundBalancesAreLeftAlone()
{
    m_db.run("DELETE FROM funds WHERE fid = 2");
    synchronise({tomas()});
    const DatabaseState before = m_db.dumpAll();
    const Trace trace = synchronise({tomasWith("12.345")});
    QCOMPARE(trace.statements, Sent::begin());
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestBalance::withoutAFundAChangedBalanceStillAsksForARecalculation()
{
    // The loaded person has no start of a calendar, so a line with one always differs from it.
    m_db.run("DELETE FROM funds WHERE fid = 2");
    synchronise({jana()});
    QCOMPARE(synchronise({jana().with(&ExportRow::dovolenaZustatek, "3")}).statements,
             Sent::begin() << Sent::membership(12341, 1) << Sent::group(1, 3)
                           << Sent::plannedGroup(13, 4, 202301) << Sent::recalculation(4));
}

void TestBalance::anUnchangedBalanceIsNotLoaded()
{
    synchronise({tomasWith("5")});
    m_db.run("UPDATE funds_move SET value = 1, day = day - 40 * 86400 WHERE uid = 8");
    synchronise(); // what could not be corrected today
    m_db.run("DELETE FROM funds_move WHERE uid = 8");
    synchronise(); // the same again
    m_db.run("DELETE FROM funds_move WHERE uid = 8");
    synchronise();
    QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(20012, 8));
}

void TestBalance::aForcedCycleLoadsAnUnchangedBalance()
{
    synchronise({tomas()});
    force();
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::balance(20012)
                           << Sent::resetForce());
}

void TestBalance::anotherChangeLeavesAnUnchangedBalanceAlone()
{
    synchronise({tomas()});
    const ExportRow line = tomas().with(&ExportRow::strediskoPopis, "Sklad");
    QCOMPARE(synchronise({line}).statements, Sent::begin() << Sent::fundChecks(20012, 8));
}

void TestBalance::bothChecksAreMadeEvenWhenTheFirstFails()
{
    synchronise({tomasWith("5")});
    QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(20012, 8));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM funds_move WHERE uid = 8 AND type = 3").toInt(), 1);
}

void TestBalance::anUncalculatedPersonIsCorrectedOnceCalculated()
{
    m_db.run("INSERT INTO atten (uid, `date`, ok) VALUES (8, UNIX_TIMESTAMP('2025-03-03'), -1)");
    QCOMPARE(synchronise({tomasWith("5")}).statements.filter("SUM("), QStringList());
    m_db.run("UPDATE atten SET ok = 1");
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::balance(20012)
                           << Sent::correction(8, 500) << Sent::recalculation(8));
}

void TestBalance::asLongAsItIsNotCalculatedNothingIsLoaded()
{
    m_db.run("INSERT INTO atten (uid, `date`, ok) VALUES (8, UNIX_TIMESTAMP('2025-03-03'), -1)");
    synchronise({tomasWith("5")});
    const QStringList refusedChecks = {Sent::movesOfToday(20012), Sent::calculation(20012)};
    QCOMPARE(synchronise().statements, Sent::begin() << refusedChecks);
    force();
    QCOMPARE(synchronise().statements, Sent::begin() << refusedChecks << Sent::resetForce());
}

void TestBalance::aCorrectedPersonIsLookedAtAgainOnTheNextDay()
{
    synchronise({tomasWith("5")});
    synchronise(); // the correction of today forbids another one
    m_db.run("UPDATE funds_move SET day = day - 86400 WHERE uid = 8"); // a day later
    QCOMPARE(synchronise().statements,
             Sent::begin() << Sent::fundChecks(20012, 8) << Sent::balance(20012));
    QCOMPARE(synchronise().statements, Sent::begin() << Sent::fundChecks(20012, 8));
}

void TestBalance::aFundThatIsGoneLeavesTheFlagsAsTheyWere_data()
{
    QTest::addColumn<int>("ok");
    QTest::addColumn<bool>("corrected");
    QTest::newRow("set") << -1 << true;
    QTest::newRow("not set") << 1 << false;
}

void TestBalance::aFundThatIsGoneLeavesTheFlagsAsTheyWere()
{
    QFETCH(int, ok);
    QFETCH(bool, corrected);
    m_db.run(QString("INSERT INTO atten (uid, `date`, ok) "
                     "VALUES (8, UNIX_TIMESTAMP('2025-03-03'), %1)")
                 .arg(ok));
    m_db.run("INSERT INTO funds_move (type, day, month, value, fid, uid) "
             "VALUES (1, UNIX_TIMESTAMP('2025-01-01'), 202501, 500, 2, 8)");
    synchronise({tomasWith("5")});
    m_db.run("UPDATE atten SET ok = 1");
    m_db.run("UPDATE funds SET fid = 65536 WHERE fid = 2"); // 0 in 16 bits: no fund
    QCOMPARE(synchronise().statements, Sent::begin());
    m_db.run("UPDATE funds SET fid = 2 WHERE fid = 65536");
    m_db.run("UPDATE funds_move SET value = 400 WHERE uid = 8");
    QCOMPARE(synchronise().statements.contains(Sent::correction(8, 100)), corrected);
}

void TestBalance::aBalanceThatCannotBeLoadedIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    refuseColumn(m_db, "funds_move", "value", "type = 2");
    const Trace trace = synchronise({jana().with(&ExportRow::dovolenaZustatek, "5")});
    QCOMPARE(trace.log.filter("loadFundStatusAndMove3"),
             linesAt(debugLevel,
                     {{2, "D MHRWorker::loadFundStatusAndMove3(pid: 12341)"},
                      {0,
                       "C MHRWorker::loadFundStatusAndMove3() - SQL 1 ERROR "
                           + SqlErrors::refusedColumn()},
                      {1, "I MHRWorker::loadFundStatusAndMove3(pid: 12341): 0, load OK: NO"},
                      {0,
                       "W MHRWorker::doSyncRecord() - loadFundStatusAndMove3(): not loaded "
                       "correctly!"}}));
    QCOMPARE(trace.statements.filter("INSERT INTO funds_move"), QStringList());
    QVERIFY(trace.statements.contains(Sent::sumOfCorrections(12341)));
}

void TestBalance::aBalanceThatCannotBeLoadedAsksForNoRecalculation()
{
    synchronise({tomas()});
    m_db.run("INSERT INTO funds_move (type, day, month, value, fid, uid) "
             "VALUES (2, UNIX_TIMESTAMP('2025-01-01'), 202501, 100, 2, 8)");
    refuseColumn(m_db, "funds_move", "value");
    const Trace trace = synchronise({tomasWith("5")});
    QCOMPARE(trace.log.size(), 2);
    QCOMPARE(trace.statements, Sent::begin() << Sent::fundChecks(20012, 8) << Sent::balance(20012));
}

void TestBalance::aCorrectionThatCannotBeWrittenIsReported()
{
    QFETCH(int, debugLevel);
    synchronise({tomas()});
    newWorker(debugLevel);
    m_db.refuse("INSERT", "funds_move");
    const Trace trace = synchronise({tomasWith("5")});
    QCOMPARE(trace.log.filter(QRegularExpression("Move3|funds_move")),
             linesAt(debugLevel,
                     {{2, "D MHRWorker::loadFundStatusAndMove3(pid: 20012)"},
                      {1, "I MHRWorker::loadFundStatusAndMove3(pid: 20012): 0, load OK: YES"},
                      {1, "D MHRWorker::writeFundMove3(uid: 8, value: 500)"},
                      {0,
                       "C MHRWorker::writeFundMove3() - SQL ERROR " + SqlErrors::refused()
                           + "\n SQL: " + Sent::correction(8, 500)},
                      {0, notWritten("500")}}));
    // And nothing is recalculated.
    QCOMPARE(trace.statements.last(), Sent::correction(8, 500));
}

QTEST_GUILESS_MAIN(TestBalance)
#include "tst_balance.moc"
