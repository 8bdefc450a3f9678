#include "db/groupsplanrepo.h"

#include "tests/db/repositorytest.h"
#include "tests/support/logcapture.h"

#include <QRegularExpression>
#include <QTest>

#include <ctime>

class TestGroupsPlanRepo : public RepositoryTest {
    Q_OBJECT

private Q_SLOTS:
    void recordsHaveALogText();
    void aNewRepositoryIsSilentAndUpdatesMonths();
    void itCastsToItsOwnName();

    void addInsertsTheRowAndUpdatesTheMonths();
    void withoutAutoUpdateAddTouchesThePlanOnly();
    void addWithoutAGroupOrAPersonRunsNoStatement_data();
    void addWithoutAGroupOrAPersonRunsNoStatement();
    void addAcceptsMonth0ButUpdatesNoMonths();
    void addOfAnIdenticalRowIsAFailureAndUpdatesNoMonths();
    void addOfAnotherGroupReplacesItAndUpdatesFromItsMonth();
    void addReportsAFailedStatement();
    void aFailedMonthUpdateDoesNotFailTheAdd();

    void delDeletesExactlyTheRowAndUpdatesTheMonths();
    void withoutAutoUpdateDelTouchesThePlanOnly();
    void delOfARowThatIsNotThereFails_data();
    void delOfARowThatIsNotThereFails();
    void delWithoutAGroupOrAPersonRunsNoStatement_data();
    void delWithoutAGroupOrAPersonRunsNoStatement();
    void delReportsAFailedStatement();
    void aFailedMonthUpdateDoesNotFailTheDel();

    void updateWritesTheGroupOfEachMonthWithAttendance();
    void updateReplacesTheGroupOfAMonth();
    void updateLeavesOutMonthsWithoutAGroup();
    void updateLeavesOutDaysThatTheServerDoesNotKnow_data();
    void updateLeavesOutDaysThatTheServerDoesNotKnow();
    void updateOfAPersonWithoutAttendanceFails();
    void updateThatChangesNothingFails();
    void updateWithoutAPersonOrAMonthRunsNoStatement_data();
    void updateWithoutAPersonOrAMonthRunsNoStatement();
    void updateReportsAFailedStatement();

    void currentGroupIsTheLatestThatHasBegun_data();
    void currentGroupIsTheLatestThatHasBegun();
    void currentGroupOfMonth0IsThatOfTheServersMonth();
    void currentGroupWithoutAPersonRunsNoStatement();
    void currentGroupFallsBackToThePersonWhenAsked();
    void currentGroupDoesNotFallBackWhenThePlanHasOne();
    void currentGroupIs0WhenThePersonHasNoneEither();
    void aFailedPlanLookupDoesNotFallBack();
    void aFailedFallbackIsReported();

    void callsAreLoggedFromLevel2On_data();
    void callsAreLoggedFromLevel2On();
    void errorTextsAreLoggedInUtf8();
    void aClosedConnectionFailsWithoutAnError();
    void aRepositoryWithoutAConnectionReportsThat();

    void monthOfATimestampIsLocal_data();
    void monthOfATimestampIsLocal();
    void monthOfADate_data();
    void monthOfADate();

private:
    void addPerson(unsigned int uid, const QString &gid = "NULL");
    void addAttendance(unsigned int uid, const QStringList &days);
    TableRows plan();
    TableRows months();
    void refusesWithoutAStatement(bool (GroupsPlanRepo::*operation)(const GroupsPlanRecord &));

    /// A repository on the connection of the test, its debug level `level`.
    struct Repo : GroupsPlanRepo {
        explicit Repo(const TestGroupsPlanRepo &test, quint8 level = 0)
            : GroupsPlanRepo(nullptr)
        {
            debugLevel = level;
            setDB(test.m_connection);
        }
    };
};

