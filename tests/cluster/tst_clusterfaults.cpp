#include "tests/cluster/attendancecluster.h"
#include "tests/mirovahrctl/drift/driftedsite.h"
#include "tests/support/logcapture.h"
#include "tests/support/patience.h"
#include "tests/worker/faults/expectations.h"
#include "tests/worker/faults/faultcycle.h"
#include "tests/worker/faults/runs.h"
#include "tests/worker/faults/servingworker.h"

#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

using Way = Disturbance::Way;

constexpr int kDeadlock = 1213;

// Of a person who changes, by the plugin and by somebody else.
const QString kUpdate = QStringLiteral("UPDATE people SET pamId=");
const QString kWriterOfPerson = QStringLiteral("UPDATE people SET phone = 'other' WHERE uid = 1");

} // namespace

/// Faults that only a cluster has, injected into the cycle of tst_faults. The plugin works on node
/// 1 through HAProxy; the test looks and changes things through node 3.
class TestClusterFaults : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void aWriterOnAnotherNodeMakesTheCommitFailWithoutALineInTheLog_data();
    void aWriterOnAnotherNodeMakesTheCommitFailWithoutALineInTheLog();
    void aStatementThatLosesAgainstAnotherNodeIsRepeatedByTheServer_data();
    void aStatementThatLosesAgainstAnotherNodeIsRepeatedByTheServer();
    void preparedStatementsAndCallsThatLoseAreNotRepeated_data();
    void preparedStatementsAndCallsThatLoseAreNotRepeated();
    void withoutRetriesAStatementThatLosesFails_data();
    void withoutRetriesAStatementThatLosesFails();
    void aNodeThatIsKilledIsSurvived_data();
    void aNodeThatIsKilledIsSurvived();

private:
    /// What the test does in a disturbed run.
    struct Steps {
        std::function<void()> whileHeld = [] {
        }; ///< before the node gets the command
        std::function<void()> meanwhile = [] {
        }; ///< while the node carries it out
        std::function<void()> afterwards = [] {
        }; ///< when the command is over
        std::function<void()> beforeTheRepetition = [] {
        }; ///< when the synchronisation is over
    };
    /// What came of it.
    struct Run {
        Commands commands; ///< until the repetition
        QStringList problems; ///< until the repetition
        QStringList differences; ///< from the undisturbed state, after the repetition
    };

    void addGates();
    void learnCycle();
    Commands plainCommands() const;
    int numberOf(const QString &text) const;
    Run disturb(Way way, const Steps &steps);
    void passFault(const LogCapture &log, const Steps &steps);
    void repeat(const LogCapture &log);
    void checkDifferences(const Run &run) const;
    void checkLoss(const Run &run);
    void checkThatDriftBringsTheSupervisor();
    Run conflict();

    AttendanceCluster m_cluster;
    FaultCycle m_cycle;
    Commands m_commands; ///< of the undisturbed cycle
    DatabaseState m_state; ///< after it
};

void TestClusterFaults::initTestCase()
{
    QVERIFY2(m_cluster.start(), qPrintable(m_cluster.errorString()));
    QVERIFY2(m_cycle.startWith(m_cluster.node(3).server(), m_cluster.proxy().socketPath()),
             qPrintable(m_cycle.errorString()));
    addGates();
    // The first run looks up the uids, which the program then knows.
    learnCycle();
    learnCycle();
}

void TestClusterFaults::init()
{
    QVERIFY2(m_cluster.restore(), qPrintable(m_cluster.errorString()));
}

/// Lets every change of the plugin wait before it is committed, as long as somebody else has the
/// lock "commit".
void TestClusterFaults::addGates()
{
    const TableRows tables = m_cycle.db().rows("SHOW TABLES");
    for (const QStringList &table : tables) {
        for (const char *event : {"INSERT", "UPDATE"}) {
            m_cycle.db().run(
                QStringLiteral("CREATE TRIGGER gate_%1_%2 AFTER %2 ON `%1` FOR EACH ROW"
                               " IF USER() LIKE 'yav@%' AND GET_LOCK('commit', 60)"
                               " THEN DO RELEASE_LOCK('commit'); END IF")
                    .arg(table.first(), event));
        }
    }
}

