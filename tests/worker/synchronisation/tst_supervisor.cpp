#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"
#include "tests/worker/synchronisation/sent.h"

#include <QRegularExpression>
#include <QTest>

namespace {

/// Jana, uid 4, of whom the administrators 1 (her supervisor so far) and 4 know. Administrator 2
/// has the personal number 1002.
MirovaRonRecord jana(quint32 supervisor)
{
    MirovaRonRecord record;
    record.osobniCislo = 1234;
    record.poradoveCisloPP = 1;
    record.nadrizenyOsobniCislo = supervisor;
    return record;
}

const QString kReset = "UPDATE admins_people SET request =0 WHERE uid=4 AND aid != 2";
const QString kSet =
    "INSERT INTO admins_people (aid, uid, request) VALUES(2, 4, 1) ON DUPLICATE KEY UPDATE "
    "request=1";
const QString kFailed = "W MHRWorker::processNadOsCis() - (Re)Set Admin People Request FAilED!";

} // namespace

/// The supervisor: one administrator gets the requests of a person, all others lose them, in one
/// transaction.
class TestSupervisor : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void aSupervisorTakesOver();
    void aSupervisorTakesOverInOneTransaction();
    void everyLineOfTheTakeoverHasItsLevel_data() { addDebugLevels(); }
    void everyLineOfTheTakeoverHasItsLevel();
    void aSupervisorWhoHasTheRequestsAlreadyKeepsThem();
    void aKnownAdministratorBecomesTheSupervisor();
    void otherPeopleKeepTheirSupervisor();

    void noSupervisorMeansNothingToDo_data() { addDebugLevels(); }
    void noSupervisorMeansNothingToDo();
    void anUnknownSupervisorIsReported_data() { addDebugLevels(); }
    void anUnknownSupervisorIsReported();
    void anUnknownPersonIsReported_data() { addDebugLevels(); }
    void anUnknownPersonIsReported();
    void aSupervisorWhoCannotBeLookedUpIsReported_data() { addDebugLevels(); }
    void aSupervisorWhoCannotBeLookedUpIsReported();

    void aFailedResetIsRolledBack_data() { addDebugLevels(); }
    void aFailedResetIsRolledBack();
    void aFailedSetLeavesTheFormerSupervisor_data() { addDebugLevels(); }
    void aFailedSetLeavesTheFormerSupervisor();
    void afterARollbackTheNextStatementsArePermanent();

    void theStatementsCountChangedRows();
    void aFailedStatementCountsMinusOne_data() { addDebugLevels(); }
    void aFailedStatementCountsMinusOne();

private:
    TableRows flags()
    {
        return m_db.rows("SELECT aid, request FROM admins_people WHERE uid = 4 ORDER BY aid");
    }
};

void TestSupervisor::aSupervisorTakesOver()
{
    QCOMPARE(flags(), TableRows({{"1", "1"}, {"4", "0"}}));
    QCOMPARE(observe([this] { m_worker->processNadOsCis(jana(1002)); }).log, QStringList());
    QCOMPARE(flags(), TableRows({{"1", "0"}, {"2", "1"}, {"4", "0"}}));
}

void TestSupervisor::aSupervisorTakesOverInOneTransaction()
{
    QCOMPARE(observe([this] { m_worker->processNadOsCis(jana(1002)); }).statements,
             QStringList({"SELECT aid FROM admins WHERE personalNumber = 1002", "BEGIN WORK",
                          kReset, kSet, "COMMIT"}));
}

void TestSupervisor::everyLineOfTheTakeoverHasItsLevel()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    QCOMPARE(
        observe([this] { m_worker->processNadOsCis(jana(1002)); }).log,
        linesAt(
            debugLevel,
            {{1, "D MHRWorker::processNadOsCis(1234.1, NOC: 1002)"},
             {2, "D MHRWorker::dbGetAidByOsCis(uid: 1002)"},
             {1, "D MHRWorker::dbGetAidByOsCis(uid: 1002): 2"},
             {2, "D MHRWorker::dbResetAdminPeopleRequest(aid: 2, uid: 4)"},
             {2,
              "D MHRWorker::dbResetAdminPeopleRequest - query 'UPDATE admins_people SET request "
              "=0 WHERE uid=4 AND aid != 2' - affected rows: 1"},
             {1, "D MHRWorker::dbResetAdminPeopleRequest(aid: 2, uid: 4) - affected: 1"},
             {2, "D MHRWorker::dbSetAdminPeopleRequest(aid: 2, uid: 4)"},
             {2,
              "D MHRWorker - query 'INSERT INTO admins_people (aid, uid, request) VALUES(2, 4, 1) "
              "ON DUPLICATE KEY UPDATE request=1' - affected rows: 1"},
             {1, "D MHRWorker::dbSetAdminPeopleRequest(aid: 2, uid: 4) - affected: 1"}}));
}

