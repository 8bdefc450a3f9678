#include "db/branchesrepository.h"
#include "db/groupsplanrepo.h"
#include "tests/worker/support/workertest.h"

#include <QMetaEnum>
#include <QMetaMethod>
#include <QTest>
#include <QTimer>

namespace {

/// Each test needs a person of its own: the process remembers the uid of a pid, whatever the
/// database.
ExportRow person(int personalNumber, int calendar)
{
    return ExportRow()
        .with(&ExportRow::osobniCislo, personalNumber)
        .with(&ExportRow::kalendar, calendar);
}

} // namespace

class TestWorkerSetup : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theSlotsAreFourInTheirOrder();
    void thereAreNoSignals();
    void withoutSettingsTheTickIsAMinute();
    void withoutSettingsEverythingHasItsDefault();
    void thePeriodIsAtLeastOneSecondAndAtMostWhatATimerTakes_data();
    void thePeriodIsAtLeastOneSecondAndAtMostWhatATimerTakes();
    void theMessageTableIsLoggedByItsSize();
    void theConnectionIsNamedAfterTheDatabase_data();
    void theConnectionIsNamedAfterTheDatabase();
    void theConnectionIsClonedAndNotYetOpened();
    void anExistingConnectionIsTakenUpAndOpened();
    void aNewDatabaseReachesTheSettingsAndTheBranches();
    void aNewDatabaseReachesTheCalendarGroupsWithTheNextStart();
    void theConnectionOutlivesTheWorker();
    void theWorkerLeavesNoHandleOfItsConnectionBehind();
    void startLogsAndStopLogsTheTextOfInit_data();
    void startLogsAndStopLogsTheTextOfInit();
    void stopBeforeStartOnlyLogs();
    void everyStartSetsUpOneMoreTimer();
    void initCreatesEverythingAndSucceeds();
    void theRepositoriesLogAtTheLevelOfTheWorker();
    void anAssignmentToAGroupUpdatesTheGroupsOfTheMonths();
    void onlyAdditionsToABranchPropagate();
    void processErrorsHaveNames_data();
    void processErrorsHaveNames();

private:
    QVector<int> periods() const;
    QVector<bool> activity() const;
    void moveToOtherDatabase();
    void leaveOtherDatabase();
};

void TestWorkerSetup::init()
{
    WorkerTest::init();
    dropWorker();
}

/// Of the worker's timers, the oldest first.
QVector<int> TestWorkerSetup::periods() const
{
    QVector<int> periods;
    for (const QTimer *timer : m_worker->findChildren<QTimer *>())
        periods += timer->interval();
    return periods;
}

QVector<bool> TestWorkerSetup::activity() const
{
    QVector<bool> activity;
    for (const QTimer *timer : m_worker->findChildren<QTimer *>())
        activity += timer->isActive();
    return activity;
}

void TestWorkerSetup::theSlotsAreFourInTheirOrder()
{
    const QMetaObject &meta = MHRWorker::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Slot)
            slotNames += meta.method(i).methodSignature();
    }
    QCOMPARE(slotNames,
             QStringList({"start()", "stop()", "checkSync()",
                          "isqlProcessErrorOccurred(QProcess::ProcessError)"}));
}

void TestWorkerSetup::thereAreNoSignals()
{
    const QMetaObject &meta = MHRWorker::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        QVERIFY(meta.method(i).methodType() != QMetaMethod::Signal);
}

void TestWorkerSetup::withoutSettingsTheTickIsAMinute()
{
    startWorker();
    QCOMPARE(periods(), QVector<int>{60000});
}

void TestWorkerSetup::withoutSettingsEverythingHasItsDefault()
{
    m_worker = std::make_unique<MHRWorker>();
    m_worker->setTepDb(m_db.pluginConnection());
    m_worker->setImportFile(m_export->path());
    m_worker->setSyncCommand("/nowhere/at/all");
    m_worker->start();
    m_export->write({person(4321, 0).with(&ExportRow::evidencniStav, 7)});
    // No debug lines, no command, the export stays, no state of that code.
    QCOMPARE(tick(), QStringList());
    QVERIFY(m_export->exists());
    QCOMPARE(m_db.rows("SELECT did, rsText FROM people WHERE pid = 43211"), TableRows({{"1", ""}}));

    // Sixty ticks to the next synchronisation.
    m_export->write({person(4321, 0).with(&ExportRow::jmeno, "Eva")});
    const QString firstName = "SELECT name FROM people WHERE pid = 43211";
    WorkerTest::tick(58);
    QCOMPARE(m_db.value(firstName).toString(), QString("Jana"));
    tick();
    QCOMPARE(m_db.value(firstName).toString(), QString("Eva"));
}

