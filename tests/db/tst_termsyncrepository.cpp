#include "db/termsyncrepository.h"

#include "tests/db/repositorytest.h"
#include "tests/support/logcapture.h"

#include <QRegularExpression>
#include <QSqlQuery>
#include <QTest>
#include <QTextCodec>

#include <functional>

using Call = std::function<void(TermSyncRepository &)>;
Q_DECLARE_METATYPE(Call)

/// The terminals of these tests:
///  1, 2  active, take every kind of data
///  3     active, takes none
///  4     switched off, takes every kind
///  5     in a state of its own (status 2), takes every kind
class TestTermSyncRepository : public RepositoryTest {
    Q_OBJECT

private Q_SLOTS:
    void theParentIsOptional();

    void eachOperationQueuesAndMarks_data();
    void eachOperationQueuesAndMarks();
    void aFailedQueueingIsLoggedAndMarksNothing_data();
    void aFailedQueueingIsLoggedAndMarksNothing();
    void aFailedMarkingIsLoggedAndKeepsTheQueue_data();
    void aFailedMarkingIsLoggedAndKeepsTheQueue();
    void anEmptyListFailsAndMarksNothing_data();
    void anEmptyListFailsAndMarksNothing();

    void blanksAndRepeatedIdsStayInTheList_data();
    void blanksAndRepeatedIdsStayInTheList();
    void aListOfABlankIsSentAndFails_data();
    void aListOfABlankIsSentAndFails();
    void aQuoteInTheTableNameBreaksTheStatement_data();
    void aQuoteInTheTableNameBreaksTheStatement();

    void aPersonInNoTerminalIsNotQueuedButTheTerminalsAreStillMarked();
    void singleTerminalOperationsDoNotLookAtFlagsOrStatus();
    void listsQueueActivePeopleAndKnownIntervalTypesOnly();
    void anIntervalTypeInNoTerminalRunsNoUpdate();
    void aFailedSelectionOfTerminalsIsNotLogged();
    void aTimezoneIsQueuedOncePerTerminal();
    void aTimezoneCanBeQueuedAgain();
    void colourGroupsAreMarkedEvenWhenNotQueued();
    void aZoneAssignmentQueuesTheZoneOnlyWhenItIsNew_data();
    void aZoneAssignmentQueuesTheZoneOnlyWhenItIsNew();
    void aFailedZoneStillMarksTheTerminalOfItsAssignment();

    void anErrorAfterTheFirstResultOfTheProcedureIsSeen();
    void theConnectionIsFreeAfterTheProcedure();
    void anErrorOfALaterStatementOfTheTimezoneTextIsSeen();
    void theTimezoneTextRecoversFromAnEarlierFailure();

    void setTermSynAddsBitsToActiveTerminals_data();
    void setTermSynAddsBitsToActiveTerminals();
    void setTermSynReportsAFailedStatement();

    void theRowsCarryTheTimeOfQueueing();
    void errorTextsAreLoggedInTheLocalEncoding();
    void aClosedConnectionFailsWithoutAnError();

private:
    void addTerminals();
    void fillTables();
    void forbidJoinsOnceQueued();
    void replaceProcedure(const QString &statements);
    TableRows queue();
    QString pending();

    struct Repo : TermSyncRepository {
        explicit Repo(const TestTermSyncRepository &test) { setDB(test.m_connection); }
    };
};

namespace {

const QStringList kZoneStatements = {
    "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags) SELECT `tid` tid,"
    " 'I' type, 'zones' ref, 'zid' ref_col, 8 ref_id, UNIX_TIMESTAMP() created, 64 flags FROM pzt"
    " JOIN term t USING(tid) WHERE zid = 8 AND t.status = 1 AND (t.flags & 64) GROUP BY t.tid",
    "DROP TEMPORARY TABLE IF EXISTS tmptbl_updateTermsSyncTZ;CREATE TEMPORARY TABLE"
    " tmptbl_updateTermsSyncTZ AS (SELECT DISTINCT t.tid FROM pzt JOIN term t USING(tid) WHERE zid"
    " = 8 AND (t.status > 0) AND (t.flags & 64));UPDATE `term` SET `syn` = (`syn` | 64 ) WHERE"
    " `tid` IN (SELECT tid FROM tmptbl_updateTermsSyncTZ);DROP TEMPORARY TABLE IF EXISTS"
    " tmptbl_updateTermsSyncTZ"};

const Call kQueueTimezone = [](TermSyncRepository &repo) {
    repo.addTermSyncTimezone(8, 'I', "zones");
};

} // namespace

void TestTermSyncRepository::addTerminals()
{
    m_database.run("INSERT INTO term (tid, bid, status, flags, syn) VALUES (1, 1, 1, 323, 0),"
                   " (2, 1, 1, 323, 1024), (3, 1, 1, 0, 0), (4, 1, 0, 323, 0), (5, 1, 2, 323, 0)");
}

