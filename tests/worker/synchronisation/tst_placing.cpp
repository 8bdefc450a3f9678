#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QRegularExpression>
#include <QTest>

using namespace SampleExport;

namespace {

/// Jana in a cost centre that no branch has yet.
ExportRow janaElsewhere()
{
    return jana().with(&ExportRow::stredisko, 777);
}

const QString kNotFound =
    "W MHRWorker: Branch '777' NOT FOUND for employee: '1234.1 Nováková Jana (S: 777, K: 3 from 1 "
    "Jan 2023) N-V: 1 Apr 2019 - ; ES: 0, RS:  -  '' TPP: 11  DOV: 17.5 NOC: 0'";

} // namespace

/// When the driver asks for branch and calendar, who waits for them, and when attendance is
/// recalculated.
class TestPlacing : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void aPersonWithoutACostCentreIsNotPlaced();
    void anUnchangedRecordIsPlacedOnlyWhenForced();
    void anInactivePersonIsNotPlaced_data();
    void anInactivePersonIsNotPlaced();

    void aPersonWaitingForABranchIsLookedUpInEveryCycle();
    void aWaitingPersonIsPlacedOnceTheBranchExists();
    void aLineThatChangedWhileWaitingLeavesTheOldOneBehind();
    void aPersonWhoLeavesWhileWaitingIsNotLookedUpAgain();
    void aNewWorkerForgetsWaitingPeople();
    void aMemberWithoutACalendarCountsAsWaiting();

    void aMovedPersonIsRecalculated_data();
    void aMovedPersonIsRecalculated();
    void anIncompletePersonIsNotRecalculated_data();
    void anIncompletePersonIsNotRecalculated();
    void recalculationBeginsWithThePreviousMonth();
    void aPersonWithoutAKnownUidMustBeRecalculatedByHand();

private:
    /// How many records wait, by the last line of the cycle.
    int waiting(const Trace &trace) const;
};

int TestPlacing::waiting(const Trace &trace) const
{
    const QString end = trace.log.last();
    return end.mid(end.indexOf("records: ") + 9).remove(')').toInt();
}

void TestPlacing::aPersonWithoutACostCentreIsNotPlaced()
{
    newWorker(1);
    m_export->write({jana().with(&ExportRow::stredisko, 0)});
    for (int cycle = 1; cycle <= 2; ++cycle) {
        const Trace trace = synchronise();
        QCOMPARE(trace.statements.filter("FROM brape"), QStringList());
        QCOMPARE(trace.log.filter(QRegularExpression("^W")), QStringList());
        QCOMPARE(trace.log.last(),
                 QString("D MHRWorker: END synchronization #%1 (waiting records: 0)").arg(cycle));
        force();
    }
}

void TestPlacing::anUnchangedRecordIsPlacedOnlyWhenForced()
{
    m_db.run("DELETE FROM funds"); // or its balance would be what changed
    QCOMPARE(synchronise({jana()}).statements.count(Sent::membership(12341, 1)), 1);
    QCOMPARE(synchronise().statements.count(Sent::membership(12341, 1)), 0);
    force();
    QCOMPARE(synchronise().statements.count(Sent::membership(12341, 1)), 1);
    QCOMPARE(synchronise({jana().with(&ExportRow::telefon, "1")})
                 .statements.count(Sent::membership(12341, 1)),
             1);
}

void TestPlacing::anInactivePersonIsNotPlaced_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<bool>("placed");
    const QDate today = QDate::currentDate();
    QTest::newRow("state 3") << jana().with(&ExportRow::stavPracovnihoPomeru, 3) << true;
    QTest::newRow("state 4") << jana().with(&ExportRow::stavPracovnihoPomeru, 4) << false;
    QTest::newRow("leaves today") << jana().with(&ExportRow::datumVystupu, today) << true;
    QTest::newRow("left yesterday")
        << jana().with(&ExportRow::datumVystupu, today.addDays(-1)) << false;
}

void TestPlacing::anInactivePersonIsNotPlaced()
{
    QFETCH(ExportRow, line);
    QFETCH(bool, placed);
    QCOMPARE(synchronise({line}).statements.contains(Sent::membership(12341, 1)), placed);
    force();
    QCOMPARE(synchronise().statements.contains(Sent::membership(12341, 1)), placed);
}