void TestClusterFaults::learnCycle()
{
    const LogCapture log;
    QVERIFY(m_cycle.begin());
    m_cycle.proxy().restartCount();
    const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
    QVERIFY(log.waitForText(kTick + '3'));
    m_commands = firstTick(plainCommands());
    m_state = m_cycle.state();
    repeat(log);
    QCOMPARE(problems(log.lines()).join("\n"), QString());
    QCOMPARE(StateChanges::between(m_state, m_cycle.state()).join("\n"), QString());
    QCOMPARE(m_cluster.inequalities().join("\n"), QString());
}

Commands TestClusterFaults::plainCommands() const
{
    Commands commands = m_cycle.proxy().commands();
    for (MySqlProxy::Command &command : commands)
        command.text = m_cycle.plain(command.text);
    return commands;
}

/// Number of the first command of the undisturbed cycle that begins like this.
int TestClusterFaults::numberOf(const QString &text) const
{
    const auto command =
        std::find_if(m_commands.begin(), m_commands.end(),
                     [&text](const auto &each) { return each.text.startsWith(text); });
    return command == m_commands.end() ? 0 : int(command - m_commands.begin()) + 1;
}

TestClusterFaults::Run TestClusterFaults::disturb(Way way, const Steps &steps)
{
    Run run;
    const auto go = [&] {
        QFETCH(QString, command);
        const LogCapture log;
        Disturbance disturbance;
        disturbance.way = way;
        QVERIFY(m_cycle.begin());
        m_cycle.proxy().disturb(numberOf(command), disturbance);
        const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
        passFault(log, steps);
        run.commands = firstTick(plainCommands());
        run.problems = problems(log.lines());
        steps.beforeTheRepetition();
        repeat(log);
    };
    go();
    for (QString &line : run.problems)
        line = m_cycle.plain(line);
    run.differences = StateChanges::between(m_state, m_cycle.state());
    return run;
}

void TestClusterFaults::passFault(const LogCapture &log, const Steps &steps)
{
    MySqlProxy &proxy = m_cycle.proxy();
    const auto freeWorker = qScopeGuard([&proxy] {
        proxy.release();
        proxy.resume();
    });
    QVERIFY(proxy.waitForArrival());
    steps.whileHeld();
    proxy.release();
    steps.meanwhile();
    QVERIFY(proxy.waitForEnd());
    steps.afterwards();
    proxy.resume();
    QVERIFY(log.waitForText("END synchronization #1 "));
}

/// Forces a synchronisation of the same export and waits until it is over. It logs no problem of a
/// statement.
void TestClusterFaults::repeat(const LogCapture &log)
{
    // A flag that is still to be reset would take the new one along.
    const auto isReset = [this] {
        return m_cycle.db().value("SELECT value FROM vars WHERE name = 'YAV.MHRWorker.forceSync'")
            == "0";
    };
    QVERIFY(pollUntil(isReset));
    const QString begun = "D MHRWorker::doSync() - stack count: 4";
    const int before = log.count(begun);
    m_cycle.repeat();
    QVERIFY2(log.waitForCount(begun, before + 1), qPrintable(problems(log.lines()).join('\n')));
    const QStringList lines = log.lines();
    const QStringList begins = lines.mid(0, lines.lastIndexOf(begun));
    const int number = lastNumber(begins, "BEGIN synchronization #");
    QVERIFY(log.waitForText(QString("END synchronization #%1 ").arg(number)));
    const int begin =
        lines.indexOf(begins.filter(QString("BEGIN synchronization #%1 ").arg(number)).last());
    QCOMPARE(problems(log.lines().mid(begin)).join("\n"), QString());
    QVERIFY(waitForNextTick(log));
}

