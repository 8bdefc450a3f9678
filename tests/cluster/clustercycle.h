#pragma once

#include "tests/cluster/attendancecluster.h"
#include "tests/support/logcapture.h"
#include "tests/worker/faults/faultcycle.h"
#include "tests/worker/faults/runs.h"

#include <QString>
#include <QStringList>

#include <functional>

/// The synchronisation of FaultCycle on a cluster. The plugin works on node 1 through HAProxy; the
/// test looks and changes things through node 3.
///
/// What goes wrong in the set-up fails the test function.
class ClusterCycle {
public:
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
        QStringList lost; ///< differences from the undisturbed state before the repetition
        QStringList differences; ///< the same after it
    };

    /// Starts the cluster and learns the undisturbed cycle.
    void start();
    /// Brings back every node, and the plugin to node 1.
    void restore();

    AttendanceCluster &cluster() { return m_cluster; }
    ClusterNode &pluginsNode() { return m_cluster.node(1); }
    /// Through node 3.
    TestDatabase &db() { return m_cycle.db(); }
    FaultCycle &cycle() { return m_cycle; }

    /// Of the undisturbed cycle, in plain text.
    const Commands &commands() const { return m_commands; }
    /// Number of its first command whose text fits; 0 for none. "*" stands for any text.
    int numberOf(const QString &pattern) const;
    /// What differs now from the state after the undisturbed cycle.
    QStringList differences() { return StateChanges::between(m_state, m_cycle.state()); }

    /// Disturbs one command of a synchronisation; then forces another one of the same export, which
    /// logs no problem.
    Run disturb(int number, Disturbance::Way way, const Steps &steps);
    /// A command has changed its rows and is not committed yet when \a writer changes them through
    /// node 3, and is first.
    Run conflict(int number, const std::function<void()> &writer);

    /// Fails the test unless each difference is one that docs/reliability.md lists, and comes from
    /// a command that was not carried out.
    void checkDifferences(const Run &run) const;

private:
    void addGates();
    void learn();
    Commands plainCommands() const;
    void passFault(const LogCapture &log, const Steps &steps);
    void waitUntilFlagIsReset();
    void repeat(const LogCapture &log);

    AttendanceCluster m_cluster;
    FaultCycle m_cycle;
    Commands m_commands;
    DatabaseState m_state;
};
