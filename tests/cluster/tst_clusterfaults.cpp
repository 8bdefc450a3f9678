#include "tests/cluster/clustercycle.h"
#include "tests/worker/support/middayzone.h"

#include <QTest>

namespace {

using Way = Disturbance::Way;

} // namespace

/// A node is lost in the middle of a synchronisation.
class TestClusterFaults : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase() { m_cycle.start(); }
    void init() { m_cycle.restore(); }

    void aNodeThatIsKilledIsSurvived_data();
    void aNodeThatIsKilledIsSurvived();

private:
    ClusterCycle m_cycle;
};

void TestClusterFaults::aNodeThatIsKilledIsSurvived_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("isCarriedOut");
    QTest::newRow("reading the people") << "SELECT p.pid, *" << false;
    QTest::newRow("creating a person") << "INSERT INTO people (*" << false;
    QTest::newRow("a person was created") << "INSERT INTO people (*" << true;
    QTest::newRow("the payroll selection") << "EXECUTE INSERT INTO vars *" << false;
    QTest::newRow("the supervisor's commit") << "COMMIT" << false;
    QTest::newRow("the supervisor was committed") << "COMMIT" << true;
    QTest::newRow("the calendar") << "INSERT INTO groups_plan *" << false;
}

void TestClusterFaults::aNodeThatIsKilledIsSurvived()
{
    QFETCH(QString, command);
    QFETCH(bool, isCarriedOut);
    ClusterNode &node = m_cycle.pluginsNode();
    ClusterCycle::Steps steps;
    (isCarriedOut ? steps.afterwards : steps.whileHeld) = [&node] {
        node.kill();
    };
    steps.beforeTheRepetition = [&node] {
        QVERIFY2(node.start(), qPrintable(node.errorString()));
    };
    const ClusterCycle::Run run = m_cycle.disturb(
        m_cycle.numberOf(command), isCarriedOut ? Way::CutAfter : Way::Forward, steps);
    QVERIFY(!run.problems.isEmpty());
    m_cycle.checkDifferences(run);
    QCOMPARE(m_cycle.cluster().inequalities().join("\n"), QString());
}

QTEST_GUILESS_MAIN(TestClusterFaults)

#include "tst_clusterfaults.moc"