/// Each difference is one that docs/reliability.md lists, and comes from a command that was not
/// carried out.
void TestClusterFaults::checkDifferences(const Run &run) const
{
    const QStringList notCarriedOut = without(carriedOut(m_commands), carriedOut(run.commands));
    for (const QString &line : run.differences) {
        const bool explained =
            std::any_of(differences().begin(), differences().end(),
                        [&](const Difference &each) { return each.explains(line, notCarriedOut); });
        QVERIFY2(explained, qPrintable(line + "\nnot carried out:\n" + notCarriedOut.join('\n')));
    }
}

void TestClusterFaults::aWriterOnAnotherNodeMakesTheCommitFailWithoutALineInTheLog_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("the supervisor's transaction") << "COMMIT";
}

void TestClusterFaults::aWriterOnAnotherNodeMakesTheCommitFailWithoutALineInTheLog()
{
    static const QRegularExpression key("VALUES\\((\\d+), (\\d+), 1\\)");
    QStringList held;
    Steps steps;
    steps.whileHeld = [&] {
        const Commands commands = m_cycle.proxy().commands();
        held = key.match(commands.at(commands.size() - 2).text).capturedTexts().mid(1);
        m_cycle.db().run("INSERT INTO admins_people (aid, uid) VALUES (" + held.join(',') + ')');
        QVERIFY(m_cluster.node(1).waitUntilCaughtUp());
    };
    steps.beforeTheRepetition = [&] {
        m_cycle.db().run("DELETE FROM admins_people WHERE (aid, uid) = (" + held.join(',') + ')');
    };
    const Run run = disturb(Way::Forward, steps);
    QCOMPARE(run.commands.value(numberOf("COMMIT") - 1).error, kDeadlock);
    QCOMPARE(run.problems.join('\n'), QString());
    QCOMPARE(run.differences, QStringList{"admins_people - aid=2 uid=<uid> request=1"});
    checkDifferences(run);
    checkThatDriftBringsTheSupervisor();
    QCOMPARE(m_cluster.inequalities().join('\n'), QString());
}

/// What no synchronisation brings, the statements of drift do.
void TestClusterFaults::checkThatDriftBringsTheSupervisor()
{
    DriftedSite site(m_cycle.db());
    // The tool connects to the socket of a node, whose folder has no password file yet.
    PrivateMariaDb &server = m_cycle.db().server();
    QFile password(server.passwordFile());
    QVERIFY(password.open(QIODevice::WriteOnly));
    password.write(server.password().toUtf8());
    password.close();
    m_cycle.db().run("RENAME USER mirovahrctl@127.0.0.1 TO mirovahrctl@localhost");
    site.unlockAccount();
    site.configure("[MES]\n22=\"rodičovská dovolenka\"\n");
    // The export is there once more, for drift.
    m_cycle.repeat();
    const ToolRun run = site.drift(m_cycle.exportPath());
    QVERIFY2(run.findingsOf("supervisor-missing").size() == 1, run.report().constData());
    QVERIFY2(site.mend(), qPrintable(server.errorString()));
    const QStringList remaining = StateChanges::between(m_state, m_cycle.state());
    QCOMPARE(remaining.filter("admins_people - ").join('\n'), QString());
    QCOMPARE(site.drift(m_cycle.exportPath()).findingsOf("supervisor-missing").size(), 0);
}

/// The command of the row has changed its rows on node 1 and is not committed yet when another
/// writer changes them on node 3 and is first.
TestClusterFaults::Run TestClusterFaults::conflict()
{
    QFETCH(QString, writer);
    ClusterNode &node = m_cluster.node(1);
    TestDatabase pluginsNode;
    if (!pluginsNode.attach(node.server()))
        return {};
    const auto isWaiting = [&pluginsNode] {
        return !pluginsNode
                    .rows("SELECT id FROM information_schema.processlist"
                          " WHERE state = 'User lock'")
                    .isEmpty();
    };
    Steps steps;
    steps.whileHeld = [&] {
        pluginsNode.run("DO GET_LOCK('commit', 0)");
    };
    steps.meanwhile = [&] {
        QVERIFY(pollUntil(isWaiting));
        const int before = node.status("wsrep_local_bf_aborts").toInt();
        m_cycle.db().run(writer);
        QVERIFY(pollUntil([&] { return node.status("wsrep_local_bf_aborts").toInt() > before; }));
        pluginsNode.run("DO RELEASE_LOCK('commit')");
    };
    const auto freePlugin =
        qScopeGuard([&pluginsNode] { pluginsNode.run("DO RELEASE_ALL_LOCKS()"); });
    return disturb(Way::Forward, steps);
}