void TestSupervisor::aSupervisorWhoHasTheRequestsAlreadyKeepsThem()
{
    newWorker(1);
    const DatabaseState before = m_db.dumpAll();
    const Trace trace = observe([this] { m_worker->processNadOsCis(jana(1001)); });
    QCOMPARE(trace.log.filter("affected"),
             QStringList({"D MHRWorker::dbResetAdminPeopleRequest(aid: 1, uid: 4) - affected: 0",
                          "D MHRWorker::dbSetAdminPeopleRequest(aid: 1, uid: 4) - affected: 0"}));
    QCOMPARE(trace.statements.last(), QString("COMMIT"));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestSupervisor::aKnownAdministratorBecomesTheSupervisor()
{
    m_db.run("UPDATE admins SET personalNumber = 1004 WHERE aid = 4");
    newWorker(1);
    const Trace trace = observe([this] { m_worker->processNadOsCis(jana(1004)); });
    // The row is there already: changing it counts twice.
    QVERIFY(
        trace.log.contains("D MHRWorker::dbSetAdminPeopleRequest(aid: 4, uid: 4) - affected: 2"));
    QCOMPARE(flags(), TableRows({{"1", "0"}, {"4", "1"}}));
}

void TestSupervisor::otherPeopleKeepTheirSupervisor()
{
    const QString others = "SELECT aid, uid, request FROM admins_people WHERE uid <> 4";
    const TableRows before = m_db.rows(others);
    observe([this] { m_worker->processNadOsCis(jana(1002)); });
    QCOMPARE(m_db.rows(others), before);
}

void TestSupervisor::noSupervisorMeansNothingToDo()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    const Trace trace = observe([this] { m_worker->processNadOsCis(jana(0)); });
    QCOMPARE(trace.log, linesAt(debugLevel, {{1, "D MHRWorker::processNadOsCis(1234.1, NOC: 0)"}}));
    QCOMPARE(trace.statements, QStringList());
}

void TestSupervisor::anUnknownSupervisorIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    const Trace trace = observe([this] { m_worker->processNadOsCis(jana(4294967295)); });
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::processNadOsCis(1234.1, NOC: 4294967295)"},
                      {2, "D MHRWorker::dbGetAidByOsCis(uid: 4294967295)"},
                      {1, "D MHRWorker::dbGetAidByOsCis(uid: 4294967295): 0"},
                      {0, "W MHRWorker - admin s osobnym cislom 4294967295 nebol najdeny!"}}));
    QCOMPARE(trace.statements,
             QStringList("SELECT aid FROM admins WHERE personalNumber = 4294967295"));
}

void TestSupervisor::anUnknownPersonIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    MirovaRonRecord record = jana(1002);
    record.osobniCislo = quint32(newPersonalNumber());
    const QString pid = QString::number(record.getPid());
    const Trace trace = observe([&] { m_worker->processNadOsCis(record); });
    QCOMPARE(
        trace.log,
        linesAt(
            debugLevel,
            {{1, QString("D MHRWorker::processNadOsCis(%1.1, NOC: 1002)").arg(record.osobniCislo)},
             {2, "D MHRWorker::dbGetAidByOsCis(uid: 1002)"},
             {1, "D MHRWorker::dbGetAidByOsCis(uid: 1002): 2"},
             {2, "D MHRWorker::dbGetUidByPid(" + pid + ")"},
             {0, "W MHRWorker - zamestnanec s osobnym cislom " + pid + " nebol najdeny!"}}));
    QCOMPARE(trace.statements,
             QStringList({Sent::findAdmin(1002), Sent::findUid(record.getPid())}));
}

void TestSupervisor::aSupervisorWhoCannotBeLookedUpIsReported()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    m_db.hideTable("admins");
    const Trace trace = observe([this] { m_worker->processNadOsCis(jana(1002)); });
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::processNadOsCis(1234.1, NOC: 1002)"},
                      {2, "D MHRWorker::dbGetAidByOsCis(uid: 1002)"},
                      {0,
                       "C MHRWorker::dbGetAidByOsCis() - SQL ERROR [1146]: Table 'tepdb.admins' "
                       "doesn't exist QMYSQL: Unable to execute query\n SQL: SELECT aid FROM "
                       "admins WHERE personalNumber = 1002"},
                      {1, "D MHRWorker::dbGetAidByOsCis(uid: 1002): 0"},
                      {0, "W MHRWorker - admin s osobnym cislom 1002 nebol najdeny!"}}));
    QCOMPARE(trace.statements, QStringList(Sent::findAdmin(1002)));
}