void TestTermSyncRepository::fillTables()
{
    addTerminals();
    m_database.run("INSERT INTO people (uid, pid, status) VALUES (21, 21, 1), (22, 22, 1),"
                   " (23, 23, 0)");
    m_database.run("INSERT INTO people_term (tid, uid) SELECT tid, 21 FROM term");
    m_database.run("INSERT INTO inters (iid) VALUES (31), (32)");
    m_database.run("INSERT INTO inters_term (tid, iid) SELECT tid, 31 FROM term");
    m_database.run("INSERT INTO pzt (tid, zid) SELECT tid, 8 FROM term");
    runOnConnection("SET timestamp = 1700000000");
}

/// The first row that is queued removes what later joins on the connection need: a selection of
/// terminals then fails, and so does the second statement of the text for time zones.
void TestTermSyncRepository::forbidJoinsOnceQueued()
{
    runOnConnection("SET SESSION max_join_size = 100000, sql_big_selects = 0");
    m_database.run("CREATE TRIGGER no_more_joins AFTER INSERT ON term_sync FOR EACH ROW"
                   " SET SESSION max_join_size = 1");
}

/// Gives updateTermsSync another body, and grants the rights again that are lost with the old one.
void TestTermSyncRepository::replaceProcedure(const QString &statements)
{
    m_database.run("CREATE OR REPLACE PROCEDURE updateTermsSync(IN p_uid INT, IN p_flag INT)"
                   " SQL SECURITY INVOKER BEGIN "
                   + statements + "; END");
    m_database.run("GRANT EXECUTE ON PROCEDURE updateTermsSync TO '"
                   + m_database.server().userName() + "'@'localhost'");
}

TableRows TestTermSyncRepository::queue()
{
    return m_database.rows("SELECT tid, type, ref, ref_col, ref_id, ref_col2, ref_id2, flags"
                           " FROM term_sync ORDER BY flags, ref, tid, ref_id");
}

/// The pending masks of all terminals in the order of their ids.
QString TestTermSyncRepository::pending()
{
    return m_database.value("SELECT GROUP_CONCAT(syn ORDER BY tid) FROM term").toString();
}

void TestTermSyncRepository::theParentIsOptional()
{
    QObject owner;
    QCOMPARE((new TermSyncRepository(&owner))->parent(), &owner);
    QCOMPARE(TermSyncRepository().parent(), nullptr);
    QCOMPARE(TermSyncRepository::staticMetaObject.methodCount(),
             QObject::staticMetaObject.methodCount());
}