void TestWorkerSetup::thePeriodIsAtLeastOneSecondAndAtMostWhatATimerTakes_data()
{
    QTest::addColumn<uint>("ms");
    QTest::addColumn<int>("expected");
    QTest::newRow("0") << 0U << 1000;
    QTest::newRow("999") << 999U << 1000;
    QTest::newRow("1000") << 1000U << 1000;
    QTest::newRow("1001") << 1001U << 1001;
    QTest::newRow("2147483647") << 2147483647U << 2147483647;
    QTest::newRow("2147483648") << 2147483648U << 2147483647;
    QTest::newRow("4294967295") << 4294967295U << 2147483647;
}

void TestWorkerSetup::thePeriodIsAtLeastOneSecondAndAtMostWhatATimerTakes()
{
    QFETCH(uint, ms);
    QFETCH(int, expected);
    MHRWorker &worker = makeWorker();
    worker.setInterval(ms);
    worker.start();
    QCOMPARE(periods(), QVector<int>{expected});

    worker.setInterval(5000);
    QCOMPARE(periods(), QVector<int>{5000});
    worker.setInterval(ms);
    QCOMPARE(periods(), QVector<int>{expected});
    QCOMPARE(activity(), QVector<bool>{true});
}

void TestWorkerSetup::theMessageTableIsLoggedByItsSize()
{
    makeWorker(0).setMes({{1, "a"}});
    QCOMPARE(m_log->lines(), QStringList());
    makeWorker(1);
    m_log->clear();
    m_worker->setMes({});
    m_worker->setMes({{1, "a"}, {7, "b"}});
    QCOMPARE(m_log->lines(),
             QStringList({"D MHRWorker::setMes() count: 0)", "D MHRWorker::setMes() count: 2)"}));
}

void TestWorkerSetup::theConnectionIsNamedAfterTheDatabase_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<QStringList>("expected");
    const QStringList logged("D MHRWorker::setTepDb(YAV.tepdb.MirovaHR)");
    QTest::newRow("level 0") << 0 << QStringList();
    QTest::newRow("level 1") << 1 << logged;
    QTest::newRow("level 2") << 2 << logged;
}

void TestWorkerSetup::theConnectionIsNamedAfterTheDatabase()
{
    QFETCH(int, debugLevel);
    QFETCH(QStringList, expected);
    makeWorker(debugLevel);
    QCOMPARE(m_log->lines(), expected);
    QVERIFY(QSqlDatabase::contains("YAV.tepdb.MirovaHR"));
}

void TestWorkerSetup::theConnectionIsClonedAndNotYetOpened()
{
    MHRWorker worker;
    const QSqlDatabase hosts = m_db.openPluginConnection();
    worker.setTepDb(hosts);
    const QSqlDatabase own = QSqlDatabase::database("YAV.tepdb.MirovaHR", false);
    QVERIFY(own.isValid());
    QVERIFY(!own.isOpen());
    QCOMPARE(own.databaseName(), QString("tepdb"));
    QCOMPARE(own.userName(), hosts.userName());
    QCOMPARE(own.connectOptions(), hosts.connectOptions());
    QVERIFY(hosts.isOpen());
}

void TestWorkerSetup::anExistingConnectionIsTakenUpAndOpened()
{
    QSqlDatabase existing = m_db.pluginConnection("YAV.tepdb.MirovaHR");
    m_worker = std::make_unique<MHRWorker>();
    m_worker->setDebugLevel(2);
    m_worker->setTepDb(m_db.pluginConnection());
    QVERIFY(existing.isOpen());
    m_worker->start();
    m_db.clearStatements();
    tick();
    // On the connection as it was, which is then closed.
    for (const ServerEvent &event : m_db.events())
        QVERIFY(event.command != "Connect");
    QVERIFY(m_log->contains("D MHRWorker: BEGIN synchronization #1 (force: NO)"));
    QVERIFY(!existing.isOpen());
    existing = QSqlDatabase();
}