void TestPlacing::aPersonWaitingForABranchIsLookedUpInEveryCycle()
{
    newWorker(1);
    Trace trace = synchronise({janaElsewhere()});
    QCOMPARE(trace.log.filter("NOT FOUND"), QStringList(kNotFound));
    QCOMPARE(waiting(trace), 1);
    for (int cycle = 0; cycle < 2; ++cycle) {
        trace = synchronise();
        QCOMPARE(trace.log.filter("NOT FOUND"), QStringList(kNotFound));
        QCOMPARE(waiting(trace), 1);
        QCOMPARE(trace.statements, Sent::begin() << Sent::fundChecks(12341, 4));
    }
}

void TestPlacing::aWaitingPersonIsPlacedOnceTheBranchExists()
{
    newWorker(1);
    synchronise({janaElsewhere()});
    m_db.run("INSERT INTO branches (bid, number, mgid) VALUES (5, 777, 1)");
    Trace trace = synchronise();
    QCOMPARE(waiting(trace), 0);
    QCOMPARE(trace.statements,
             Sent::begin() << Sent::fundChecks(12341, 4) << Sent::membership(12341, 5)
                           << Sent::group(5, 3) << Sent::plannedGroup(13, 4, 202301)
                           << Sent::joinBranch(5, "4") << Sent::propagation(5, {"4"}, {}, {}));
    trace = synchronise();
    QCOMPARE(waiting(trace), 0);
    QCOMPARE(trace.statements, Sent::begin() << Sent::fundChecks(12341, 4));
}

void TestPlacing::aLineThatChangedWhileWaitingLeavesTheOldOneBehind()
{
    newWorker(1);
    const ExportRow changed = janaElsewhere().with(&ExportRow::strediskoPopis, "Nové");
    QCOMPARE(waiting(synchronise({janaElsewhere()})), 1);
    QCOMPARE(waiting(synchronise({changed})), 2);
    m_db.run("INSERT INTO branches (bid, number, mgid) VALUES (5, 777, 1)");
    QCOMPARE(waiting(synchronise({changed})), 1);
    QCOMPARE(waiting(synchronise({changed})), 1);
    QCOMPARE(waiting(synchronise({janaElsewhere()})), 0);
}

void TestPlacing::aPersonWhoLeavesWhileWaitingIsNotLookedUpAgain()
{
    newWorker(1);
    synchronise({janaElsewhere()});
    const Trace trace = synchronise({janaElsewhere().with(&ExportRow::stavPracovnihoPomeru, 4)});
    QCOMPARE(trace.log.filter("NOT FOUND"), QStringList());
    QCOMPARE(waiting(trace), 1);
}

void TestPlacing::aNewWorkerForgetsWaitingPeople()
{
    newWorker(1);
    QCOMPARE(waiting(synchronise({janaElsewhere()})), 1);
    newWorker(1);
    QCOMPARE(waiting(synchronise({jana()})), 0);
}

void TestPlacing::aMemberWithoutACalendarCountsAsWaiting()
{
    // A member of the branch without a calendar: nothing is done, and that counts as not placed.
    newWorker(1);
    const Trace first = synchronise({jana().with(&ExportRow::kalendar, 0)});
    QCOMPARE(waiting(first), 1);
    QCOMPARE(first.log.filter("W "), QStringList());
    const Trace second = synchronise();
    QCOMPARE(waiting(second), 1);
    QCOMPARE(second.statements,
             Sent::begin() << Sent::fundChecks(12341, 4) << Sent::membership(12341, 1));
}

void TestPlacing::aMovedPersonIsRecalculated_data()
{
    QTest::addColumn<ExportRow>("line");
    QTest::addColumn<bool>("recalculated");
    QTest::newRow("nothing moved") << tomas() << false;
    QTest::newRow("calendar") << tomas().with(&ExportRow::kalendar, 2) << true;
    QTest::newRow("start of the calendar")
        << tomas().with(&ExportRow::kalendarPlatnostOd, QDate(2024, 7, 1)) << true;
    QTest::newRow("branch") << tomas().with(&ExportRow::stredisko, 777) << true;
    QTest::newRow("description of the branch")
        << tomas().with(&ExportRow::strediskoPopis, "Sklad") << false;
    QTest::newRow("name") << tomas().with(&ExportRow::prijmeni, "Malý") << false;
}

