#pragma once

#include "privatedb/privatemariadb.h"

#include <QString>
#include <QStringList>

class LoopbackNet;

/// One node of a private Galera cluster. Operations that return bool leave the reason of a failure
/// in errorString(); those that wait give up after some minutes.
class ClusterNode {
public:
    /// \a net must live longer than the node; \a number is its place there, from 1 on.
    ClusterNode(const LoopbackNet &net, int number);
    ~ClusterNode();
    ClusterNode(const ClusterNode &) = delete;
    ClusterNode &operator=(const ClusterNode &) = delete;

    /// Further options of mariadbd, of which the last counts; from the next start on.
    void setOptions(const QStringList &options) { m_options = options; }

    int number() const { return m_number; }
    QString address() const;
    int port() const; ///< for clients, at address()
    PrivateMariaDb &server() { return m_server; }
    QString errorString() const { return m_error; }

    /// A registered connection of the host's account to the node's address, not yet opened. The
    /// caller removes it.
    QSqlDatabase addConnection(const QString &connectionName) const;

    /// Comes back after stop() or kill() and waits until the node has what it missed.
    bool start();
    /// Leaves the cluster in order.
    bool stop();
    /// Ends the node at once (SIGKILL), as a crash would.
    void kill();
    /// Makes a node that is not running ask for all data when it comes back, as one does that was
    /// away for so long that nobody has what it missed.
    void forgetPosition();
    /// Stops the process as it is (SIGSTOP): it keeps its connections and answers nothing.
    void freeze();
    void thaw(); ///< Undoes freeze().

    /// Value of a status variable such as "wsrep_local_state_comment"; empty when the node does not
    /// answer.
    QString status(const QString &variable);
    /// Waits until a status variable has this value.
    bool waitForStatus(const QString &variable, const QString &value);
    /// Waits until the node belongs to the primary component and has all of its changes.
    bool waitUntilSynced();
    /// Waits until the node has applied everything that the cluster has now.
    bool waitUntilCaughtUp();

    /// What the node has logged since its last start.
    QString log() const;

private:
    friend class GaleraCluster;

    bool takeDataOf(const QString &dataDir);
    bool launch(const QStringList &further = {});
    QString providerOptions() const;
    bool waitUntilInGroup();
    bool recoverPosition(QStringList &options);
    bool fail(const QString &error);

    const LoopbackNet &m_net;
    const int m_number;
    PrivateMariaDb m_server;
    QStringList m_options;
    int m_logBegin = 0; ///< where in the log file the last start begins
    bool m_wasKilled = false;
    bool m_isFrozen = false;
    QString m_error;
};