void TestSupervisor::aFailedResetIsRolledBack()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    m_db.refuse("UPDATE", "admins_people");
    const DatabaseState before = m_db.dumpAll();
    const Trace trace = observe([this] { m_worker->processNadOsCis(jana(1002)); });
    QCOMPARE(trace.log.mid(trace.log.indexOf("D MHRWorker::dbGetAidByOsCis(uid: 1002): 2") + 1),
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbResetAdminPeopleRequest(aid: 2, uid: 4)"},
                      {0,
                       "C MHRWorker::dbResetAdminPeopleRequest() - SQL ERROR "
                           + SqlErrors::refused() + "\n SQL: " + kReset},
                      {1, "D MHRWorker::dbResetAdminPeopleRequest(aid: 2, uid: 4) - affected: -1"},
                      {0, kFailed}}));
    QCOMPARE(trace.statements,
             QStringList({Sent::findAdmin(1002), "BEGIN WORK", kReset, "ROLLBACK"}));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestSupervisor::aFailedSetLeavesTheFormerSupervisor()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    m_db.refuse("INSERT", "admins_people");
    const DatabaseState before = m_db.dumpAll();
    const Trace trace = observe([this] { m_worker->processNadOsCis(jana(1002)); });
    // The reset took one row from the former supervisor, which is more than the −1 of the set
    // statement takes back: it is rolled back all the same.
    QCOMPARE(trace.log.filter(QRegularExpression("affected: |SQL ERROR|FAilED")),
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbResetAdminPeopleRequest(aid: 2, uid: 4) - affected: 1"},
                      {0,
                       "C MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR " + SqlErrors::refused()
                           + "\n SQL: " + kSet},
                      {1, "D MHRWorker::dbSetAdminPeopleRequest(aid: 2, uid: 4) - affected: -1"},
                      {0, kFailed}}));
    QCOMPARE(trace.statements,
             QStringList({Sent::findAdmin(1002), "BEGIN WORK", kReset, kSet, "ROLLBACK"}));
    QCOMPARE(flags(), TableRows({{"1", "1"}, {"4", "0"}}));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestSupervisor::afterARollbackTheNextStatementsArePermanent()
{
    m_db.refuse("INSERT", "admins_people");
    observe([this] { m_worker->processNadOsCis(jana(1002)); });
    bool changed = false;
    observe([&] { changed = m_worker->dbChangeLastCalc(5, QDate(2025, 3, 4)); });
    QVERIFY(changed);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM atten WHERE uid = 5 AND ok = -1").toInt(), 2);
}

void TestSupervisor::theStatementsCountChangedRows()
{
    int reset = -2;
    int set = -2;
    const auto change = [&] {
        observe([&] {
            reset = m_worker->dbResetAdminPeopleRequest(2, 4);
            set = m_worker->dbSetAdminPeopleRequest(2, 4);
        });
    };
    m_db.run("UPDATE admins_people SET request = 1 WHERE uid = 4");
    change();
    QCOMPARE(reset, 2);
    QCOMPARE(set, 1);
    change();
    QCOMPARE(reset, 0);
    QCOMPARE(set, 0);
}

void TestSupervisor::aFailedStatementCountsMinusOne()
{
    QFETCH(int, debugLevel);
    newWorker(debugLevel);
    m_db.hideTable("admins_people");
    int reset = 0;
    int set = 0;
    const Trace trace = observe([&] {
        reset = m_worker->dbResetAdminPeopleRequest(2, 4);
        set = m_worker->dbSetAdminPeopleRequest(2, 4);
    });
    QCOMPARE(reset, -1);
    QCOMPARE(set, -1);
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbResetAdminPeopleRequest(aid: 2, uid: 4)"},
                      {0,
                       "C MHRWorker::dbResetAdminPeopleRequest() - SQL ERROR [1146]: Table "
                       "'tepdb.admins_people' doesn't exist QMYSQL: Unable to execute query\n SQL: "
                           + kReset},
                      {1, "D MHRWorker::dbResetAdminPeopleRequest(aid: 2, uid: 4) - affected: -1"},
                      {2, "D MHRWorker::dbSetAdminPeopleRequest(aid: 2, uid: 4)"},
                      {0,
                       "C MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR [1146]: Table "
                       "'tepdb.admins_people' doesn't exist QMYSQL: Unable to execute query\n SQL: "
                           + kSet},
                      {1, "D MHRWorker::dbSetAdminPeopleRequest(aid: 2, uid: 4) - affected: -1"}}));
}

QTEST_GUILESS_MAIN(TestSupervisor)
#include "tst_supervisor.moc"
