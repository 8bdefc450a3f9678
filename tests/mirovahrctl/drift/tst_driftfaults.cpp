#include "tests/mirovahrctl/drift/driftedsite.h"
#include "tests/mirovahrctl/drift/driftlosses.h"
#include "tests/support/logcapture.h"
#include "tests/worker/faults/faultcycle.h"
#include "tests/worker/support/middayzone.h"
#include "worker/mhrworker.h"

#include <QScopeGuard>
#include <QTest>

#include <future>
#include <limits>

namespace {

using Way = Disturbance::Way;

} // namespace

/// Disturbs one command of a synchronisation. After the forced synchronisation that follows, drift
/// must name every difference from an undisturbed run that the database shows, and nothing else;
/// its statements must mend it.
///
/// Unless the environment variable MIROVAHR_FAULTS is "all", some of the commands are disturbed in
/// each way.
class TestDriftFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void withoutAFaultThereIsNone();
    void aServerErrorIsMended_data() { addRows(1); }
    void aServerErrorIsMended();
    void aDeadlockIsMended_data() { addRows(5); }
    void aDeadlockIsMended();
    void aLossBeforeTheCommandIsMended_data() { addRows(4); }
    void aLossBeforeTheCommandIsMended();
    void aLossBeforeTheAnswerIsMended_data() { addRows(7); }
    void aLossBeforeTheAnswerIsMended();
    void everyRuleOfALossOccurred();

private:
    void addRows(int quickStep);
    void learn();
    void synchronise(const std::function<void()> &meanwhile, const std::function<void()> &then);
    void disturb(const Disturbance &disturbance);
    void checkDrift();
    QStringList found();
    bool isSelectionComplete();

    FaultCycle m_cycle;
    DriftedSite m_site{m_cycle.db()};
    QVector<MySqlProxy::Command> m_commands; ///< of the undisturbed cycle
    DatabaseState m_state; ///< after it
    QStringList m_found; ///< then: the sample's own
    QSet<QString> m_rules;
};

void TestDriftFaults::initTestCase()
{
    QVERIFY2(m_cycle.start(), qPrintable(m_cycle.errorString()));
    m_site.unlockAccount();
    m_site.configure("[MES]\n22=\"rodičovská dovolenka\"\n");
    // The first run looks up the uids, which the program then knows.
    learn();
    learn();
}

void TestDriftFaults::learn()
{
    QVERIFY(m_cycle.begin());
    m_cycle.proxy().restartCount();
    synchronise([] {}, [this] { m_commands = m_cycle.proxy().commands(); });
    m_state = m_cycle.state();
    m_found = found();
}

void TestDriftFaults::addRows(int quickStep)
{
    const bool all = qgetenv("MIROVAHR_FAULTS") == "all";
    QTest::addColumn<int>("number");
    for (int i = 0; i < m_commands.size(); i += all ? 1 : quickStep) {
        const MySqlProxy::Command &command = m_commands.at(i);
        if (command.hasAnswer)
            QTest::addRow("%d %s", i + 1, qPrintable(command.text.left(70))) << i + 1;
    }
}

/// A synchronisation, two more ticks, and a forced synchronisation of the same export, by a worker
/// that is gone afterwards. Calls \a meanwhile in another thread during the first one, and \a then
/// after it.
void TestDriftFaults::synchronise(const std::function<void()> &meanwhile,
                                  const std::function<void()> &then)
{
    const LogCapture log;
    {
        MHRWorker worker;
        worker.setSyncInterval(std::numeric_limits<unsigned int>::max());
        worker.setImportFile(m_cycle.exportPath());
        worker.setDeleteFileAfterImport(true);
        worker.setMes({{22, QStringLiteral("rodičovská dovolenka")}});
        worker.setTepDb(m_cycle.serverConnection());
        worker.init();
        const auto other = std::async(std::launch::async, meanwhile);
        worker.checkSync();
        other.wait();
        then();
        worker.checkSync();
        worker.checkSync();
        m_cycle.repeat();
        worker.checkSync();
    }
    QSqlDatabase::removeDatabase(
        QStringLiteral("YAV.%1.MirovaHR").arg(m_cycle.db().server().databaseName()));
}