namespace {

const QString kUpdateOf17From202403 =
    "INSERT INTO groups_month  (gid, uid, month) SELECT getCurrentGid(p.uid,"
    " monthFromTimestamp(a.date), p.gid) gid, a.uid, monthFromTimestamp(a.date) month  FROM"
    " atten a LEFT JOIN people p USING(uid) WHERE a.uid=17 AND monthFromTimestamp(a.date) >="
    " 202403 GROUP BY monthFromTimestamp(a.date) HAVING gid IS NOT NULL ON DUPLICATE KEY UPDATE"
    " gid=VALUES(gid), uid=VALUES(uid), month=VALUES(month)";

} // namespace

void TestGroupsPlanRepo::addPerson(unsigned int uid, const QString &gid)
{
    m_database.run(
        QStringLiteral("INSERT INTO people (uid, pid, gid) VALUES (%1, %1, %2)").arg(uid).arg(gid));
}

void TestGroupsPlanRepo::addAttendance(unsigned int uid, const QStringList &days)
{
    for (const QString &day : days) {
        m_database.run(
            QStringLiteral("INSERT INTO atten (uid, `date`) VALUES (%1, UNIX_TIMESTAMP('%2'))")
                .arg(uid)
                .arg(day));
    }
}

TableRows TestGroupsPlanRepo::plan()
{
    return m_database.rows("SELECT gid, uid, since FROM groups_plan ORDER BY uid, since");
}

TableRows TestGroupsPlanRepo::months()
{
    return m_database.rows("SELECT gid, uid, month FROM groups_month ORDER BY uid, month");
}

void TestGroupsPlanRepo::recordsHaveALogText()
{
    QCOMPARE(GroupsPlanRecord({4, 17, 202403}).getString(), QString("G: 4, U: 17, S: 202403"));
    QCOMPARE(GroupsPlanRecord({4294967295u, 0, 4294967295u}).getString(),
             QString("G: 4294967295, U: 0, S: 4294967295"));
}

