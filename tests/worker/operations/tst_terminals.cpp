#include "tests/worker/operations/workerconnection.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"

#include <QTest>

namespace {

const QString kSelectUid = "SELECT uid FROM people WHERE pid=12342 LIMIT 1";

const QString kCall = "CALL updateTermsSync(42, 2)";

QString queueStatement(const QString &type, const QString &ref)
{
    return "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags) SELECT `tid` "
           "tid, '"
        + type + "' type, '" + ref
        + "' ref, 'uid' ref_col, 42 ref_id, UNIX_TIMESTAMP() created, 2 flags FROM people_term "
          "JOIN term USING(tid) WHERE status = 1 AND uid = 42 AND (flags & 2)";
}

} // namespace

/// Queueing a person for the terminals.
class TestTerminals : public WorkerTest {
    Q_OBJECT
public:
    TestTerminals()
        : WorkerTest(Tables::Empty)
    {
    }

private Q_SLOTS:
    void init();

    void aPersonIsQueuedForEachActiveTerminal();
    void typeAndTableAreThoseOfTheCaller_data();
    void typeAndTableAreThoseOfTheCaller();
    void queueingIsLoggedFromDebugLevel2On_data();
    void queueingIsLoggedFromDebugLevel2On();
    void theProcedureIsCalledForAPersonWithoutTerminals();
    void testModeStillQueues();
    void anUnknownPersonCausesAWarning_data();
    void anUnknownPersonCausesAWarning();
    void aPersonOfUid0CausesAWarning();
    void aFailedLookUpCausesAWarning();
    void aFailureToQueueIsCriticalAndEndsIt_data();
    void aFailureToQueueIsCriticalAndEndsIt();
    void aQuoteInTheTableNameFails();
    void aFailedCallIsCriticalAndLeavesTheQueue_data();
    void aFailedCallIsCriticalAndLeavesTheQueue();
    void aFailureInsideTheProcedureIsCritical();
    void anErrorAfterAResultOfTheProcedureIsCritical();
    void aCallLeavesTheConnectionUsable();

private:
    Trace queue(QChar type = 'U', const QString &ref = "people")
    {
        return observe([&] { m_worker->addTermSyncPerson(12342, type, ref); });
    }
};

void TestTerminals::init()
{
    WorkerTest::init();
    m_db.run("INSERT INTO people (uid, pid) VALUES (41, 1111), (42, 12342)");
    m_db.run("INSERT INTO term (tid, status, flags, syn) VALUES (1, 1, 2, 0), (2, 1, 259, 1), "
             "(3, 0, 2, 0), (4, 2, 2, 0), (5, 1, 65, 0), (6, 1, 2, 0)");
    m_db.run("INSERT INTO people_term (tid, uid) VALUES (1, 42), (2, 42), (3, 42), (4, 42), "
             "(5, 42), (6, 41), (1, 41)");
    freezeTime();
}

void TestTerminals::aPersonIsQueuedForEachActiveTerminal()
{
    const Trace trace = queue();
    QCOMPARE(trace.statements, QStringList({kSelectUid, queueStatement("U", "people"), kCall}));
    QCOMPARE(trace.log, QStringList());
    // Not for those that are off (3), of another status (4), without people (5), of others (6).
    QCOMPARE(m_db.dump("term_sync"),
             QString("tid=1 type=U ref=people ref_col=uid ref_id=42 ref_col2=NULL ref_id2=NULL "
                     "created=1700000000 flags=2\n"
                     "tid=2 type=U ref=people ref_col=uid ref_id=42 ref_col2=NULL ref_id2=NULL "
                     "created=1700000000 flags=2"));
    QCOMPARE(m_db.rows("SELECT tid, syn FROM term ORDER BY tid"),
             TableRows({{"1", "2"}, {"2", "3"}, {"3", "0"}, {"4", "0"}, {"5", "0"}, {"6", "0"}}));
}

void TestTerminals::typeAndTableAreThoseOfTheCaller_data()
{
    QTest::addColumn<QChar>("type");
    QTest::addColumn<QString>("ref");
    QTest::newRow("inserted") << QChar('I') << "people_term";
    QTest::newRow("deleted") << QChar('D') << "zones";
}

void TestTerminals::typeAndTableAreThoseOfTheCaller()
{
    QFETCH(QChar, type);
    QFETCH(QString, ref);
    const Trace trace = queue(type, ref);
    QCOMPARE(trace.statements, QStringList({kSelectUid, queueStatement(type, ref), kCall}));
    QCOMPARE(m_db.rows("SELECT DISTINCT type, ref FROM term_sync"), TableRows({{type, ref}}));
}

void TestTerminals::queueingIsLoggedFromDebugLevel2On_data()
{
    addDebugLevels();
}

void TestTerminals::queueingIsLoggedFromDebugLevel2On()
{
    QFETCH(int, debugLevel);
    setDebugLevel(debugLevel);
    QCOMPARE(queue('I', "people_term").log,
             linesAt(debugLevel, {{2, "D MHRWorker::addTermSyncPerson(12342, I, people_term)"}}));
}

void TestTerminals::theProcedureIsCalledForAPersonWithoutTerminals()
{
    m_db.run("DELETE FROM people_term");
    const Trace trace = queue();
    QCOMPARE(trace.statements, QStringList({kSelectUid, queueStatement("U", "people"), kCall}));
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(m_db.dump("term_sync"), QString());
}

