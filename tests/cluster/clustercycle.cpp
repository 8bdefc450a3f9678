#include "tests/cluster/clustercycle.h"

#include "tests/support/patience.h"
#include "tests/worker/faults/expectations.h"
#include "tests/worker/faults/servingworker.h"

#include <QScopeGuard>

#include <algorithm>

void ClusterCycle::start()
{
    QVERIFY2(m_cluster.start(), qPrintable(m_cluster.errorString()));
    QVERIFY2(m_cycle.startWith(m_cluster.node(3).server(), m_cluster.proxy().socketPath()),
             qPrintable(m_cycle.errorString()));
    addGates();
    // The first run looks up the uids, which the program then knows.
    learn();
    learn();
}

void ClusterCycle::restore()
{
    QVERIFY2(m_cluster.restore(), qPrintable(m_cluster.errorString()));
}

/// Lets every change of the plugin wait before it is committed, as long as somebody else has the
/// lock "commit".
void ClusterCycle::addGates()
{
    const TableRows tables = db().rows("SHOW TABLES");
    for (const QStringList &table : tables) {
        for (const char *event : {"INSERT", "UPDATE"}) {
            db().run(QStringLiteral("CREATE TRIGGER gate_%1_%2 AFTER %2 ON `%1` FOR EACH ROW"
                                    " IF USER() LIKE 'yav@%' AND GET_LOCK('commit', 60)"
                                    " THEN DO RELEASE_LOCK('commit'); END IF")
                         .arg(table.first(), event));
        }
    }
}

void ClusterCycle::learn()
{
    const LogCapture log;
    QVERIFY(m_cycle.begin());
    m_cycle.proxy().restartCount();
    const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
    QVERIFY(log.waitForText(kTick + '3'));
    m_commands = firstTick(plainCommands());
    m_state = m_cycle.state();
    waitUntilFlagIsReset();
    repeat(log);
    QCOMPARE(problems(log.lines()).join("\n"), QString());
    QCOMPARE(differences().join("\n"), QString());
    QCOMPARE(m_cluster.inequalities().join("\n"), QString());
}

Commands ClusterCycle::plainCommands() const
{
    Commands commands = m_cycle.proxy().commands();
    for (MySqlProxy::Command &command : commands)
        command.text = m_cycle.plain(command.text);
    return commands;
}

int ClusterCycle::numberOf(const QString &pattern) const
{
    const QRegularExpression expression = wildcard(pattern);
    const auto command =
        std::find_if(m_commands.begin(), m_commands.end(), [&expression](const auto &each) {
            return expression.match(each.text).hasMatch();
        });
    return command == m_commands.end() ? 0 : int(command - m_commands.begin()) + 1;
}

ClusterCycle::Run ClusterCycle::disturb(int number, Disturbance::Way way, const Steps &steps)
{
    Run run;
    const auto go = [&] {
        const LogCapture log;
        Disturbance disturbance;
        disturbance.way = way;
        QVERIFY(m_cycle.begin());
        m_cycle.proxy().disturb(number, disturbance);
        const ServingWorker worker(m_cycle.serverConnection(), m_cycle.exportPath());
        passFault(log, steps);
        run.commands = firstTick(plainCommands());
        run.problems = problems(firstTick(log.lines()));
        steps.beforeTheRepetition();
        waitUntilFlagIsReset();
        run.lost = differences();
        repeat(log);
    };
    go();
    for (QString &line : run.problems)
        line = m_cycle.plain(line);
    run.differences = differences();
    return run;
}

void ClusterCycle::passFault(const LogCapture &log, const Steps &steps)
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
    // The flag is reset after the last line of the synchronisation.
    QVERIFY(log.waitForText("END synchronization #1 ") && waitForNextTick(log));
}

/// A flag that is still to be reset would take a new one along.
void ClusterCycle::waitUntilFlagIsReset()
{
    QVERIFY(pollUntil([this] {
        return db().value("SELECT value FROM vars WHERE name = 'YAV.MHRWorker.forceSync'") == "0";
    }));
}

/// Forces a synchronisation of the same export and waits until it is over. It logs no problem of a
/// statement.
void ClusterCycle::repeat(const LogCapture &log)
{
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

ClusterCycle::Run ClusterCycle::conflict(int number, const std::function<void()> &writer)
{
    ClusterNode &node = pluginsNode();
    TestDatabase gate;
    if (!gate.attach(node.server()))
        return {};
    const auto isWaiting = [&gate] {
        return !gate.rows("SELECT id FROM information_schema.processlist"
                          " WHERE state = 'User lock'")
                    .isEmpty();
    };
    Steps steps;
    steps.whileHeld = [&gate] {
        gate.run("DO GET_LOCK('commit', 0)");
    };
    steps.meanwhile = [&] {
        QVERIFY(pollUntil(isWaiting));
        const int before = node.status("wsrep_local_bf_aborts").toInt();
        writer();
        QVERIFY(pollUntil([&] { return node.status("wsrep_local_bf_aborts").toInt() > before; }));
        gate.run("DO RELEASE_LOCK('commit')");
    };
    const auto freePlugin = qScopeGuard([&gate] { gate.run("DO RELEASE_ALL_LOCKS()"); });
    return disturb(number, Disturbance::Way::Forward, steps);
}

void ClusterCycle::checkDifferences(const Run &run) const
{
    const QStringList notCarriedOut = without(carriedOut(m_commands), carriedOut(run.commands));
    for (const QString &line : run.differences) {
        const bool explained =
            std::any_of(::differences().begin(), ::differences().end(),
                        [&](const Difference &each) { return each.explains(line, notCarriedOut); });
        QVERIFY2(explained, qPrintable(line + "\nnot carried out:\n" + notCarriedOut.join('\n')));
    }
}
