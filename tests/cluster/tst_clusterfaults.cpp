#include "tests/cluster/attendancecluster.h"
#include "tests/support/logcapture.h"
#include "tests/support/patience.h"
#include "tests/worker/faults/expectations.h"
#include "tests/worker/faults/faultcycle.h"
#include "tests/worker/faults/runs.h"
#include "tests/worker/faults/servingworker.h"

#include <QScopeGuard>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

using Way = Disturbance::Way;

constexpr int kDeadlock = 1213;

Disturbance of(Way way)
{
    Disturbance disturbance;
    disturbance.way = way;
    return disturbance;
}

} // namespace

/// Faults that only a cluster has, injected into the cycle of tst_faults. The plugin works on node
/// 1 through HAProxy; the test looks and changes things through node 3.
class TestClusterFaults : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void aNodeThatIsKilledIsSurvived_data();
    void aNodeThatIsKilledIsSurvived();

private:
    struct Run {
        Commands commands; ///< until the repetition
        QStringList problems; ///< until the repetition
        QStringList differences; ///< from the undisturbed state, after the repetition
    };

    void learnCycle();
    Commands plainCommands() const;
    int numberOf(const QString &text) const;
    Run disturb(const Disturbance &disturbance, const std::function<void()> &whileHeld,
                const std::function<void()> &afterwards,
                const std::function<void()> &beforeTheRepetition);
    void passFault(const LogCapture &log, const std::function<void()> &whileHeld,
                   const std::function<void()> &afterwards);
    void repeat(const LogCapture &log);
    void checkDifferences(const Run &run) const;

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
    // The first run looks up the uids, which the program then knows.
    learnCycle();
    learnCycle();
}

void TestClusterFaults::init()
{
    QVERIFY2(m_cluster.restore(), qPrintable(m_cluster.errorString()));
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

TestClusterFaults::Run TestClusterFaults::disturb(const Disturbance &disturbance,
                                                  const std::function<void()> &whileHeld,
                                                  const std::function<void()> &afterwards,
                                                  const std::function<void()> &beforeTheRepetition)
{
    Run run;
    const auto go = [&] {
        QFETCH(QString, command);
        const LogCapture log;
        QVERIFY(m_cycle.begin());
        m_cycle.proxy().disturb(numberOf(command), disturbance);
        const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
        passFault(log, whileHeld, afterwards);
        run.commands = firstTick(plainCommands());
        run.problems = problems(log.lines());
        beforeTheRepetition();
        repeat(log);
    };
    go();
    for (QString &line : run.problems)
        line = m_cycle.plain(line);
    run.differences = StateChanges::between(m_state, m_cycle.state());
    return run;
}

void TestClusterFaults::passFault(const LogCapture &log, const std::function<void()> &whileHeld,
                                  const std::function<void()> &afterwards)
{
    MySqlProxy &proxy = m_cycle.proxy();
    const auto freeWorker = qScopeGuard([&proxy] {
        proxy.release();
        proxy.resume();
    });
    QVERIFY(proxy.waitForArrival());
    whileHeld();
    proxy.release();
    QVERIFY(proxy.waitForEnd());
    afterwards();
    proxy.resume();
    QVERIFY(log.waitForText("END synchronization #1 "));
}

/// Forces a synchronisation of the same export and waits until it is over. It logs no problem of a
/// statement.
void TestClusterFaults::repeat(const LogCapture &log)
{
    const QString begun = "D MHRWorker::doSync() - stack count: 4";
    const int before = log.count(begun);
    m_cycle.repeat();
    QVERIFY(log.waitForCount(begun, before + 1));
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
    const auto kill = [this] {
        m_cluster.node(1).kill();
    };
    const auto nothing = [] {
    };
    const auto comeBack = [this] {
        ClusterNode &node = m_cluster.node(1);
        QVERIFY2(node.start(), qPrintable(node.errorString()));
    };
    const Run run = isCarriedOut ? disturb(of(Way::CutAfter), nothing, kill, comeBack)
                                 : disturb(of(Way::Forward), kill, nothing, comeBack);
    QVERIFY(!run.problems.isEmpty());
    checkDifferences(run);
    QCOMPARE(m_cluster.inequalities().join("\n"), QString());
}

QTEST_GUILESS_MAIN(TestClusterFaults)

#include "tst_clusterfaults.moc"