void TestTermSyncRepository::eachOperationQueuesAndMarks_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<TableRows>("queued");
    QTest::addColumn<QString>("marked");

    QTest::newRow("person in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(21, 'U', "people_term"); })
        << QStringList(
               {"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags) SELECT"
                " `tid` tid, 'U' type, 'people_term' ref, 'uid' ref_col, 21 ref_id,"
                " UNIX_TIMESTAMP() created, 2 flags FROM people_term JOIN term USING(tid) WHERE"
                " status = 1 AND uid = 21 AND (flags & 2)",
                "CALL updateTermsSync(21, 2)"})
        << TableRows({{"1", "U", "people_term", "uid", "21", "NULL", "NULL", "2"},
                      {"2", "U", "people_term", "uid", "21", "NULL", "NULL", "2"}})
        << "2,1026,0,0,0";
    QTest::newRow("person in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(1, 21, 'D', "people_term"); })
        << QStringList({"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " VALUES(1, 'D', 'people_term', 'uid', 21, UNIX_TIMESTAMP(), 2)",
                        "Update `term` SET syn = syn | 2 WHERE status = 1 AND tid = 1"})
        << TableRows({{"1", "D", "people_term", "uid", "21", "NULL", "NULL", "2"}})
        << "2,1024,0,0,0";
    QTest::newRow("people in one terminal")
        << Call([](TermSyncRepository &repo) {
               repo.addTermSyncPeople(2, {"21", "22"}, 'I');
           })
        << QStringList({"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " SELECT 2 tid, 'I' type, 'people_term' ref, 'uid' ref_col, `uid` ref_id,"
                        " UNIX_TIMESTAMP() created, 2 flags FROM people WHERE status = 1 AND uid"
                        " IN(21, 22)",
                        "Update `term` SET syn = syn | 2 WHERE status = 1 AND tid = 2"})
        << TableRows({{"2", "I", "people_term", "uid", "21", "NULL", "NULL", "2"},
                      {"2", "I", "people_term", "uid", "22", "NULL", "NULL", "2"}})
        << "0,1026,0,0,0";
    QTest::newRow("interval type in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(1, 31, 'I', "inters_term"); })
        << QStringList({"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " VALUES(1, 'I', 'inters_term', 'iid', 31, UNIX_TIMESTAMP(), 1)",
                        "Update `term` SET syn = syn | 1 WHERE status = 1 AND tid = 1"})
        << TableRows({{"1", "I", "inters_term", "iid", "31", "NULL", "NULL", "1"}})
        << "1,1024,0,0,0";
    QTest::newRow("interval types in one terminal")
        << Call([](TermSyncRepository &repo) {
               repo.addTermSyncInters(1, {"31", "32"}, 'D');
           })
        << QStringList({"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " SELECT 1 tid, 'D' type, 'inters_term' ref, 'iid' ref_col, `iid` ref_id,"
                        " UNIX_TIMESTAMP() created, 1 flags FROM inters WHERE iid IN(31, 32)",
                        "Update `term` SET syn = syn | 1 WHERE status = 1 AND tid = 1"})
        << TableRows({{"1", "D", "inters_term", "iid", "31", "NULL", "NULL", "1"},
                      {"1", "D", "inters_term", "iid", "32", "NULL", "NULL", "1"}})
        << "1,1024,0,0,0";
    QTest::newRow("interval type in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(31, 'U', "inters_term"); })
        << QStringList(
               {"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags) SELECT"
                " `tid` tid, 'U' type, 'inters_term' ref, 'iid' ref_col, 31 ref_id,"
                " UNIX_TIMESTAMP() created, 1 flags FROM inters_term JOIN term USING(tid) WHERE"
                " status = 1 AND iid = 31 AND (flags & 1)",
                "SELECT it.tid FROM inters_term it JOIN term t ON it.tid = t.tid WHERE t.status = 1"
                " AND iid = 31 AND (t.flags & 1)",
                "UPDATE `term` SET `syn` = (`syn` | 1 ) WHERE `tid` IN (1,2)"})
        << TableRows({{"1", "U", "inters_term", "iid", "31", "NULL", "NULL", "1"},
                      {"2", "U", "inters_term", "iid", "31", "NULL", "NULL", "1"}})
        << "1,1025,0,0,0";
    QTest::newRow("time zone in all terminals")
        << kQueueTimezone << kZoneStatements
        << TableRows({{"1", "I", "zones", "zid", "8", "NULL", "NULL", "64"},
                      {"2", "I", "zones", "zid", "8", "NULL", "NULL", "64"}})
        << "64,1088,0,0,64";
    QTest::newRow("changed zone assignment")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPZT(21, 8, 1, 'U', "pzt"); })
        << QStringList({"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, ref_col2,"
                        " ref_id2, created, flags) VALUES(1, 'U', 'pzt', 'zid', 8, 'uid', 21,"
                        " UNIX_TIMESTAMP(), 64)",
                        "UPDATE `term` SET `syn` = (`syn` | 64 ) WHERE `tid` = 1"})
        << TableRows({{"1", "U", "pzt", "zid", "8", "uid", "21", "64"}}) << "64,1024,0,0,0";
    QTest::newRow("colour group of a person")
        << Call([](TermSyncRepository &repo) { repo.addColorGroup(1, 21); })
        << QStringList({"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " VALUES(1, 'U', 'people_term', 'uid', 21, UNIX_TIMESTAMP(), 256)",
                        "Update `term` SET syn = syn | 256 WHERE status = 1 AND tid = 1"})
        << TableRows({{"1", "U", "people_term", "uid", "21", "NULL", "NULL", "256"}})
        << "256,1024,0,0,0";
    QTest::newRow("colour groups of people")
        << Call([](TermSyncRepository &repo) {
               repo.addColorGroup(1, QStringList({"22", "21"}));
           })
        << QStringList({"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags)"
                        " SELECT 1 tid, 'U' type, 'people_term' ref, 'uid' ref_col, `uid` ref_id,"
                        " UNIX_TIMESTAMP() created, 256 flags FROM people WHERE status = 1 AND uid"
                        " IN(22, 21)",
                        "Update `term` SET syn = syn | 256 WHERE status = 1 AND tid = 1"})
        << TableRows({{"1", "U", "people_term", "uid", "21", "NULL", "NULL", "256"},
                      {"1", "U", "people_term", "uid", "22", "NULL", "NULL", "256"}})
        << "256,1024,0,0,0";
    QTest::newRow("all colour groups")
        << Call([](TermSyncRepository &repo) { repo.addColorGroupsToTermSync(); })
        << QStringList(
               {"INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags) SELECT"
                " tid, 'U' type, 'vars' ref, 'colorGroups' ref_col, 0 ref_id, UNIX_TIMESTAMP()"
                " created, 256 flags FROM term t WHERE t.status = 1 AND (t.flags & 256)",
                "Update `term` SET syn = syn | 256 WHERE status = 1 AND (flags & 256)"})
        << TableRows({{"1", "U", "vars", "colorGroups", "0", "NULL", "NULL", "256"},
                      {"2", "U", "vars", "colorGroups", "0", "NULL", "NULL", "256"}})
        << "256,1280,0,0,0";
}

void TestTermSyncRepository::eachOperationQueuesAndMarks()
{
    QFETCH(Call, call);
    fillTables();
    Repo repo(*this);
    LogCapture log;
    call(repo);
    QTEST(m_database.statements(), "statements");
    QTEST(queue(), "queued");
    QTEST(pending(), "marked");
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::aFailedQueueingIsLoggedAndMarksNothing_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("message");
    QTest::newRow("person in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(21, 'U', "people_term"); })
        << "TermSyncRepository::addTermSyncPerson() ERROR: ";
    QTest::newRow("person in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(1, 21, 'U', "people_term"); })
        << "TermSyncRepository::addTermSyncPerson() ERROR: ";
    QTest::newRow("people in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPeople(1, {"21"}, 'U'); })
        << "TermSyncRepository::addTermSyncPeople() ERROR: ";
    QTest::newRow("interval type in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(1, 31, 'U', "inters_term"); })
        << "TermSyncRepository::addTermSyncInter() ERROR: ";
    QTest::newRow("interval types in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInters(1, {"31"}, 'U'); })
        << "TermSyncRepository::addTermSyncPeople() ERROR: ";
    QTest::newRow("interval type in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(31, 'U', "inters_term"); })
        << "TermSyncRepository::addTermSyncInter() ERROR: ";
    QTest::newRow("time zone in all terminals")
        << kQueueTimezone << "TermSyncRepository::addTermSyncTimezone() ERROR: ";
    QTest::newRow("new zone assignment")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPZT(21, 8, 1, 'I', "pzt"); })
        << "TermSyncRepository::addTermSyncPZT() ERROR: ";
    QTest::newRow("colour group of a person")
        << Call([](TermSyncRepository &repo) { repo.addColorGroup(1, 21); })
        << "TermSyncRepository::addColorGroup() ERROR: ";
    QTest::newRow("colour groups of people")
        << Call([](TermSyncRepository &repo) { repo.addColorGroup(1, QStringList("21")); })
        << "TermSyncRepository::addColorGroup() - INSERT INTO `term_sync` FAILED! ERROR: ";
}

void TestTermSyncRepository::aFailedQueueingIsLoggedAndMarksNothing()
{
    QFETCH(Call, call);
    QFETCH(QString, message);
    fillTables();
    m_database.hideTable("term_sync");
    Repo repo(*this);
    LogCapture log;
    call(repo);
    QCOMPARE(log.lines(),
             QStringList("C " + message
                         + "Table 'tepdb.term_sync' doesn't exist QMYSQL: Unable to execute"
                           " query"));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(pending(), QString("0,1024,0,0,0"));
}

void TestTermSyncRepository::aFailedMarkingIsLoggedAndKeepsTheQueue_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("queued");
    QTest::addColumn<QStringList>("messages");
    const QString refused = "refused QMYSQL: Unable to execute query";
    const QString refusedLater = "refused QMYSQL: Unable to execute next query";
    const QStringList bySetTermSyn("C TermSyncRepository::setTermSyn() ERROR: " + refused);

    QTest::newRow("person in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(21, 'U', "people_term"); })
        << 2
        << QStringList("C TermSyncRepository::addTermSyncPerson() - updateTermsSync() FAILED!"
                       " ERROR: "
                       + refused);
    QTest::newRow("person in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(1, 21, 'U', "people_term"); })
        << 1 << bySetTermSyn;
    QTest::newRow("people in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPeople(1, {"21"}, 'U'); }) << 1
        << bySetTermSyn;
    QTest::newRow("interval type in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(1, 31, 'U', "inters_term"); })
        << 1 << bySetTermSyn;
    QTest::newRow("interval types in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInters(1, {"31"}, 'U'); }) << 1
        << bySetTermSyn;
    QTest::newRow("interval type in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(31, 'U', "inters_term"); })
        << 2
        << QStringList("C TermSyncRepository::addTermSyncInter() - updateTermsSync() FAILED!"
                       " ERROR: "
                       + refused);
    QTest::newRow("time zone in all terminals")
        << kQueueTimezone << 2
        << QStringList("C TermSyncRepository::addTermSyncTimezone() - update terminals FAILED!"
                       " ERROR: "
                       + refusedLater);
    QTest::newRow("changed zone assignment")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPZT(21, 8, 1, 'U', "pzt"); }) << 1
        << QStringList("C TermSyncRepository::addTermSyncPZT() - update terminals FAILED! ERROR: "
                       + refused);
    QTest::newRow("colour group of a person")
        << Call([](TermSyncRepository &repo) { repo.addColorGroup(1, 21); }) << 1 << bySetTermSyn;
    QTest::newRow("colour groups of people")
        << Call([](TermSyncRepository &repo) { repo.addColorGroup(1, QStringList("21")); }) << 1
        << bySetTermSyn;
    QTest::newRow("all colour groups")
        << Call([](TermSyncRepository &repo) { repo.addColorGroupsToTermSync(); }) << 2
        << QStringList("C TermSyncRepository::addColorGroupsToTermSync() - Update `term` FAILED!"
                       " ERROR: "
                       + refused);
}

void TestTermSyncRepository::aFailedMarkingIsLoggedAndKeepsTheQueue()
{
    QFETCH(Call, call);
    fillTables();
    m_database.refuse("UPDATE", "term", "refused");
    Repo repo(*this);
    LogCapture log;
    call(repo);
    QTEST(log.lines(), "messages");
    QTEST(queue().size(), "queued");
    QCOMPARE(pending(), QString("0,1024,0,0,0"));
}

void TestTermSyncRepository::anEmptyListFailsAndMarksNothing_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("message");
    QTest::newRow("people") << Call([](TermSyncRepository &repo) {
        repo.addTermSyncPeople(1, {}, 'I');
    }) << "TermSyncRepository::addTermSyncPeople() ERROR: ";
    QTest::newRow("interval types")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInters(1, {}, 'I'); })
        << "TermSyncRepository::addTermSyncPeople() ERROR: ";
    QTest::newRow("colour groups")
        << Call([](TermSyncRepository &repo) { repo.addColorGroup(1, QStringList()); })
        << "TermSyncRepository::addColorGroup() - INSERT INTO `term_sync` FAILED! ERROR: ";
}

void TestTermSyncRepository::anEmptyListFailsAndMarksNothing()
{
    QFETCH(Call, call);
    QFETCH(QString, message);
    fillTables();
    Repo repo(*this);
    LogCapture log;
    call(repo);
    QCOMPARE(log.lines(),
             QStringList("C " + message
                         + "You have an error in your SQL syntax; check the manual that corresponds"
                           " to your MariaDB server version for the right syntax to use near ')' at"
                           " line 1 QMYSQL: Unable to execute query"));
    QCOMPARE(m_database.statements().size(), 1);
    QVERIFY(m_database.statements().first().endsWith(" IN()"));
    QCOMPARE(pending(), QString("0,1024,0,0,0"));
}

void TestTermSyncRepository::blanksAndRepeatedIdsStayInTheList_data()
{
    QTest::addColumn<Call>("call");
    const QStringList ids = {" 21", "31", "21", "31"};
    QTest::newRow("people") << Call(
        [ids](TermSyncRepository &repo) { repo.addTermSyncPeople(1, ids, 'I'); });
    QTest::newRow("interval types")
        << Call([ids](TermSyncRepository &repo) { repo.addTermSyncInters(1, ids, 'I'); });
    QTest::newRow("colour groups")
        << Call([ids](TermSyncRepository &repo) { repo.addColorGroup(1, ids); });
}

void TestTermSyncRepository::blanksAndRepeatedIdsStayInTheList()
{
    QFETCH(Call, call);
    fillTables();
    Repo repo(*this);
    LogCapture log;
    call(repo);
    const QString statement = m_database.statements().value(0);
    QVERIFY2(statement.endsWith(" IN( 21, 31, 21, 31)"), qPrintable(statement));
    QCOMPARE(queue().size(), 1);
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::aListOfABlankIsSentAndFails_data()
{
    QTest::addColumn<Call>("call");
    const QStringList ids(" ");
    QTest::newRow("people") << Call(
        [ids](TermSyncRepository &repo) { repo.addTermSyncPeople(1, ids, 'I'); });
    QTest::newRow("interval types")
        << Call([ids](TermSyncRepository &repo) { repo.addTermSyncInters(1, ids, 'I'); });
    QTest::newRow("colour groups")
        << Call([ids](TermSyncRepository &repo) { repo.addColorGroup(1, ids); });
}

void TestTermSyncRepository::aListOfABlankIsSentAndFails()
{
    QFETCH(Call, call);
    fillTables();
    Repo repo(*this);
    LogCapture log;
    call(repo);
    QCOMPARE(m_database.statements().size(), 1);
    QVERIFY(m_database.statements().first().endsWith(" IN( )"));
    QCOMPARE(log.lines().filter("ERROR: You have an error in your SQL syntax").size(), 1);
}

void TestTermSyncRepository::aQuoteInTheTableNameBreaksTheStatement_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("message");
    QTest::newRow("person in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(21, 'U', "o'clock"); })
        << "TermSyncRepository::addTermSyncPerson() ERROR: ";
    QTest::newRow("person in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPerson(1, 21, 'U', "o'clock"); })
        << "TermSyncRepository::addTermSyncPerson() ERROR: ";
    QTest::newRow("interval type in one terminal")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(1, 31, 'U', "o'clock"); })
        << "TermSyncRepository::addTermSyncInter() ERROR: ";
    QTest::newRow("interval type in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncInter(31, 'U', "o'clock"); })
        << "TermSyncRepository::addTermSyncInter() ERROR: ";
    QTest::newRow("time zone in all terminals")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncTimezone(8, 'U', "o'clock"); })
        << "TermSyncRepository::addTermSyncTimezone() ERROR: ";
    QTest::newRow("zone assignment")
        << Call([](TermSyncRepository &repo) { repo.addTermSyncPZT(21, 8, 1, 'I', "o'clock"); })
        << "TermSyncRepository::addTermSyncPZT() ERROR: ";
}

void TestTermSyncRepository::aQuoteInTheTableNameBreaksTheStatement()
{
    QFETCH(Call, call);
    QFETCH(QString, message);
    fillTables();
    Repo repo(*this);
    LogCapture log;
    call(repo);
    QCOMPARE(m_database.statements().size(), 1);
    QVERIFY(m_database.statements().first().contains("'o'clock'"));
    QCOMPARE(log.lines().size(), 1);
    QVERIFY2(log.lines().first().startsWith("C " + message + "You have an error in your SQL"),
             qPrintable(log.lines().first()));
    QCOMPARE(queue(), TableRows());
    QCOMPARE(pending(), QString("0,1024,0,0,0"));
}

void TestTermSyncRepository::aPersonInNoTerminalIsNotQueuedButTheTerminalsAreStillMarked()
{
    fillTables();
    LogCapture log;
    Repo(*this).addTermSyncPerson(22, 'U', "people_term");
    QCOMPARE(m_database.statements().size(), 2);
    QCOMPARE(m_database.statements().last(), QString("CALL updateTermsSync(22, 2)"));
    QCOMPARE(queue(), TableRows());
    QCOMPARE(pending(), QString("0,1024,0,0,0"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::singleTerminalOperationsDoNotLookAtFlagsOrStatus()
{
    fillTables();
    Repo repo(*this);
    LogCapture log;
    repo.addTermSyncPerson(3, 21, 'U', "people_term"); // takes no people
    repo.addTermSyncPeople(4, {"22"}, 'U'); // switched off: queued, not marked
    QCOMPARE(queue(),
             TableRows({{"3", "U", "people_term", "uid", "21", "NULL", "NULL", "2"},
                        {"4", "U", "people_term", "uid", "22", "NULL", "NULL", "2"}}));
    QCOMPARE(pending(), QString("0,1024,2,0,0"));
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::listsQueueActivePeopleAndKnownIntervalTypesOnly()
{
    fillTables();
    Repo repo(*this);
    repo.addTermSyncPeople(1, {"21", "23", "99"}, 'I');
    repo.addTermSyncInters(1, {"32", "39"}, 'I');
    repo.addColorGroup(1, QStringList({"22", "23"}));
    QCOMPARE(queue(),
             TableRows({{"1", "I", "inters_term", "iid", "32", "NULL", "NULL", "1"},
                        {"1", "I", "people_term", "uid", "21", "NULL", "NULL", "2"},
                        {"1", "U", "people_term", "uid", "22", "NULL", "NULL", "256"}}));
}

void TestTermSyncRepository::anIntervalTypeInNoTerminalRunsNoUpdate()
{
    fillTables();
    LogCapture log;
    Repo(*this).addTermSyncInter(32, 'U', "inters_term");
    QCOMPARE(m_database.statements().size(), 2);
    QVERIFY(m_database.statements().last().startsWith("SELECT it.tid"));
    QCOMPARE(queue(), TableRows());
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::aFailedSelectionOfTerminalsIsNotLogged()
{
    fillTables();
    forbidJoinsOnceQueued();
    LogCapture log;
    Repo(*this).addTermSyncInter(31, 'U', "inters_term");
    QCOMPARE(queue().size(), 2);
    QCOMPARE(m_database.statements().size(), 2);
    QCOMPARE(pending(), QString("0,1024,0,0,0"));
    QCOMPARE(log.lines(), QStringList());
    QSqlQuery selection(m_connection);
    QVERIFY(!selection.exec(m_database.statements().last()));
}

void TestTermSyncRepository::aTimezoneIsQueuedOncePerTerminal()
{
    addTerminals();
    m_database.run("INSERT INTO pzt (tid, zid) VALUES (1, 8), (1, 8), (2, 8), (2, 9), (4, 8)");
    Repo(*this).addTermSyncTimezone(8, 'I', "zones");
    QCOMPARE(queue(),
             TableRows({{"1", "I", "zones", "zid", "8", "NULL", "NULL", "64"},
                        {"2", "I", "zones", "zid", "8", "NULL", "NULL", "64"}}));
    QCOMPARE(pending(), QString("64,1088,0,0,0"));
}

void TestTermSyncRepository::aTimezoneCanBeQueuedAgain()
{
    fillTables();
    Repo repo(*this);
    LogCapture log;
    repo.addTermSyncTimezone(8, 'I', "zones");
    repo.addTermSyncTimezone(8, 'I', "zones");
    QCOMPARE(queue().size(), 4);
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::colourGroupsAreMarkedEvenWhenNotQueued()
{
    fillTables();
    m_database.hideTable("term_sync");
    LogCapture log;
    Repo(*this).addColorGroupsToTermSync();
    QCOMPARE(log.lines(),
             QStringList("C TermSyncRepository::addColorGroupsToTermSync() - INSERT INTO"
                         " `term_sync` FAILED! ERROR: Table 'tepdb.term_sync' doesn't exist QMYSQL:"
                         " Unable to execute query"));
    QCOMPARE(m_database.statements().size(), 2);
    QCOMPARE(pending(), QString("256,1280,0,0,0"));
}

void TestTermSyncRepository::aZoneAssignmentQueuesTheZoneOnlyWhenItIsNew_data()
{
    QTest::addColumn<QChar>("type");
    QTest::addColumn<QString>("marked");
    QTest::newRow("new") << QChar('I') << "64,1088,64,0,64";
    QTest::newRow("changed") << QChar('U') << "0,1024,64,0,0";
    QTest::newRow("removed") << QChar('D') << "0,1024,64,0,0";
}

void TestTermSyncRepository::aZoneAssignmentQueuesTheZoneOnlyWhenItIsNew()
{
    QFETCH(QChar, type);
    const bool isNew = type == 'I';
    fillTables();
    LogCapture log;
    Repo(*this).addTermSyncPZT(21, 8, 3, type, "assignments");

    QStringList statements = {
        QStringLiteral("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, ref_col2,"
                       " ref_id2, created, flags) VALUES(3, '%1', 'assignments', 'zid', 8, 'uid',"
                       " 21, UNIX_TIMESTAMP(), 64)")
            .arg(type)};
    if (isNew)
        statements += kZoneStatements;
    statements += "UPDATE `term` SET `syn` = (`syn` | 64 ) WHERE `tid` = 3";
    QCOMPARE(m_database.statements(), statements);

    TableRows queued = {{"3", type, "assignments", "zid", "8", "uid", "21", "64"}};
    if (isNew) {
        queued += TableRows({{"1", "I", "zones", "zid", "8", "NULL", "NULL", "64"},
                             {"2", "I", "zones", "zid", "8", "NULL", "NULL", "64"}});
    }
    QCOMPARE(queue(), queued);
    QTEST(pending(), "marked");
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::aFailedZoneStillMarksTheTerminalOfItsAssignment()
{
    fillTables();
    m_database.hideTable("pzt");
    LogCapture log;
    Repo(*this).addTermSyncPZT(21, 8, 1, 'I', "pzt");
    QCOMPARE(log.lines(),
             QStringList("C TermSyncRepository::addTermSyncTimezone() ERROR: Table 'tepdb.pzt'"
                         " doesn't exist QMYSQL: Unable to execute query"));
    QCOMPARE(queue().size(), 1);
    QCOMPARE(pending(), QString("64,1024,0,0,0"));
}

void TestTermSyncRepository::anErrorAfterTheFirstResultOfTheProcedureIsSeen()
{
    fillTables();
    replaceProcedure("SELECT p_uid; SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'refused'");
    LogCapture log;
    Repo(*this).addTermSyncPerson(21, 'U', "people_term");
    QCOMPARE(log.lines(),
             QStringList("C TermSyncRepository::addTermSyncPerson() - updateTermsSync() FAILED!"
                         " ERROR: refused QMYSQL: Unable to execute next query"));
}

void TestTermSyncRepository::theConnectionIsFreeAfterTheProcedure()
{
    fillTables();
    replaceProcedure("SELECT p_uid; SELECT p_flag");
    LogCapture log;
    Repo(*this).addTermSyncPerson(21, 'U', "people_term");
    Repo(*this).addTermSyncTimezone(8, 'I', "zones");
    QVERIFY(m_connection.transaction());
    QVERIFY(m_connection.rollback());
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::anErrorOfALaterStatementOfTheTimezoneTextIsSeen()
{
    fillTables();
    forbidJoinsOnceQueued();
    LogCapture log;
    Repo(*this).addTermSyncTimezone(8, 'I', "zones");
    QCOMPARE(queue().size(), 2);
    QCOMPARE(log.lines(),
             QStringList("C TermSyncRepository::addTermSyncTimezone() - update terminals FAILED!"
                         " ERROR: The SELECT would examine more than MAX_JOIN_SIZE rows; check your"
                         " WHERE and use SET SQL_BIG_SELECTS=1 or SET MAX_JOIN_SIZE=# if the SELECT"
                         " is okay QMYSQL: Unable to execute next query"));
    QCOMPARE(pending(), QString("0,1024,0,0,0"));
}

void TestTermSyncRepository::theTimezoneTextRecoversFromAnEarlierFailure()
{
    fillTables();
    Repo repo(*this);
    m_database.refuse("UPDATE", "term");
    LogCapture log;
    repo.addTermSyncTimezone(8, 'I', "zones");
    QCOMPARE(log.lines().size(), 1);
    m_database.allow("UPDATE", "term");
    log.clear();
    repo.addTermSyncTimezone(8, 'I', "zones");
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(pending(), QString("64,1088,0,0,64"));
}

void TestTermSyncRepository::setTermSynAddsBitsToActiveTerminals_data()
{
    QTest::addColumn<unsigned int>("tid");
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("marked");
    QTest::newRow("no bit set yet") << 1u << 2 << true << "2,1024,0,0,0";
    QTest::newRow("others stay") << 2u << 256 << true << "0,1280,0,0,0";
    QTest::newRow("two at once") << 1u << 3 << true << "3,1024,0,0,0";
    QTest::newRow("one of two new") << 2u << 1025 << true << "0,1025,0,0,0";
    QTest::newRow("set already") << 2u << 1024 << false << "0,1024,0,0,0";
    QTest::newRow("any kind of terminal") << 3u << 2 << true << "0,1024,2,0,0";
    QTest::newRow("switched off") << 4u << 2 << false << "0,1024,0,0,0";
    QTest::newRow("another status") << 5u << 2 << false << "0,1024,0,0,0";
    QTest::newRow("unknown") << 4294967295u << 65535 << false << "0,1024,0,0,0";
}

void TestTermSyncRepository::setTermSynAddsBitsToActiveTerminals()
{
    QFETCH(unsigned int, tid);
    QFETCH(int, bits);
    addTerminals();
    LogCapture log;
    QTEST(Repo(*this).setTermSyn(tid, ushort(bits)), "result");
    QCOMPARE(m_database.statements(),
             QStringList(QStringLiteral("Update `term` SET syn = syn | %1 WHERE status = 1 AND tid"
                                        " = %2")
                             .arg(bits)
                             .arg(tid)));
    QTEST(pending(), "marked");
    QCOMPARE(log.lines(), QStringList());
}

void TestTermSyncRepository::setTermSynReportsAFailedStatement()
{
    m_database.hideTable("term");
    LogCapture log;
    QVERIFY(!Repo(*this).setTermSyn(1, 2));
    QCOMPARE(log.lines(),
             QStringList("C TermSyncRepository::setTermSyn() ERROR: Table 'tepdb.term' doesn't"
                         " exist QMYSQL: Unable to execute query"));
}

void TestTermSyncRepository::theRowsCarryTheTimeOfQueueing()
{
    fillTables();
    Repo repo(*this);
    repo.addTermSyncPerson(21, 'U', "people_term");
    repo.addTermSyncPerson(1, 21, 'U', "people_term");
    QCOMPARE(m_database.rows("SELECT DISTINCT created FROM term_sync"),
             TableRows({{"1700000000"}}));
}

void TestTermSyncRepository::errorTextsAreLoggedInTheLocalEncoding()
{
    m_database.refuse("INSERT", "term_sync", "žiadny front");
    QTextCodec *const former = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    LogCapture log;
    Repo(*this).addColorGroup(1, 21);
    QTextCodec::setCodecForLocale(former);
    QCOMPARE(log.lines(),
             QStringList("C TermSyncRepository::addColorGroup() ERROR: ?iadny front QMYSQL: Unable"
                         " to execute query"));
}

void TestTermSyncRepository::aClosedConnectionFailsWithoutAnError()
{
    Repo repo(*this);
    m_connection.close();
    LogCapture log;
    repo.addTermSyncPerson(21, 'U', "people_term");
    repo.addTermSyncInter(31, 'U', "inters_term");
    repo.addTermSyncPZT(21, 8, 1, 'I', "pzt");
    QVERIFY(!repo.setTermSyn(1, 2));
    QCOMPARE(log.lines().filter(QRegularExpression("^C")), QStringList());
}

QTEST_GUILESS_MAIN(TestTermSyncRepository)
#include "tst_termsyncrepository.moc"