void TestTerminals::testModeStillQueues()
{
    m_worker->setTestMode(true);
    QCOMPARE(queue().statements.size(), 3);
    QCOMPARE(m_db.rows("SELECT tid FROM term_sync"), TableRows({{"1"}, {"2"}}));
}

void TestTerminals::anUnknownPersonCausesAWarning_data()
{
    addDebugLevels();
}

void TestTerminals::anUnknownPersonCausesAWarning()
{
    QFETCH(int, debugLevel);
    m_db.run("DELETE FROM people WHERE uid = 42");
    setDebugLevel(debugLevel);
    const Trace trace = queue();
    QCOMPARE(trace.statements, QStringList(kSelectUid));
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::addTermSyncPerson(12342, U, people)"},
                      {0, "W MHRWorker::addTermSyncPerson(12342) - uid NOT selected from DB!"}}));
}

void TestTerminals::aPersonOfUid0CausesAWarning()
{
    m_db.run("UPDATE people SET uid = 0 WHERE pid = 12342");
    const Trace trace = queue();
    QCOMPARE(trace.statements, QStringList(kSelectUid));
    QCOMPARE(trace.log,
             QStringList("W MHRWorker::addTermSyncPerson(12342) - uid NOT selected from DB!"));
}

void TestTerminals::aFailedLookUpCausesAWarning()
{
    m_db.hideTable("people");
    const Trace trace = queue();
    QCOMPARE(trace.statements, QStringList(kSelectUid));
    QCOMPARE(trace.log,
             QStringList("W MHRWorker::addTermSyncPerson(12342) - uid NOT selected from DB!"));
}

void TestTerminals::aFailureToQueueIsCriticalAndEndsIt_data()
{
    addDebugLevels();
}

void TestTerminals::aFailureToQueueIsCriticalAndEndsIt()
{
    QFETCH(int, debugLevel);
    m_db.refuse("INSERT", "term_sync");
    setDebugLevel(debugLevel);
    const Trace trace = queue();
    QCOMPARE(trace.statements, QStringList({kSelectUid, queueStatement("U", "people")}));
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::addTermSyncPerson(12342, U, people)"},
                      {0, "C MHRWorker::addTermSyncPerson() ERROR: " + SqlErrors::refusedText()}}));
}

void TestTerminals::aQuoteInTheTableNameFails()
{
    const Trace trace = queue('U', "peo'ple");
    QCOMPARE(trace.statements, QStringList({kSelectUid, queueStatement("U", "peo'ple")}));
    QCOMPARE(trace.log.size(), 1);
    QVERIFY2(trace.log.first().startsWith("C MHRWorker::addTermSyncPerson() ERROR: You have an "
                                          "error in your SQL syntax;"),
             qPrintable(trace.log.first()));
}

void TestTerminals::aFailedCallIsCriticalAndLeavesTheQueue_data()
{
    addDebugLevels();
}

void TestTerminals::aFailedCallIsCriticalAndLeavesTheQueue()
{
    QFETCH(int, debugLevel);
    m_db.run("DROP PROCEDURE updateTermsSync");
    setDebugLevel(debugLevel);
    const Trace trace = queue();
    QCOMPARE(trace.statements, QStringList({kSelectUid, queueStatement("U", "people"), kCall}));
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::addTermSyncPerson(12342, U, people)"},
                      {0,
                       "C MHRWorker::addTermSyncPerson() - updateTermsSync() ERROR: "
                       "PROCEDURE tepdb.updateTermsSync does not exist QMYSQL: Unable "
                       "to execute query"}}));
    QCOMPARE(m_db.rows("SELECT tid FROM term_sync"), TableRows({{"1"}, {"2"}}));
}

void TestTerminals::aFailureInsideTheProcedureIsCritical()
{
    m_db.refuse("UPDATE", "term");
    QCOMPARE(queue().log,
             QStringList("C MHRWorker::addTermSyncPerson() - updateTermsSync() ERROR: "
                         + SqlErrors::refusedText()));
    QCOMPARE(m_db.rows("SELECT tid FROM term_sync"), TableRows({{"1"}, {"2"}}));
}

void TestTerminals::anErrorAfterAResultOfTheProcedureIsCritical()
{
    // A site's own procedure may return rows before it fails: the error comes with a later result.
    m_db.run("DROP PROCEDURE updateTermsSync");
    m_db.run("CREATE PROCEDURE updateTermsSync(a INT, b INT) BEGIN SELECT 1; SIGNAL SQLSTATE "
             "'45000' SET MESSAGE_TEXT = 'failed later'; END");
    const Trace trace = queue();
    QCOMPARE(trace.log.size(), 1);
    QVERIFY2(trace.log.first().startsWith("C MHRWorker::addTermSyncPerson() - updateTermsSync() "
                                          "ERROR: failed later "),
             qPrintable(trace.log.first()));
}

void TestTerminals::aCallLeavesTheConnectionUsable()
{
    m_db.run("DROP PROCEDURE updateTermsSync");
    m_db.run("CREATE PROCEDURE updateTermsSync(a INT, b INT) BEGIN SELECT 1; SELECT 2; END");
    QCOMPARE(queue().log, QStringList());
    const Trace next = observe([this] { QCOMPARE(m_worker->dbGetUidByPid(12342), 42U); });
    QCOMPARE(next.log, QStringList());
    QSqlDatabase db = workerConnection();
    QVERIFY(db.transaction());
    QVERIFY(db.rollback());
}

QTEST_GUILESS_MAIN(TestTerminals)
#include "tst_terminals.moc"