void TestGroupsPlanRepo::aNewRepositoryIsSilentAndUpdatesMonths()
{
    QObject owner;
    auto *repo = new GroupsPlanRepo(&owner);
    QCOMPARE(repo->parent(), &owner);
    QCOMPARE(repo->debugLevel, quint8(0));
    repo->setDB(m_connection);
    LogCapture log;
    QVERIFY(repo->add({4, 17, 202403}));
    QCOMPARE(m_database.statements().size(), 2);
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::itCastsToItsOwnName()
{
    GroupsPlanRepo repo(nullptr);
    QVERIFY(repo.inherits("GroupsPlanRepo"));
    QCOMPARE(repo.metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(repo.metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void TestGroupsPlanRepo::addInsertsTheRowAndUpdatesTheMonths()
{
    addPerson(17);
    addAttendance(17, {"2024-02-29", "2024-03-01", "2024-05-10"});
    LogCapture log;
    QVERIFY(Repo(*this).add({4, 17, 202403}));
    QCOMPARE(m_database.statements(),
             QStringList({"INSERT INTO groups_plan (gid, uid, since) VALUES(4, 17, 202403) ON"
                          " DUPLICATE KEY UPDATE gid=VALUES(gid), uid=VALUES(uid),"
                          " since=VALUES(since)",
                          kUpdateOf17From202403}));
    QCOMPARE(plan(), TableRows({{"4", "17", "202403"}}));
    QCOMPARE(months(), TableRows({{"4", "17", "202403"}, {"4", "17", "202405"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::withoutAutoUpdateAddTouchesThePlanOnly()
{
    addPerson(17);
    addAttendance(17, {"2024-03-01"});
    Repo repo(*this);
    repo.setAutoUpdateGroupsMonth(false);
    QVERIFY(repo.add({4, 17, 202403}));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(plan(), TableRows({{"4", "17", "202403"}}));
    QCOMPARE(months(), TableRows());
}

void TestGroupsPlanRepo::addWithoutAGroupOrAPersonRunsNoStatement_data()
{
    QTest::addColumn<unsigned int>("gid");
    QTest::addColumn<unsigned int>("uid");
    QTest::newRow("no group") << 0u << 17u;
    QTest::newRow("no person") << 4u << 0u;
    QTest::newRow("neither") << 0u << 0u;
}

void TestGroupsPlanRepo::refusesWithoutAStatement(
    bool (GroupsPlanRepo::*operation)(const GroupsPlanRecord &))
{
    QFETCH(unsigned int, gid);
    QFETCH(unsigned int, uid);
    Repo repo(*this);
    LogCapture log;
    QVERIFY(!(repo.*operation)({gid, uid, 202403}));
    QCOMPARE(m_database.statements(), QStringList());
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::addWithoutAGroupOrAPersonRunsNoStatement()
{
    refusesWithoutAStatement(&GroupsPlanRepo::add);
}

void TestGroupsPlanRepo::addAcceptsMonth0ButUpdatesNoMonths()
{
    QVERIFY(Repo(*this).add({4, 17, 0}));
    QCOMPARE(m_database.statements(),
             QStringList("INSERT INTO groups_plan (gid, uid, since) VALUES(4, 17, 0) ON DUPLICATE"
                         " KEY UPDATE gid=VALUES(gid), uid=VALUES(uid), since=VALUES(since)"));
    QCOMPARE(plan(), TableRows({{"4", "17", "0"}}));
}

void TestGroupsPlanRepo::addOfAnIdenticalRowIsAFailureAndUpdatesNoMonths()
{
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (4, 17, 202403)");
    addPerson(17);
    addAttendance(17, {"2024-03-01"});
    LogCapture log;
    QVERIFY(!Repo(*this).add({4, 17, 202403}));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(months(), TableRows());
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::addOfAnotherGroupReplacesItAndUpdatesFromItsMonth()
{
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (3, 17, 202403)");
    m_database.run("INSERT INTO groups_month (gid, uid, month) VALUES (3, 17, 202402),"
                   " (3, 17, 202403), (3, 17, 202404)");
    addPerson(17);
    addAttendance(17, {"2024-02-01", "2024-03-01", "2024-04-30"});
    QVERIFY(Repo(*this).add({4, 17, 202403}));
    QCOMPARE(m_database.statements().last(), kUpdateOf17From202403);
    QCOMPARE(plan(), TableRows({{"4", "17", "202403"}}));
    QCOMPARE(months(),
             TableRows({{"3", "17", "202402"}, {"4", "17", "202403"}, {"4", "17", "202404"}}));
}

void TestGroupsPlanRepo::addReportsAFailedStatement()
{
    m_database.hideTable("groups_plan");
    LogCapture log;
    QVERIFY(!Repo(*this).add({4, 17, 202403}));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::add - ERROR[1146]: Table 'tepdb.groups_plan' doesn't"
                         " exist QMYSQL: Unable to execute query"));
}

void TestGroupsPlanRepo::aFailedMonthUpdateDoesNotFailTheAdd()
{
    m_database.hideTable("groups_month");
    LogCapture log;
    QVERIFY(Repo(*this).add({4, 17, 202403}));
    QCOMPARE(plan(), TableRows({{"4", "17", "202403"}}));
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::updateGroupsMonth - ERROR[1146]: Table"
                         " 'tepdb.groups_month' doesn't exist QMYSQL: Unable to execute query"));
}

void TestGroupsPlanRepo::delDeletesExactlyTheRowAndUpdatesTheMonths()
{
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (3, 17, 202401),"
                   " (4, 17, 202403), (4, 18, 202403)");
    addPerson(17);
    addAttendance(17, {"2024-03-01"});
    m_database.run("INSERT INTO groups_month (gid, uid, month) VALUES (4, 17, 202403)");
    LogCapture log;
    QVERIFY(Repo(*this).del({4, 17, 202403}));
    QCOMPARE(m_database.statements(),
             QStringList({"DELETE FROM groups_plan WHERE gid = 4 AND uid = 17 AND since = 202403",
                          kUpdateOf17From202403}));
    QCOMPARE(plan(), TableRows({{"3", "17", "202401"}, {"4", "18", "202403"}}));
    QCOMPARE(months(), TableRows({{"3", "17", "202403"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::withoutAutoUpdateDelTouchesThePlanOnly()
{
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (4, 17, 202403)");
    Repo repo(*this);
    repo.setAutoUpdateGroupsMonth(false);
    QVERIFY(repo.del({4, 17, 202403}));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(plan(), TableRows());
}

void TestGroupsPlanRepo::delOfARowThatIsNotThereFails_data()
{
    QTest::addColumn<unsigned int>("gid");
    QTest::addColumn<unsigned int>("uid");
    QTest::addColumn<unsigned int>("since");
    QTest::newRow("another group") << 5u << 17u << 202403u;
    QTest::newRow("another person") << 4u << 18u << 202403u;
    QTest::newRow("another month") << 4u << 17u << 202404u;
    QTest::newRow("month 0") << 4u << 17u << 0u;
}

void TestGroupsPlanRepo::delOfARowThatIsNotThereFails()
{
    QFETCH(unsigned int, gid);
    QFETCH(unsigned int, uid);
    QFETCH(unsigned int, since);
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (4, 17, 202403)");
    LogCapture log;
    QVERIFY(!Repo(*this).del({gid, uid, since}));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(plan(), TableRows({{"4", "17", "202403"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::delWithoutAGroupOrAPersonRunsNoStatement_data()
{
    addWithoutAGroupOrAPersonRunsNoStatement_data();
}

void TestGroupsPlanRepo::delWithoutAGroupOrAPersonRunsNoStatement()
{
    refusesWithoutAStatement(&GroupsPlanRepo::del);
}

void TestGroupsPlanRepo::delReportsAFailedStatement()
{
    m_database.hideTable("groups_plan");
    LogCapture log;
    QVERIFY(!Repo(*this).del({4, 17, 202403}));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::del - ERROR[1146]: Table 'tepdb.groups_plan' doesn't"
                         " exist QMYSQL: Unable to execute query"));
}

void TestGroupsPlanRepo::aFailedMonthUpdateDoesNotFailTheDel()
{
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (4, 17, 202403)");
    m_database.hideTable("groups_month");
    LogCapture log;
    QVERIFY(Repo(*this).del({4, 17, 202403}));
    QCOMPARE(plan(), TableRows());
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::updateGroupsMonth - ERROR[1146]: Table"
                         " 'tepdb.groups_month' doesn't exist QMYSQL: Unable to execute query"));
}

void TestGroupsPlanRepo::updateWritesTheGroupOfEachMonthWithAttendance()
{
    addPerson(17, "2");
    addPerson(18, "2");
    addAttendance(17, {"2024-02-29", "2024-03-01", "2024-03-02", "2024-04-01", "2024-06-30"});
    addAttendance(18, {"2024-03-01"});
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (4, 17, 202404)");
    LogCapture log;
    QVERIFY(Repo(*this).updateGroupsMonth(17, 202403));
    QCOMPARE(m_database.statements(), QStringList(kUpdateOf17From202403));
    QCOMPARE(months(),
             TableRows({{"2", "17", "202403"}, {"4", "17", "202404"}, {"4", "17", "202406"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::updateReplacesTheGroupOfAMonth()
{
    addPerson(17, "2");
    addAttendance(17, {"2024-03-01"});
    m_database.run("INSERT INTO groups_month (gid, uid, month) VALUES (9, 17, 202403)");
    QVERIFY(Repo(*this).updateGroupsMonth(17, 202403));
    QCOMPARE(months(), TableRows({{"2", "17", "202403"}}));
}

void TestGroupsPlanRepo::updateLeavesOutMonthsWithoutAGroup()
{
    addPerson(17);
    addAttendance(17, {"2024-03-01", "2024-04-01"});
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (4, 17, 202404)");
    QVERIFY(Repo(*this).updateGroupsMonth(17, 202403));
    QCOMPARE(months(), TableRows({{"4", "17", "202404"}}));
}

void TestGroupsPlanRepo::updateLeavesOutDaysThatTheServerDoesNotKnow_data()
{
    QTest::addColumn<QString>("day");
    QTest::newRow("a day of the year 9999") << "253402210800";
    QTest::newRow("a day before 1970") << "-86400";
}

void TestGroupsPlanRepo::updateLeavesOutDaysThatTheServerDoesNotKnow()
{
    QFETCH(QString, day);
    addPerson(17, "2");
    addAttendance(17, {"2024-03-01", "2024-04-01"});
    m_database.run("INSERT INTO atten (uid, `date`) VALUES (17, " + day + ")");
    LogCapture log;
    QVERIFY(Repo(*this).updateGroupsMonth(17, 202403));
    QCOMPARE(months(), TableRows({{"2", "17", "202403"}, {"2", "17", "202404"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::updateOfAPersonWithoutAttendanceFails()
{
    addPerson(17, "2");
    addAttendance(17, {"2024-02-29"});
    LogCapture log;
    QVERIFY(!Repo(*this).updateGroupsMonth(17, 202403));
    QCOMPARE(months(), TableRows());
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::updateThatChangesNothingFails()
{
    addPerson(17, "2");
    addAttendance(17, {"2024-03-01"});
    m_database.run("INSERT INTO groups_month (gid, uid, month) VALUES (2, 17, 202403)");
    QVERIFY(!Repo(*this).updateGroupsMonth(17, 202403));
}

void TestGroupsPlanRepo::updateWithoutAPersonOrAMonthRunsNoStatement_data()
{
    QTest::addColumn<unsigned int>("uid");
    QTest::addColumn<unsigned int>("month");
    QTest::newRow("no person") << 0u << 202403u;
    QTest::newRow("no month") << 17u << 0u;
}

void TestGroupsPlanRepo::updateWithoutAPersonOrAMonthRunsNoStatement()
{
    QFETCH(unsigned int, uid);
    QFETCH(unsigned int, month);
    addPerson(17, "2");
    addAttendance(17, {"2024-03-01"});
    QVERIFY(!Repo(*this).updateGroupsMonth(uid, month));
    QCOMPARE(m_database.statements(), QStringList());
}

void TestGroupsPlanRepo::updateReportsAFailedStatement()
{
    m_database.hideTable("atten");
    LogCapture log;
    QVERIFY(!Repo(*this).updateGroupsMonth(17, 202403));
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::updateGroupsMonth - ERROR[1146]: Table 'tepdb.atten'"
                         " doesn't exist QMYSQL: Unable to execute query"));
}

void TestGroupsPlanRepo::currentGroupIsTheLatestThatHasBegun_data()
{
    QTest::addColumn<unsigned int>("month");
    QTest::addColumn<unsigned int>("gid");
    QTest::newRow("before the first") << 202312u << 0u;
    QTest::newRow("in the month of the first") << 202401u << 3u;
    QTest::newRow("between the two") << 202402u << 3u;
    QTest::newRow("in the month of the second") << 202403u << 4u;
    QTest::newRow("after both") << 209912u << 4u;
}

void TestGroupsPlanRepo::currentGroupIsTheLatestThatHasBegun()
{
    QFETCH(unsigned int, month);
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (4, 7, 202403),"
                   " (3, 7, 202401), (5, 8, 202401)");
    LogCapture log;
    QTEST(Repo(*this, 3).getCurrentGid(7, month, false), "gid");
    QCOMPARE(m_database.statements(),
             QStringList(QStringLiteral("SELECT gid FROM groups_plan WHERE uid = 7 AND since <= %1"
                                        " ORDER BY since DESC LIMIT 1")
                             .arg(month)));
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::currentGroupOfMonth0IsThatOfTheServersMonth()
{
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (3, 7, 200001),"
                   " (4, 7, 203105), (5, 7, 203106)");
    Repo repo(*this);
    runOnConnection("SET timestamp = UNIX_TIMESTAMP('2031-05-31')");
    QCOMPARE(repo.getCurrentGid(7, 0, false), 4u);
    QCOMPARE(m_database.statements(),
             QStringList("SELECT gid FROM groups_plan WHERE uid = 7 AND since <="
                         " DATE_FORMAT(NOW(), '%Y%m') ORDER BY since DESC LIMIT 1"));
    runOnConnection("SET timestamp = UNIX_TIMESTAMP('2031-06-01')");
    QCOMPARE(repo.getCurrentGid(7, 0, false), 5u);
}

void TestGroupsPlanRepo::currentGroupWithoutAPersonRunsNoStatement()
{
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (3, 0, 202401)");
    QCOMPARE(Repo(*this).getCurrentGid(0, 202403, true), 0u);
    QCOMPARE(m_database.statements(), QStringList());
}

void TestGroupsPlanRepo::currentGroupFallsBackToThePersonWhenAsked()
{
    addPerson(7, "2");
    Repo repo(*this);
    QCOMPARE(repo.getCurrentGid(7, 202403, false), 0u);
    QCOMPARE(m_database.statements().size(), 1);
    m_database.clearStatements();
    QCOMPARE(repo.getCurrentGid(7, 202403, true), 2u);
    QCOMPARE(m_database.statements(),
             QStringList({"SELECT gid FROM groups_plan WHERE uid = 7 AND since <= 202403 ORDER BY"
                          " since DESC LIMIT 1",
                          "SELECT gid FROM people WHERE uid = 7"}));
}

void TestGroupsPlanRepo::currentGroupDoesNotFallBackWhenThePlanHasOne()
{
    addPerson(7, "2");
    m_database.run("INSERT INTO groups_plan (gid, uid, since) VALUES (3, 7, 202401)");
    QCOMPARE(Repo(*this).getCurrentGid(7, 202403, true), 3u);
    QCOMPARE(m_database.statements().size(), 1);
}

void TestGroupsPlanRepo::currentGroupIs0WhenThePersonHasNoneEither()
{
    addPerson(7);
    LogCapture log;
    QCOMPARE(Repo(*this).getCurrentGid(7, 202403, true), 0u);
    QCOMPARE(Repo(*this).getCurrentGid(8, 202403, true), 0u);
    QCOMPARE(log.lines(), QStringList());
}

void TestGroupsPlanRepo::aFailedPlanLookupDoesNotFallBack()
{
    addPerson(7, "2");
    m_database.hideTable("groups_plan");
    LogCapture log;
    QCOMPARE(Repo(*this).getCurrentGid(7, 202403, true), 0u);
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::getCurrentGid [groups_plan] - ERROR[1146]: Table"
                         " 'tepdb.groups_plan' doesn't exist QMYSQL: Unable to execute query"));
}

void TestGroupsPlanRepo::aFailedFallbackIsReported()
{
    m_database.hideTable("people");
    LogCapture log;
    QCOMPARE(Repo(*this).getCurrentGid(7, 202403, true), 0u);
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::getCurrentGid [people] - ERROR[1146]: Table"
                         " 'tepdb.people' doesn't exist QMYSQL: Unable to execute query"));
}

void TestGroupsPlanRepo::callsAreLoggedFromLevel2On_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QStringList>("lines");
    const QStringList lines = {"D GroupsPlanRepo::add(G: 4, U: 17, S: 202403)",
                               "D GroupsPlanRepo::updateGroupsMonth(17, 202403)",
                               "D GroupsPlanRepo::del(G: 4, U: 17, S: 202403)",
                               "D GroupsPlanRepo::updateGroupsMonth(17, 202403)",
                               "D GroupsPlanRepo::add(G: 0, U: 17, S: 202403)",
                               "D GroupsPlanRepo::updateGroupsMonth(0, 0)"};
    QTest::newRow("0") << 0 << QStringList();
    QTest::newRow("1") << 1 << QStringList();
    QTest::newRow("2") << 2 << lines;
    QTest::newRow("255") << 255 << lines;
}

void TestGroupsPlanRepo::callsAreLoggedFromLevel2On()
{
    QFETCH(int, level);
    Repo repo(*this, quint8(level));
    LogCapture log;
    repo.add({4, 17, 202403});
    repo.getCurrentGid(17, 0, true);
    repo.del({4, 17, 202403});
    repo.add({0, 17, 202403});
    repo.updateGroupsMonth(0, 0);
    QTEST(log.lines(), "lines");
}

void TestGroupsPlanRepo::errorTextsAreLoggedInUtf8()
{
    m_database.refuse("INSERT", "groups_plan", "žiadny plán");
    LogCapture log;
    QVERIFY(!Repo(*this).add({4, 17, 202403}));
    QCOMPARE(log.lines(),
             QStringList("C GroupsPlanRepo::add - ERROR[1644]: žiadny plán QMYSQL: Unable to"
                         " execute query"));
}

void TestGroupsPlanRepo::aClosedConnectionFailsWithoutAnError()
{
    Repo repo(*this);
    m_connection.close();
    LogCapture log;
    QVERIFY(!repo.add({4, 17, 202403}));
    QVERIFY(!repo.del({4, 17, 202403}));
    QVERIFY(!repo.updateGroupsMonth(17, 202403));
    QCOMPARE(repo.getCurrentGid(17, 202403, true), 0u);
    QCOMPARE(log.lines().filter(QRegularExpression("^C")), QStringList());
}

void TestGroupsPlanRepo::aRepositoryWithoutAConnectionReportsThat()
{
    GroupsPlanRepo repo(nullptr);
    LogCapture log;
    QVERIFY(!repo.add({4, 17, 202403}));
    QCOMPARE(log.lines().last(),
             QString("C GroupsPlanRepo::add - ERROR[-1]: Driver not loaded Driver not loaded"));
}

void TestGroupsPlanRepo::monthOfATimestampIsLocal_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<unsigned int>("timestamp");
    QTest::addColumn<unsigned int>("month");
    QTest::newRow("the epoch, east of Greenwich") << QByteArray("XXX-1") << 0u << 197001u;
    QTest::newRow("the epoch, west of Greenwich") << QByteArray("XXX5") << 0u << 196912u;
    QTest::newRow("end of March in UTC") << QByteArray("UTC") << 1711929599u << 202403u;
    QTest::newRow("the same east") << QByteArray("XXX-1") << 1711929599u << 202404u;
    QTest::newRow("beyond 2038") << QByteArray("UTC") << 4294967295u << 210602u;
}

void TestGroupsPlanRepo::monthOfATimestampIsLocal()
{
    QFETCH(QByteArray, zone);
    QFETCH(unsigned int, timestamp);
    const bool hadZone = qEnvironmentVariableIsSet("TZ");
    const QByteArray formerZone = qgetenv("TZ");
    qputenv("TZ", zone);
    tzset();
    const unsigned int month = GroupsPlanRepo::monthFromTimestamp(timestamp);
    hadZone ? qputenv("TZ", formerZone) : qunsetenv("TZ");
    tzset();
    QTEST(month, "month");
}

void TestGroupsPlanRepo::monthOfADate_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<unsigned int>("month");
    QTest::newRow("null") << QDate() << 0u;
    QTest::newRow("invalid") << QDate(2024, 2, 30) << 0u;
    QTest::newRow("first day") << QDate(2024, 3, 1) << 202403u;
    QTest::newRow("last day") << QDate(2024, 12, 31) << 202412u;
    QTest::newRow("short year") << QDate(33, 4, 3) << 3304u;
}

void TestGroupsPlanRepo::monthOfADate()
{
    QFETCH(QDate, date);
    QTEST(GroupsPlanRepo::monthFromDate(date), "month");
}

QTEST_GUILESS_MAIN(TestGroupsPlanRepo)
#include "tst_groupsplanrepo.moc"