void TestDriftFaults::disturb(const Disturbance &disturbance)
{
    QFETCH(int, number);
    MySqlProxy &proxy = m_cycle.proxy();
    QVERIFY(m_cycle.begin());
    proxy.disturb(number, disturbance);
    bool isDisturbed = false;
    synchronise(
        [&] {
            isDisturbed = proxy.waitForArrival();
            proxy.release();
            isDisturbed = isDisturbed && proxy.waitForEnd();
            proxy.resume();
        },
        [] {});
    QVERIFY(isDisturbed);
    checkDrift();
}

/// The findings of drift, without what says that the export was not read yet.
QStringList TestDriftFaults::found()
{
    m_cycle.repeat();
    m_cycle.db().run("UPDATE vars SET value = '0' WHERE name = 'YAV.MHRWorker.forceSync'");
    QStringList found = DriftedSite::found(m_site.drift(m_cycle.exportPath()));
    for (QString &line : found)
        line = m_cycle.plain(line);
    return found;
}

/// Whether the selection of the payroll export has everybody of the export, in whatever order.
bool TestDriftFaults::isSelectionComplete()
{
    const QStringList selected =
        m_cycle
            .plain(m_cycle.db()
                       .value("SELECT value FROM vars WHERE name = 'exportPam.1.selPeople'")
                       .toString())
            .split(',');
    const QStringList expected{"<pid>", "10011", "12341", "12351"};
    return std::all_of(expected.begin(), expected.end(),
                       [&selected](const QString &pid) { return selected.contains(pid); });
}

void TestDriftFaults::checkDrift()
{
    const QStringList differences = StateChanges::between(m_state, m_cycle.state());
    QStringList lost = found();
    for (const QString &line : qAsConst(m_found))
        lost.removeOne(line);
    QSet<QString> rules;
    for (const QString &line : qAsConst(lost))
        rules += line.section(':', 0, 0);
    QStringList sorted = rules.values();
    sorted.sort();
    QVERIFY2(sorted == DriftLosses::rulesOf(differences),
             qPrintable(differences.join('\n') + "\n\n" + lost.join('\n')));
    m_rules += rules;

    QVERIFY2(m_site.mend(), qPrintable(m_cycle.db().errorString()));
    const QStringList remaining =
        DriftLosses::visible(StateChanges::between(m_state, m_cycle.state()));
    for (const QString &line : remaining) {
        const bool isSelection = line.startsWith("vars name=exportPam.1.selPeople: ");
        QVERIFY2(isSelection && isSelectionComplete(), qPrintable(line));
    }
}

void TestDriftFaults::withoutAFaultThereIsNone()
{
    QVERIFY(m_cycle.begin());
    synchronise([] {}, [] {});
    checkDrift();
    QCOMPARE(m_rules, QSet<QString>());
    // The mending of the sample's own differences stays out of the other tests.
    learn();
}

void TestDriftFaults::aServerErrorIsMended()
{
    QFETCH(int, number);
    Disturbance disturbance;
    disturbance.way = Way::Refuse;
    disturbance.errorNumber = 1030;
    disturbance.sqlState = "HY000";
    disturbance.errorText = "Got error 28 from storage engine";
    disturbance.rollsBack = m_commands.at(number - 1).text == "COMMIT";
    disturb(disturbance);
}

void TestDriftFaults::aDeadlockIsMended()
{
    Disturbance disturbance;
    disturbance.way = Way::Refuse;
    disturbance.errorNumber = 1213;
    disturbance.sqlState = "40001";
    disturbance.errorText = "Deadlock found when trying to get lock; try restarting transaction";
    disturbance.rollsBack = true;
    disturb(disturbance);
}

void TestDriftFaults::aLossBeforeTheCommandIsMended()
{
    Disturbance disturbance;
    disturbance.way = Way::CutBefore;
    disturb(disturbance);
}

void TestDriftFaults::aLossBeforeTheAnswerIsMended()
{
    Disturbance disturbance;
    disturbance.way = Way::CutAfter;
    disturb(disturbance);
}

void TestDriftFaults::everyRuleOfALossOccurred()
{
    const QStringList rules = DriftLosses::rules();
    for (const QString &rule : rules)
        QVERIFY2(m_rules.contains(rule), qPrintable(rule));
}

int main(int argc, char **argv)
{
    settleProgram();
    const QCoreApplication application(argc, argv);
    TestDriftFaults test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_driftfaults.moc"
