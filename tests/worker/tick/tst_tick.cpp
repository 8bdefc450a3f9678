#include "db/branchesrepository.h"
#include "tests/worker/support/loghook.h"
#include "tests/worker/support/workertest.h"

#include <QTest>

#include <algorithm>

namespace {

const QString kReadForce = "SELECT value FROM vars WHERE name='YAV.MHRWorker.forceSync' LIMIT 1";
const QStringList kResetForce = {
    "PREPARE: INSERT INTO vars (name, value) VALUES(?, ?)"
    " ON DUPLICATE KEY UPDATE value=VALUES(value)",
    "EXECUTE: INSERT INTO vars (name, value) VALUES('YAV.MHRWorker.forceSync', 0)"
    " ON DUPLICATE KEY UPDATE value=VALUES(value)",
};

} // namespace

class TestTick : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void theFirstTickSynchronises_data();
    void theFirstTickSynchronises();
    void anIdleTickLogsItsNumberOnlyWhenVerbose_data();
    void anIdleTickLogsItsNumberOnlyWhenVerbose();
    void everyNthTickSynchronises_data();
    void everyNthTickSynchronises();
    void theStepsOfASynchronisationComeInTheirOrder();
    void anIdleTickSendsOneSelectOnOneConnection();
    void aSynchronisationWithoutRecordsSendsOneSelect();
    void theForceFlagIsReadAsATruthValue_data();
    void theForceFlagIsReadAsATruthValue();
    void aForcedTickWithoutRecordsLoadsNoPeopleAndStillResetsTheFlag();
    void aForcedFirstTickIsLoggedAsForced();
    void onlyAForcedTickWritesTheFlag();
    void theFlagIsResetAfterTheEndOfTheSynchronisation();
    void aFlagThatCannotBeResetForcesTheNextTickToo();
    void aTickDuringASynchronisationIsDropped();
    void failingToLoadPeopleEndsTheSynchronisation();
    void recordsOfAFailedSynchronisationAreDiscarded();
    void waitingRecordsStayUntilACycleHasRecords();
    void countersGoOnAfterStopAndStart();
    void theConnectionIsClosedBetweenTicks();

private:
    QStringList loggedTicks(const QStringList &lines) const;
    QStringList connectsAndQuits();
};

/// The numbers of the ticks that synchronised, from a verbose log.
QStringList TestTick::loggedTicks(const QStringList &lines) const
{
    const QString tickLine = "D MHRWorker::checkSync(): #";
    QStringList ticks;
    QString current;
    for (const QString &line : lines) {
        if (line.startsWith(tickLine))
            current = line.mid(tickLine.size());
        else if (line.startsWith("D MHRWorker: BEGIN "))
            ticks += current;
    }
    return ticks;
}

/// What happened to connections that were opened since the last clearStatements(): "Connect" and
/// "Quit". The server logs a "Quit" a little later than the client has closed the connection.
QStringList TestTick::connectsAndQuits()
{
    const QVector<ServerEvent> events = m_db.events();
    QSet<quint64> opened;
    QStringList commands;
    for (const ServerEvent &event : events) {
        if (event.command == "Connect")
            opened += event.connection;
        if (event.command == "Connect"
            || (event.command == "Quit" && opened.contains(event.connection)))
            commands += event.command;
    }
    return commands;
}

void TestTick::theFirstTickSynchronises_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<QStringList>("expected");

    const QString begin = "D MHRWorker: BEGIN synchronization #1 (force: NO)";
    const QString end = "D MHRWorker: END synchronization #1 (waiting records: 0)";
    QTest::newRow("level 0") << 0 << QStringList();
    QTest::newRow("level 1") << 1 << QStringList({begin, end});
    QTest::newRow("level 2") << 2
                             << QStringList({"D MHRWorker::checkSync(): #1",
                                             "D MHRWorker::dbCheckOpen()", begin,
                                             "D MHRWorker::loadAndParseData()",
                                             "W MHRWorker::loadAndParseData() - file '%1' NOT "
                                             "found!",
                                             end, "D MHRWorker::dbCheckOpen()"});
}

void TestTick::theFirstTickSynchronises()
{
    QFETCH(int, debugLevel);
    QFETCH(QStringList, expected);
    startWorker(debugLevel);
    QCOMPARE(tick(), expected.replaceInStrings("%1", m_export->path()));
}

