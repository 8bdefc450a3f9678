#include "tests/support/logcapture.h"
#include "tests/worker/operations/samplerecord.h"
#include "tests/worker/operations/workerconnection.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"

#include <QTest>

#include <algorithm>

/// The worker's connection: opened, closed and lost.
class TestConnection : public WorkerTest {
    Q_OBJECT
public:
    TestConnection()
        : WorkerTest(Tables::Empty)
    {
    }

private Q_SLOTS:
    void openingAndClosingAreLoggedAlikeFromDebugLevel2On_data();
    void openingAndClosingAreLoggedAlikeFromDebugLevel2On();
    void anOpenConnectionIsKept();
    void aClosedConnectionIsOpenedAgain();
    void closingTwiceIsHarmless();
    void aServerThatIsDownIsCritical_data();
    void aServerThatIsDownIsCritical();
    void openingWorksAgainOnceTheServerIsBack();
    void aLostConnectionFailsUntilItIsClosed();
    void aClosedConnectionFailsEveryOperation();

private:
    int connectCount();
};

/// How many connections the server has accepted. (It logs the end of one with a delay.)
int TestConnection::connectCount()
{
    const QVector<ServerEvent> events = m_db.events();
    return int(std::count_if(events.begin(), events.end(),
                             [](const ServerEvent &event) { return event.command == "Connect"; }));
}

void TestConnection::openingAndClosingAreLoggedAlikeFromDebugLevel2On_data()
{
    addDebugLevels();
}

void TestConnection::openingAndClosingAreLoggedAlikeFromDebugLevel2On()
{
    QFETCH(int, debugLevel);
    setDebugLevel(debugLevel);
    const QStringList expected = linesAt(debugLevel, {{2, "D MHRWorker::dbCheckOpen()"}});
    QCOMPARE(observe([this] { QVERIFY(m_worker->dbCheckOpen()); }).log, expected);
    QCOMPARE(observe([this] { m_worker->dbClose(); }).log, expected);
    QCOMPARE(observe([this] { m_worker->dbClose(); }).log, expected);
    QCOMPARE(observe([this] { QVERIFY(m_worker->dbCheckOpen()); }).log, expected);
}

void TestConnection::anOpenConnectionIsKept()
{
    const Trace trace = observe([this] {
        QVERIFY(m_worker->dbCheckOpen());
        QVERIFY(m_worker->dbCheckOpen());
        QCOMPARE(connectCount(), 0);
    });
    QCOMPARE(trace.statements, QStringList());
}

void TestConnection::aClosedConnectionIsOpenedAgain()
{
    const Trace trace = observe([this] {
        m_worker->dbClose();
        QVERIFY(!workerConnection().isOpen());
        QVERIFY(m_worker->dbCheckOpen());
        QVERIFY(workerConnection().isOpen());
        QCOMPARE(connectCount(), 1);
    });
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements, QStringList());
}

void TestConnection::closingTwiceIsHarmless()
{
    const Trace trace = observe([this] {
        m_worker->dbClose();
        m_worker->dbClose();
        QVERIFY(!workerConnection().isOpen());
    });
    QCOMPARE(trace.log, QStringList());
}

void TestConnection::aServerThatIsDownIsCritical_data()
{
    addDebugLevels();
}

void TestConnection::aServerThatIsDownIsCritical()
{
    QFETCH(int, debugLevel);
    const QString error =
        "Can't connect to local server through socket '" + m_db.server().socketPath() + "' (2)";
    m_worker->dbClose();
    m_db.stopServer();
    setDebugLevel(debugLevel);
    m_log->clear();
    QVERIFY(!m_worker->dbCheckOpen());
    m_db.startServer();
    QCOMPARE(m_log->lines(),
             linesAt(debugLevel,
                     {{2, "D MHRWorker::dbCheckOpen()"},
                      {0,
                       "C MHRWorker::dbCheckOpen() - SQL ERROR: " + error
                           + " QMYSQL: Unable to connect"}}));
}

