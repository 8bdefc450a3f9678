#pragma once

#include "tests/cluster/haproxy.h"
#include "tests/support/cluster/galeracluster.h"

#include <QStringList>

/// An attendance database as docs/cluster.md describes it: three nodes with the reference database
/// and the settings of packaging/cluster/galera.cnf, behind HAProxy. For one test program.
class AttendanceCluster {
public:
    /// \a options: further ones of mariadbd for each node.
    explicit AttendanceCluster(const QStringList &options = {});

    /// True once clients can work. \a withSample: sample data, or empty tables.
    bool start(bool withSample = true);
    QString errorString() const { return m_error; }

    GaleraCluster &nodes() { return m_nodes; }
    ClusterNode &node(int number) { return m_nodes.node(number); }
    HaProxy &proxy() { return m_proxy; }

    /// Brings back every node that was ended, and starts the proxy anew: clients get to node 1.
    bool restore();

    /// The tables in which nodes differ, as "people: 1 2 2"; empty when all nodes are equal. Waits
    /// until every node has everything.
    QStringList inequalities();

private:
    bool fail(const QString &error);

    GaleraCluster m_nodes;
    HaProxy m_proxy;
    QString m_error;
};