void TestTick::anIdleTickLogsItsNumberOnlyWhenVerbose_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<QStringList>("expected");
    const QStringList verbose = {"D MHRWorker::checkSync(): #2", "D MHRWorker::dbCheckOpen()",
                                 "D MHRWorker::dbCheckOpen()"};
    QTest::newRow("level 0") << 0 << QStringList();
    QTest::newRow("level 1") << 1 << QStringList();
    QTest::newRow("level 2") << 2 << verbose;
    QTest::newRow("level 3") << 3 << verbose;
}

void TestTick::anIdleTickLogsItsNumberOnlyWhenVerbose()
{
    QFETCH(int, debugLevel);
    QFETCH(QStringList, expected);
    startWorker(debugLevel);
    tick();
    QCOMPARE(tick(), expected);
}

void TestTick::everyNthTickSynchronises_data()
{
    QTest::addColumn<uint>("syncInterval");
    QTest::addColumn<int>("ticks");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("60") << 60U << 121 << QStringList({"1", "60", "120"});
    QTest::newRow("7") << 7U << 15 << QStringList({"1", "7", "14"});
    QTest::newRow("2") << 2U << 5 << QStringList({"1", "2", "4"});
    QTest::newRow("1 is every tick") << 1U << 4 << QStringList({"1", "2", "3", "4"});
    QTest::newRow("0 counts as 1") << 0U << 4 << QStringList({"1", "2", "3", "4"});
    QTest::newRow("4294967295") << 4294967295U << 4 << QStringList({"1"});
}

void TestTick::everyNthTickSynchronises()
{
    QFETCH(uint, syncInterval);
    QFETCH(int, ticks);
    QFETCH(QStringList, expected);
    startWorker().setSyncInterval(syncInterval);
    tick(ticks);
    QCOMPARE(loggedTicks(m_log->lines()), expected);
}

void TestTick::theStepsOfASynchronisationComeInTheirOrder()
{
    MHRWorker &worker = startWorker();
    worker.setSyncCommand("/bin/true");
    worker.setSyncCommandRunCondition(2);
    force();
    // The row equals the line: nothing is to be written.
    m_export->write({ExportRow().with(&ExportRow::nadrizenyOsobniCislo, 0)});
    QStringList lines = tick();
    const auto ofLaterSteps = [](const QString &line) {
        static const QStringList steps = {"checkSync",    ": BEGIN",  "runCommand", "loadAndParse",
                                          "dbLoadPeople", "doSync()", ": END",      "dbCheckOpen"};
        return std::none_of(steps.begin(), steps.end(),
                            [&line](const QString &step) { return line.contains(step); });
    };
    lines.erase(std::remove_if(lines.begin(), lines.end(), ofLaterSteps), lines.end());
    QCOMPARE(
        lines,
        QStringList({"D MHRWorker::checkSync(): #1", "D MHRWorker::dbCheckOpen()",
                     "D MHRWorker: BEGIN synchronization #1 (force: YES)",
                     "D MHRWorker::runCommand(): '/bin/true'", "D MHRWorker::loadAndParseData()",
                     "D MHRWorker::dbLoadPeople()", "D MHRWorker::doSync() - stack count: 1",
                     "D MHRWorker: END synchronization #1 (waiting records: 0)",
                     "D MHRWorker::dbCheckOpen()"}));
    const QStringList statements = m_db.statements();
    QCOMPARE(statements.first(), kReadForce);
    QVERIFY(statements.at(1).startsWith("SELECT p.pid, p.pamId"));
    QVERIFY(statements.at(2).startsWith("SELECT bid, number FROM branches"));
    QCOMPARE(statements.mid(statements.size() - 2), kResetForce);
}

void TestTick::anIdleTickSendsOneSelectOnOneConnection()
{
    startWorker(0);
    tick(1);
    m_db.clearStatements();
    tick(1);
    QTRY_COMPARE_WITH_TIMEOUT(connectsAndQuits(), QStringList({"Connect", "Quit"}), kPatienceMs);
    QCOMPARE(m_db.statements(), QStringList(kReadForce));
}

void TestTick::aSynchronisationWithoutRecordsSendsOneSelect()
{
    startWorker();
    m_export->write(QStringList{"no record"});
    tick();
    QVERIFY(!m_export->exists());
    QCOMPARE(m_db.statements(), QStringList(kReadForce));
}