/// Gives the running worker another database with the same tables, in which branch 120 is
/// number 77.
void TestWorkerSetup::moveToOtherDatabase()
{
    m_db.run("DROP DATABASE IF EXISTS other");
    m_db.run("CREATE DATABASE other");
    m_db.run("GRANT ALL ON other.* TO '" + m_db.server().userName() + "'@'localhost'");
    for (const QStringList &table : m_db.rows("SHOW TABLES"))
        m_db.run(QString("CREATE TABLE other.`%1` LIKE tepdb.`%1`").arg(table.first()));
    m_db.run("INSERT INTO other.vars (name, value) VALUES ('YAV.MHRWorker.forceSync', '1')");
    m_db.run("INSERT INTO other.branches (bid, number, mgid) VALUES (77, 120, 5)");
    m_db.run("INSERT INTO other.mastergroups (mgid) VALUES (5)");
    m_db.run("INSERT INTO other.`groups` (gid, parent, calendarID) VALUES (88, 5, 3)");

    QSqlDatabase other = m_db.pluginConnection();
    other.setDatabaseName("other");
    m_worker->setTepDb(other);
}

void TestWorkerSetup::leaveOtherDatabase()
{
    m_worker.reset();
    QSqlDatabase::removeDatabase("YAV.other.MirovaHR");
    m_db.run("DROP DATABASE other");
}

void TestWorkerSetup::aNewDatabaseReachesTheSettingsAndTheBranches()
{
    startWorker(1);
    tick();
    m_log->clear();
    moveToOtherDatabase();
    QCOMPARE(m_log->lines(), QStringList("D MHRWorker::setTepDb(YAV.other.MirovaHR)"));

    m_export->write({person(4322, 0)});
    QVERIFY(tick().contains("D MHRWorker: BEGIN synchronization #2 (force: YES)"));
    QCOMPARE(m_db.value("SELECT value FROM other.vars WHERE name = 'YAV.MHRWorker.forceSync'"),
             QVariant("0"));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM other.brape WHERE bid = 77").toInt(), 1);
    leaveOtherDatabase();
}

void TestWorkerSetup::aNewDatabaseReachesTheCalendarGroupsWithTheNextStart()
{
    startWorker(1);
    moveToOtherDatabase();
    m_export->write({person(4323, 3)});
    QCOMPARE(tick().filter("into [groups_plan]!").size(), 1);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM other.groups_plan").toInt(), 0);

    m_worker->start();
    m_db.run("UPDATE other.vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
    m_export->write({person(4323, 3)});
    tick();
    QCOMPARE(m_db.value("SELECT gid FROM other.groups_plan").toInt(), 88);
    leaveOtherDatabase();
}

void TestWorkerSetup::theConnectionOutlivesTheWorker()
{
    startWorker();
    tick();
    m_worker.reset();
    QVERIFY(QSqlDatabase::contains("YAV.tepdb.MirovaHR"));
}

void TestWorkerSetup::theWorkerLeavesNoHandleOfItsConnectionBehind()
{
    startWorker();
    tick();
    m_worker.reset();
    m_log->clear();
    // Qt warns when the connection is in use.
    QSqlDatabase::removeDatabase("YAV.tepdb.MirovaHR");
    QCOMPARE(m_log->lines(), QStringList());
}

void TestWorkerSetup::startLogsAndStopLogsTheTextOfInit_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<QStringList>("started");
    QTest::addColumn<QStringList>("stopped");
    const QStringList started = {"D MHRWorker::start()", "D MHRWorker::init()"};
    const QStringList stopped = {"D MHRWorker::init()"};
    QTest::newRow("level 0") << 0 << QStringList() << QStringList();
    QTest::newRow("level 1") << 1 << started << stopped;
    QTest::newRow("level 2") << 2 << started << stopped;
}

void TestWorkerSetup::startLogsAndStopLogsTheTextOfInit()
{
    QFETCH(int, debugLevel);
    QFETCH(QStringList, started);
    QFETCH(QStringList, stopped);
    makeWorker(debugLevel);
    m_log->clear();
    m_worker->start();
    QCOMPARE(m_log->lines(), started);
    QCOMPARE(activity(), QVector<bool>{true});
    m_log->clear();
    m_worker->stop();
    QCOMPARE(m_log->lines(), stopped);
    QCOMPARE(activity(), QVector<bool>{false});
}

