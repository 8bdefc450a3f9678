#pragma once

#include <QString>

/// Addresses of the loopback range and ports on them that nothing listens on, for the nodes of a
/// cluster. Nobody outside of the machine can reach them.
class LoopbackNet {
public:
    /// What a node listens on.
    enum class Port { Clients, Group, IncrementalTransfer, FullTransfer };

    /// Looks for a net in which \a nodes addresses have all ports free. isValid() is false when
    /// there is none.
    explicit LoopbackNet(int nodes);

    bool isValid() const { return !m_prefix.isEmpty(); }
    /// Address of a node, which is a number from 1 on.
    QString address(int node) const { return m_prefix + QString::number(node); }
    int port(Port port) const { return m_firstPort + int(port); }
    /// "127.x.y.1:port"
    QString endpoint(int node, Port port) const;
    /// All nodes, as wsrep_cluster_address wants them.
    QString group() const;

private:
    const int m_nodes;
    QString m_prefix; ///< "127.x.y."
    int m_firstPort = 0;
};