void TestClusterFaults::aStatementThatLosesAgainstAnotherNodeIsRepeatedByTheServer_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("writer");
    QTest::newRow("a changed person") << kUpdate << kWriterOfPerson;
}

void TestClusterFaults::aStatementThatLosesAgainstAnotherNodeIsRepeatedByTheServer()
{
    const Run run = conflict();
    QCOMPARE(run.problems.join('\n'), QString());
    QCOMPARE(run.differences.join('\n'), QString());
    QCOMPARE(m_cluster.inequalities().join('\n'), QString());
}

void TestClusterFaults::preparedStatementsAndCallsThatLoseAreNotRepeated_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("writer");
    QTest::newRow("the payroll selection")
        << "EXECUTE INSERT INTO vars "
        << "UPDATE vars SET value = CONCAT(value, ',') WHERE name = 'exportPam.1.selPeople'";
    QTest::newRow("the terminals of a changed person") << "CALL updateTermsSync"
                                                       << "UPDATE term SET syn = syn | 64";
}

void TestClusterFaults::preparedStatementsAndCallsThatLoseAreNotRepeated()
{
    checkLoss(conflict());
}

void TestClusterFaults::withoutRetriesAStatementThatLosesFails_data()
{
    aStatementThatLosesAgainstAnotherNodeIsRepeatedByTheServer_data();
}

void TestClusterFaults::withoutRetriesAStatementThatLosesFails()
{
    TestDatabase pluginsNode;
    QVERIFY(pluginsNode.attach(m_cluster.node(1).server()));
    pluginsNode.run("SET GLOBAL wsrep_retry_autocommit = 0");
    const auto allowRetries =
        qScopeGuard([&pluginsNode] { pluginsNode.run("SET GLOBAL wsrep_retry_autocommit = 5"); });
    checkLoss(conflict());
}

/// The command of the row failed as a deadlock's victim, and the log says so.
void TestClusterFaults::checkLoss(const Run &run)
{
    QFETCH(QString, command);
    QCOMPARE(run.commands.value(numberOf(command) - 1).error, kDeadlock);
    const QString problems = run.problems.join('\n');
    QVERIFY2(problems.contains("Deadlock found when trying to get lock"), qPrintable(problems));
}

void TestClusterFaults::aNodeThatIsKilledIsSurvived_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("isCarriedOut");
    QTest::newRow("reading the people") << "SELECT p.pid, " << false;
    QTest::newRow("creating a person") << "INSERT INTO people (" << false;
    QTest::newRow("a person was created") << "INSERT INTO people (" << true;
    QTest::newRow("the payroll selection") << "EXECUTE INSERT INTO vars " << false;
    QTest::newRow("the supervisor's commit") << "COMMIT" << false;
    QTest::newRow("the supervisor was committed") << "COMMIT" << true;
    QTest::newRow("the calendar") << "INSERT INTO groups_plan " << false;
}

void TestClusterFaults::aNodeThatIsKilledIsSurvived()
{
    QFETCH(bool, isCarriedOut);
    Steps steps;
    (isCarriedOut ? steps.afterwards : steps.whileHeld) = [this] {
        m_cluster.node(1).kill();
    };
    steps.beforeTheRepetition = [this] {
        ClusterNode &node = m_cluster.node(1);
        QVERIFY2(node.start(), qPrintable(node.errorString()));
    };
    const Run run = disturb(isCarriedOut ? Way::CutAfter : Way::Forward, steps);
    QVERIFY(!run.problems.isEmpty());
    checkDifferences(run);
    QCOMPARE(m_cluster.inequalities().join("\n"), QString());
}

QTEST_GUILESS_MAIN(TestClusterFaults)

#include "tst_clusterfaults.moc"