void TestTick::theForceFlagIsReadAsATruthValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("forced");
    for (const char *value : {"1", "2", "true", "yes", "no", "off", " ", "00"})
        QTest::addRow("'%s'", value) << QString(value) << true;
    for (const char *value : {"0", "false", "FALSE", ""})
        QTest::addRow("'%s'", value) << QString(value) << false;
}

void TestTick::theForceFlagIsReadAsATruthValue()
{
    QFETCH(QString, value);
    QFETCH(bool, forced);
    startWorker(1);
    tick(1);
    force(value);
    m_db.clearStatements();
    const QStringList lines = tick();
    if (!forced) {
        QCOMPARE(lines, QStringList());
        QCOMPARE(forceFlag(), value);
        QCOMPARE(m_db.statements(), QStringList(kReadForce));
        return;
    }
    QCOMPARE(lines,
             QStringList({"D MHRWorker: BEGIN synchronization #2 (force: YES)",
                          "D MHRWorker: END synchronization #2 (waiting records: 0)"}));
    QCOMPARE(forceFlag(), QString("0"));
    QCOMPARE(tick(), QStringList());
}

void TestTick::aForcedTickWithoutRecordsLoadsNoPeopleAndStillResetsTheFlag()
{
    startWorker();
    tick(1);
    force();
    m_db.clearStatements();
    tick();
    QCOMPARE(m_db.statements(), QStringList(kReadForce) + kResetForce);
    QCOMPARE(forceFlag(), QString("0"));
}

void TestTick::aForcedFirstTickIsLoggedAsForced()
{
    startWorker(1);
    force();
    QCOMPARE(tick(),
             QStringList({"D MHRWorker: BEGIN synchronization #1 (force: YES)",
                          "D MHRWorker: END synchronization #1 (waiting records: 0)"}));
    QCOMPARE(forceFlag(), QString("0"));
}

void TestTick::onlyAForcedTickWritesTheFlag()
{
    startWorker().setSyncInterval(1);
    m_db.run("DELETE FROM vars WHERE name = 'YAV.MHRWorker.forceSync'");
    tick(3);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM vars WHERE name = 'YAV.MHRWorker.forceSync'").toInt(),
             0);
    QCOMPARE(m_db.statements(), QStringList({kReadForce, kReadForce, kReadForce}));
}

void TestTick::theFlagIsResetAfterTheEndOfTheSynchronisation()
{
    startWorker(1);
    force();
    QString atTheEnd;
    const LogHook hook("MHRWorker: END synchronization #1 (waiting records: 0)",
                       [this, &atTheEnd] { atTheEnd = forceFlag(); });
    tick();
    QCOMPARE(atTheEnd, QString("1"));
    QCOMPARE(forceFlag(), QString("0"));
}

void TestTick::aFlagThatCannotBeResetForcesTheNextTickToo()
{
    startWorker(1);
    force();
    m_db.refuse("UPDATE", "vars", "read only");
    const QString failure =
        "C variableSet ERROR: \"read only QMYSQL3: Unable to execute statement\"";
    QCOMPARE(tick(),
             QStringList({"D MHRWorker: BEGIN synchronization #1 (force: YES)",
                          "D MHRWorker: END synchronization #1 (waiting records: 0)", failure}));
    QCOMPARE(tick(),
             QStringList({"D MHRWorker: BEGIN synchronization #2 (force: YES)",
                          "D MHRWorker: END synchronization #2 (waiting records: 0)", failure}));
    m_db.allow("UPDATE", "vars");
    tick();
    QCOMPARE(tick(), QStringList());
}