void TestConnection::openingWorksAgainOnceTheServerIsBack()
{
    m_worker->dbClose();
    m_db.stopServer();
    m_log->clear();
    QVERIFY(!m_worker->dbCheckOpen());
    QVERIFY(!m_worker->dbCheckOpen());
    QCOMPARE(m_log->lines().size(), 2);
    m_db.startServer();
    m_db.clearStatements();
    QVERIFY(m_worker->dbCheckOpen());
    QVERIFY(m_worker->dbCheckOpen());
    QVERIFY(m_worker->dbLoadPeople());
    // The error of the failed attempts is not reported again.
    QCOMPARE(m_log->lines().size(), 2);
    QCOMPARE(m_db.statements().size(), 1);
}

void TestConnection::aLostConnectionFailsUntilItIsClosed()
{
    const MirovaRonRecord record = fullRecord();
    m_db.killServer();
    m_db.startServer();

    // The connection still reports that it is open, and no statement reaches the server.
    const Trace lost = observe([this, &record] {
        QVERIFY(m_worker->dbCheckOpen());
        QVERIFY(!m_worker->dbLoadPeople());
        QVERIFY(m_worker->dbCheckOpen());
        QCOMPARE(m_worker->dbGetUidByPid(1), 0U);
        QVERIFY(!m_worker->dbCheckPerson(record));
        QVERIFY(!m_worker->dbAddPerson(record));
        QVERIFY(!m_worker->dbUpdatePerson(record, false));
        QVERIFY(!m_worker->addPersonIntoPam(1));
        QVERIFY(!m_worker->dbAddPersonIntoPam(1, 1));
        m_worker->addTermSyncPerson(1, 'U', "people");
    });
    QCOMPARE(lost.statements, QStringList());
    QCOMPARE(lost.log,
             QStringList({
                 "C MHRWorker::dbLoadPeople() - SQL ERROR " + SqlErrors::gone(),
                 "C MHRWorker::dbGetUidByPid() - SQL ERROR " + SqlErrors::gone(),
                 "C MHRWorker::dbCheckPerson() - SQL ERROR " + SqlErrors::gone(),
                 "C MHRWorker::dbAddPerson(1234.2) - SQL ERROR: " + SqlErrors::goneText(),
                 "C MHRWorker::dbUpdatePerson(1234.2) - SQL ERROR: " + SqlErrors::goneText(),
                 "C TepDbSettings::variableGetMultiple - SQL ERROR: " + SqlErrors::goneText(),
                 "W MHRWorker::addTermSyncPerson(1) - uid NOT selected from DB!",
             }));

    const Trace healed = observe([this] {
        m_worker->dbClose();
        QVERIFY(m_worker->dbCheckOpen());
        QVERIFY(m_worker->dbLoadPeople());
    });
    QCOMPARE(healed.log, QStringList());
    QCOMPARE(healed.statements.size(), 1);
}

void TestConnection::aClosedConnectionFailsEveryOperation()
{
    // A statement on a closed connection fails without leaving an error: only the result shows it.
    const MirovaRonRecord record = fullRecord();
    Trace trace = observe([this, &record] {
        m_worker->dbClose();
        QVERIFY(!m_worker->dbLoadPeople());
        QCOMPARE(m_worker->dbGetUidByPid(1), 0U);
        QVERIFY(!m_worker->dbCheckPerson(record));
        QVERIFY(!m_worker->dbAddPerson(record));
        QVERIFY(!m_worker->dbUpdatePerson(record, false));
        QVERIFY(!m_worker->addPersonIntoPam(1));
        QVERIFY(!m_worker->dbAddPersonIntoPam(1, 1));
        m_worker->addTermSyncPerson(1, 'U', "people");
    });
    trace.log.removeAll("W QSqlQuery::exec: database not open");
    QCOMPARE(trace.statements, QStringList());
    QCOMPARE(trace.log,
             QStringList({
                 "C MHRWorker::dbLoadPeople() - SQL ERROR []: ",
                 "C MHRWorker::dbGetUidByPid() - SQL ERROR []: ",
                 "C MHRWorker::dbCheckPerson() - SQL ERROR []: ",
                 "C MHRWorker::dbAddPerson(1234.2) - SQL ERROR: ",
                 "C MHRWorker::dbUpdatePerson(1234.2) - SQL ERROR: ",
                 "W MHRWorker::addTermSyncPerson(1) - uid NOT selected from DB!",
             }));
}

QTEST_GUILESS_MAIN(TestConnection)
#include "tst_connection.moc"