void TestWorkerSetup::stopBeforeStartOnlyLogs()
{
    makeWorker();
    m_log->clear();
    m_worker->stop();
    QCOMPARE(m_log->lines(), QStringList("D MHRWorker::init()"));
    QCOMPARE(periods(), QVector<int>());
}

void TestWorkerSetup::everyStartSetsUpOneMoreTimer()
{
    startWorker();
    m_worker->start();
    QCOMPARE(activity(), QVector<bool>({true, true}));
    m_worker->stop();
    QCOMPARE(activity(), QVector<bool>({true, false}));
    m_worker->stop();
    QCOMPARE(activity(), QVector<bool>({true, false}));
    m_worker->start();
    QCOMPARE(activity(), QVector<bool>({true, false, true}));
    QCOMPARE(m_log->lines(),
             QStringList({"D MHRWorker::start()", "D MHRWorker::init()", "D MHRWorker::init()",
                          "D MHRWorker::init()", "D MHRWorker::start()", "D MHRWorker::init()"}));
    // The settings of the newest start serve the tick.
    force();
    tick();
    QCOMPARE(forceFlag(), QString("0"));
}

void TestWorkerSetup::initCreatesEverythingAndSucceeds()
{
    MHRWorker &worker = makeWorker();
    m_log->clear();
    QVERIFY(worker.init());
    QCOMPARE(m_log->lines(), QStringList("D MHRWorker::init()"));
    QCOMPARE(activity(), QVector<bool>{false});
    QStringList children;
    for (const QObject *child : worker.children())
        children += child->metaObject()->className();
    QCOMPARE(children, QStringList({"QTimer", "BranchesRepository", "GroupsPlanRepo"}));
}

void TestWorkerSetup::theRepositoriesLogAtTheLevelOfTheWorker()
{
    startWorker(7);
    QCOMPARE(int(m_worker->findChild<BranchesRepository *>()->debugLevel), 7);
    QCOMPARE(int(m_worker->findChild<GroupsPlanRepo *>()->debugLevel), 7);
}

void TestWorkerSetup::anAssignmentToAGroupUpdatesTheGroupsOfTheMonths()
{
    startWorker(2);
    m_export->write({ExportRow().with(&ExportRow::kalendarPlatnostOd, QDate(2024, 3, 1))});
    QVERIFY(tick().contains("D GroupsPlanRepo::updateGroupsMonth(4, 202403)"));
}

void TestWorkerSetup::onlyAdditionsToABranchPropagate()
{
    startWorker();
    auto *const branches = m_worker->findChild<BranchesRepository *>();
    QVERIFY(m_worker->dbCheckOpen());
    m_log->clear();
    Q_EMIT branches->sigDeletedPeopleFromBranch(1, "6");
    QCOMPARE(m_log->lines(), QStringList());
    QCOMPARE(m_db.statements(), QStringList());
    Q_EMIT branches->sigAddedPeopleToBranch(1, "6");
    QVERIFY(m_log->contains("I BranchesRepository::slotAddedPeopleToBranch(1, '6')"));
    m_worker->dbClose();
}

void TestWorkerSetup::processErrorsHaveNames_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("expected");
    QTest::newRow("0") << 0 << "C MHRWorker: isql process Failed to start";
    QTest::newRow("1") << 1 << "C MHRWorker: isql process Crashed";
    QTest::newRow("2") << 2 << "C MHRWorker: isql process Timedout";
    QTest::newRow("3") << 3 << "C MHRWorker: isql process Read Error";
    QTest::newRow("4") << 4 << "C MHRWorker: isql process Write Error";
    QTest::newRow("5") << 5 << "C MHRWorker: isql process Unknown Error";
}

void TestWorkerSetup::processErrorsHaveNames()
{
    QFETCH(int, error);
    QFETCH(QString, expected);
    MHRWorker worker;
    worker.isqlProcessErrorOccurred(static_cast<QProcess::ProcessError>(error));
    QCOMPARE(m_log->lines(), QStringList(expected));
}

QTEST_GUILESS_MAIN(TestWorkerSetup)
#include "tst_workersetup.moc"