void TestPlacing::aMovedPersonIsRecalculated()
{
    QFETCH(ExportRow, line);
    QFETCH(bool, recalculated);
    QCOMPARE(
        synchronise({line}).statements.filter(QRegularExpression("^UPDATE (atten|people set)")),
        recalculated ? Sent::recalculation(8) : QStringList());
}

void TestPlacing::anIncompletePersonIsNotRecalculated_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("relationship");
    QTest::addColumn<bool>("recalculated");
    QTest::newRow("no name at all") << "name = '', surname = ''" << 2 << false;
    QTest::newRow("first name only") << "surname = ''" << 2 << true;
    QTest::newRow("surname only") << "name = ''" << 2 << true;
    QTest::newRow("no personal number") << "pamId = '0.20012'" << 2 << false;
    // The pid of the row is made of its payroll id: 20012 and 0, as of 2001 and 20.
    QTest::newRow("no relationship") << "pid = 200120, pamId = '20012'" << 20 << false;
}

void TestPlacing::anIncompletePersonIsNotRecalculated()
{
    QFETCH(QString, row);
    QFETCH(int, relationship);
    QFETCH(bool, recalculated);
    m_db.run("UPDATE people SET " + row + " WHERE uid = 8");
    const ExportRow line =
        tomas().with(&ExportRow::poradoveCisloPP, relationship).with(&ExportRow::kalendar, 2);
    const Trace trace = synchronise({line});
    QVERIFY(trace.statements.filter("UPDATE people SET pamId").size() == 1);
    QCOMPARE(trace.statements.contains(Sent::recalculation(8).first()), recalculated);
}

void TestPlacing::recalculationBeginsWithThePreviousMonth()
{
    const QDate today = QDate::currentDate();
    const QDate begin = QDate(today.year(), today.month(), 1).addMonths(-1);
    const auto addDay = [this](const QDate &date) {
        m_db.run(QString("INSERT INTO atten (uid, `date`, ok, `lock`, man) VALUES (8, %1, 1, 0, 0)")
                     .arg(localMidnight(date)));
    };
    addDay(begin.addDays(-1));
    addDay(begin);
    addDay(today);
    m_db.run(QString("UPDATE people SET lastCalc = %1, calc = 5 WHERE uid = 8")
                 .arg(localMidnight(today)));
    synchronise({tomas().with(&ExportRow::kalendar, 2)});
    QCOMPARE(m_db.rows("SELECT ok FROM atten WHERE uid = 8 ORDER BY `date`"),
             TableRows({{"1"}, {"-1"}, {"-1"}}));
    QCOMPARE(m_db.rows("SELECT lastCalc, calc FROM people WHERE uid = 8"),
             TableRows({{QString::number(localMidnight(begin.addDays(-1))), "0"}}));
}

void TestPlacing::aPersonWithoutAKnownUidMustBeRecalculatedByHand()
{
    // The payroll id of the row makes another pid than the row has, so the person is loaded but
    // its uid cannot be found.
    const int personalNumber = newPersonalNumber();
    const uint pid = QString("%1%2").arg(personalNumber).arg(2).toUInt();
    m_db.run(
        QString("UPDATE people SET pid = 99, pamId = '%1.2' WHERE uid = 8").arg(personalNumber));
    const ExportRow line =
        tomas().with(&ExportRow::osobniCislo, personalNumber).with(&ExportRow::kalendar, 2);
    const Trace trace = synchronise({line});
    QCOMPARE(trace.log,
             QStringList(QString("W MHRWorker: User (employee) ID NOT found for pid (Personal ID) "
                                 "%1 [employee: '%2.2 Baláž Tomáš (S: 0, K: 2 from ) N-V: 1 Jul "
                                 "2024 - ; ES: 0, RS:  -  '' TPP: 51  DOV: 0 NOC: 0'] - lastCalc "
                                 "not changed (manual recalculation is needed)!")
                             .arg(pid)
                             .arg(personalNumber)));
    QCOMPARE(trace.statements.last(), Sent::findUid(pid));
}

QTEST_GUILESS_MAIN(TestPlacing)
#include "tst_placing.moc"
