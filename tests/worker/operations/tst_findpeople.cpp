#include "tests/worker/operations/samplerecord.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"

#include <QTest>
#include <QThread>

#include <memory>

/// Looking up persons in the table. The uids that the worker has found stay known for the life of
/// the program, so every test has persons of its own.
class TestFindPeople : public WorkerTest {
    Q_OBJECT
public:
    TestFindPeople()
        : WorkerTest(Tables::Empty)
    {
    }

private Q_SLOTS:
    void aUidIsOneStatement_data();
    void aUidIsOneStatement();
    void anUnknownPidHasUid0();
    void aFailedLookUpGivesUid0_data();
    void aFailedLookUpGivesUid0();

    void aKnownUidIsLookedUpOnce();
    void anUnknownPidIsLookedUpEveryTime();
    void aFailedLookUpIsNotRemembered();
    void aUidStaysKnownWhateverBecomesOfTheRow();
    void allWorkersShareTheKnownUids();
    void workersOfOtherThreadsShareTheKnownUids();

    void aPersonIsFoundByItsPid_data();
    void aPersonIsFoundByItsPid();
    void aFailedCheckFindsNoPerson_data();
    void aFailedCheckFindsNoPerson();

private:
    void insertPerson(uint uid, uint pid)
    {
        m_db.run(QString("INSERT INTO people (uid, pid) VALUES (%1, %2)").arg(uid).arg(pid));
    }
};

void TestFindPeople::aUidIsOneStatement_data()
{
    addDebugLevels();
}

void TestFindPeople::aUidIsOneStatement()
{
    QFETCH(int, debugLevel);
    insertPerson(41, 11);
    insertPerson(42, 111);
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QCOMPARE(m_worker->dbGetUidByPid(111), 42U); });
    QCOMPARE(trace.statements, QStringList("SELECT uid FROM people WHERE pid = 111 LIMIT 1"));
    QCOMPARE(trace.log, linesAt(debugLevel, {{2, "D MHRWorker::dbGetUidByPid(111)"}}));
}

void TestFindPeople::anUnknownPidHasUid0()
{
    const Trace trace = observe([this] { QCOMPARE(m_worker->dbGetUidByPid(4294967295U), 0U); });
    QCOMPARE(trace.statements,
             QStringList("SELECT uid FROM people WHERE pid = 4294967295 LIMIT 1"));
    QCOMPARE(trace.log, QStringList());
}

void TestFindPeople::aFailedLookUpGivesUid0_data()
{
    addDebugLevels();
}

void TestFindPeople::aFailedLookUpGivesUid0()
{
    QFETCH(int, debugLevel);
    insertPerson(42, 111);
    m_db.hideTable("people");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QCOMPARE(m_worker->dbGetUidByPid(111), 0U); });
    QCOMPARE(
        trace.log,
        linesAt(debugLevel,
                {{2, "D MHRWorker::dbGetUidByPid(111)"},
                 {0, "C MHRWorker::dbGetUidByPid() - SQL ERROR " + SqlErrors::missing("people")}}));
}

void TestFindPeople::aKnownUidIsLookedUpOnce()
{
    insertPerson(51, 511);
    insertPerson(52, 521);
    setDebugLevel(2);
    const Trace trace = observe([this] {
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(m_worker->getUidByPid(511), 51U);
            QCOMPARE(m_worker->getUidByPid(521), 52U);
        }
    });
    QCOMPARE(trace.statements,
             QStringList({"SELECT uid FROM people WHERE pid = 511 LIMIT 1",
                          "SELECT uid FROM people WHERE pid = 521 LIMIT 1"}));
    QCOMPARE(trace.log,
             QStringList({"D MHRWorker::dbGetUidByPid(511)", "D MHRWorker::dbGetUidByPid(521)"}));
}

