#pragma once

#include "tests/support/cluster/clusternode.h"
#include "tests/support/cluster/loopbacknet.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// A private Galera cluster of real nodes, for one test program. The nodes listen on addresses of
/// the loopback range only, each in a folder of its own (PrivateMariaDb), which goes away with the
/// program, also when that is killed.
///
/// All nodes begin with the same data and form the cluster together, as after a power failure: no
/// state is transferred then. A node that comes back later (ClusterNode::start()) gets what it
/// missed from another one, for which it runs the script wsrep_sst_mariabackup: that must be in
/// PATH.
class GaleraCluster {
public:
    explicit GaleraCluster(int nodes = 3);
    ~GaleraCluster(); ///< Ends the nodes at once.
    GaleraCluster(const GaleraCluster &) = delete;
    GaleraCluster &operator=(const GaleraCluster &) = delete;

    /// Makes the data, from these files of SQL statements on the database "tepdb", and starts all
    /// nodes; true once all of them are synced. \a hostRights as PrivateMariaDb::setHostRights().
    bool start(const QStringList &sqlFiles,
               PrivateMariaDb::HostRights hostRights = PrivateMariaDb::HostRights::None);
    QString errorString() const { return m_error; }

    int size() const { return int(m_nodes.size()); }
    /// \a number is 1 to size().
    ClusterNode &node(int number) { return *m_nodes.at(std::size_t(number - 1)); }

    /// Waits until the running nodes are a primary component without the others, and each has
    /// everything that the cluster has.
    bool waitUntilSettled();

private:
    bool makeData(const QStringList &sqlFiles, PrivateMariaDb::HostRights hostRights);
    bool prepareAccounts();
    bool copyData();
    bool writeSavedStates();
    bool startNodes();
    bool fail(const QString &error);

    const LoopbackNet m_net;
    PrivateMariaDb m_origin; ///< made the data, does not run
    std::vector<std::unique_ptr<ClusterNode>> m_nodes;
    QString m_error;
};