void TestTick::aTickDuringASynchronisationIsDropped()
{
    startWorker();
    // A member is added to a branch in the middle of a synchronisation.
    m_export->write({ExportRow().with(&ExportRow::stredisko, 130)});
    connect(m_worker->findChild<BranchesRepository *>(),
            &BranchesRepository::sigAddedPeopleToBranch, m_worker.get(), &MHRWorker::checkSync);
    QStringList lines = tick();
    const QStringList dropped = {
        "D MHRWorker::checkSync(): #2",
        "W MHRWorker::checkSync() - synchronization is in progress, this iteration was skipped!",
    };
    QCOMPARE(lines.count(dropped.first()), 1);
    const int at = lines.indexOf(dropped.first());
    QCOMPARE(lines.mid(at, 2), dropped);
    const int end = lines.indexOf("D MHRWorker: END synchronization #1 (waiting records: 0)");
    QVERIFY(at < end);
    QCOMPARE(lines.mid(end + 1), QStringList("D MHRWorker::dbCheckOpen()"));
    // It has its number, and the next one is not dropped.
    QCOMPARE(tick(),
             QStringList({"D MHRWorker::checkSync(): #3", "D MHRWorker::dbCheckOpen()",
                          "D MHRWorker::dbCheckOpen()"}));
}

void TestTick::failingToLoadPeopleEndsTheSynchronisation()
{
    startWorker(1);
    force();
    m_export->write({ExportRow()});
    m_db.hideTable("people");
    m_db.clearStatements();
    QCOMPARE(tick(),
             QStringList({"D MHRWorker: BEGIN synchronization #1 (force: YES)",
                          "C MHRWorker::dbLoadPeople() - SQL ERROR [1146]: Table 'tepdb.people' "
                          "doesn't exist QMYSQL: Unable to execute query",
                          "C MHRWorker: load people from TEPDB failed - synchronization "
                          "terminated!",
                          "D MHRWorker: END synchronization #1 (waiting records: 0)"}));
    const QStringList statements = m_db.statements();
    QCOMPARE(statements.size(), 4);
    QVERIFY(statements.at(1).startsWith("SELECT p.pid, p.pamId"));
    QCOMPARE(statements.mid(2), kResetForce);
    m_db.restoreTable("people");
}

void TestTick::recordsOfAFailedSynchronisationAreDiscarded()
{
    startWorker().setSyncInterval(1);
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    m_db.hideTable("people");
    tick();
    m_db.restoreTable("people");
    m_db.clearStatements();
    tick();
    QCOMPARE(m_db.statements(), QStringList(kReadForce));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 0);

    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 8888)});
    const QStringList lines = tick();
    QVERIFY(lines.contains("D MHRWorker::doSync() - stack count: 1"));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 88881").toInt(), 1);
}

void TestTick::waitingRecordsStayUntilACycleHasRecords()
{
    startWorker(1).setSyncInterval(1);
    const QVector<ExportRow> ofAnUnknownBranch = {ExportRow().with(&ExportRow::stredisko, 999)};
    const QString end = "D MHRWorker: END synchronization #%1 (waiting records: %2)";

    m_export->write(ofAnUnknownBranch);
    QCOMPARE(tick().last(), end.arg(1).arg(1));

    m_db.run("INSERT INTO branches (bid, number) VALUES (9, 999)");
    QCOMPARE(tick().last(), end.arg(2).arg(1));

    m_export->write(ofAnUnknownBranch);
    QCOMPARE(tick().last(), end.arg(3).arg(0));
    QCOMPARE(m_db.value("SELECT uid FROM brape WHERE bid = 9").toInt(), 4);
}

void TestTick::countersGoOnAfterStopAndStart()
{
    MHRWorker &worker = startWorker();
    worker.setSyncInterval(3);
    tick(2);
    worker.stop();
    worker.start();
    tick(2);
    QCOMPARE(loggedTicks(m_log->lines()), QStringList({"1", "3"}));
    QVERIFY(m_log->contains("D MHRWorker: BEGIN synchronization #2 (force: NO)"));
}

void TestTick::theConnectionIsClosedBetweenTicks()
{
    const QString name = "YAV.tepdb.MirovaHR";
    startWorker();
    QVERIFY(!QSqlDatabase::database(name, false).isOpen());
    bool openDuringTheTick = false;
    const LogHook hook("MHRWorker: BEGIN synchronization #1 (force: NO)",
                       [&openDuringTheTick, &name] {
                           openDuringTheTick = QSqlDatabase::database(name, false).isOpen();
                       });
    tick();
    QVERIFY(openDuringTheTick);
    QVERIFY(!QSqlDatabase::database(name, false).isOpen());
    tick();
    QVERIFY(!QSqlDatabase::database(name, false).isOpen());
}

QTEST_GUILESS_MAIN(TestTick)
#include "tst_tick.moc"