void TestFindPeople::anUnknownPidIsLookedUpEveryTime()
{
    const QString statement = "SELECT uid FROM people WHERE pid = 531 LIMIT 1";
    Trace trace = observe([this] {
        QCOMPARE(m_worker->getUidByPid(531), 0U);
        QCOMPARE(m_worker->getUidByPid(531), 0U);
        QCOMPARE(m_worker->getUidByPid(531), 0U);
    });
    QCOMPARE(trace.statements, QStringList({statement, statement, statement}));

    insertPerson(53, 531);
    trace = observe([this] {
        QCOMPARE(m_worker->getUidByPid(531), 53U);
        QCOMPARE(m_worker->getUidByPid(531), 53U);
    });
    QCOMPARE(trace.statements, QStringList(statement));
}

void TestFindPeople::aFailedLookUpIsNotRemembered()
{
    insertPerson(54, 541);
    m_db.hideTable("people");
    observe([this] { QCOMPARE(m_worker->getUidByPid(541), 0U); });
    m_db.restoreTable("people");
    observe([this] { QCOMPARE(m_worker->getUidByPid(541), 54U); });
}

void TestFindPeople::aUidStaysKnownWhateverBecomesOfTheRow()
{
    insertPerson(55, 551);
    QCOMPARE(m_worker->getUidByPid(551), 55U);
    m_db.run("DELETE FROM people");
    insertPerson(56, 551);
    const Trace trace = observe([this] { QCOMPARE(m_worker->getUidByPid(551), 55U); });
    QCOMPARE(trace.statements, QStringList());
    // Only the cache still has the old uid.
    QCOMPARE(m_worker->dbGetUidByPid(551), 56U);
}

void TestFindPeople::allWorkersShareTheKnownUids()
{
    insertPerson(57, 571);
    QCOMPARE(m_worker->getUidByPid(571), 57U);
    const MHRWorker withoutDatabase;
    QCOMPARE(withoutDatabase.getUidByPid(571), 57U);
}

void TestFindPeople::workersOfOtherThreadsShareTheKnownUids()
{
    insertPerson(58, 581);
    QCOMPARE(m_worker->getUidByPid(581), 58U);
    uint uid = 0;
    const std::unique_ptr<QThread> thread(QThread::create([&uid] {
        const MHRWorker withoutDatabase;
        uid = withoutDatabase.getUidByPid(581);
    }));
    thread->start();
    QVERIFY(thread->wait(kPatienceMs));
    QCOMPARE(uid, 58U);
}

void TestFindPeople::aPersonIsFoundByItsPid_data()
{
    addDebugLevels();
}

void TestFindPeople::aPersonIsFoundByItsPid()
{
    QFETCH(int, debugLevel);
    insertPerson(42, 12342);
    m_db.run("UPDATE people SET status = 0, pamId = '9.9'");
    setDebugLevel(debugLevel);
    MirovaRonRecord record = fullRecord();
    Trace trace = observe([this, &record] { QVERIFY(m_worker->dbCheckPerson(record)); });
    QCOMPARE(trace.statements, QStringList("SELECT COUNT(*) FROM people WHERE pid = 12342"));
    QCOMPARE(trace.log, linesAt(debugLevel, {{2, "D MHRWorker::dbCheckPerson(1234.2)"}}));

    record.poradoveCisloPP = 3;
    trace = observe([this, &record] { QVERIFY(!m_worker->dbCheckPerson(record)); });
    QCOMPARE(trace.statements, QStringList("SELECT COUNT(*) FROM people WHERE pid = 12343"));
    QCOMPARE(trace.log, linesAt(debugLevel, {{2, "D MHRWorker::dbCheckPerson(1234.3)"}}));
}

void TestFindPeople::aFailedCheckFindsNoPerson_data()
{
    addDebugLevels();
}

void TestFindPeople::aFailedCheckFindsNoPerson()
{
    QFETCH(int, debugLevel);
    insertPerson(42, 12342);
    m_db.hideTable("people");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbCheckPerson(fullRecord())); });
    QCOMPARE(
        trace.log,
        linesAt(debugLevel,
                {{2, "D MHRWorker::dbCheckPerson(1234.2)"},
                 {0, "C MHRWorker::dbCheckPerson() - SQL ERROR " + SqlErrors::missing("people")}}));
}

QTEST_GUILESS_MAIN(TestFindPeople)
#include "tst_findpeople.moc"
