#pragma once

#include "privatedb/boundprocess.h"

#include <QMap>
#include <QString>
#include <QTemporaryDir>

class GaleraCluster;

/// HAProxy with packaging/cluster/haproxy.cfg and its check, in front of a cluster of three nodes.
/// Only the places in the file are replaced: addresses, ports, and the paths of the check. Clients
/// find it at a socket.
class HaProxy {
public:
    explicit HaProxy(GaleraCluster &cluster);
    ~HaProxy();
    HaProxy(const HaProxy &) = delete;
    HaProxy &operator=(const HaProxy &) = delete;

    /// Starts it anew, with all nodes counted as up and no memory of a fail-over; true once it
    /// accepts connections.
    bool start();
    void stop();
    QString errorString() const { return m_error; }

    QString socketPath() const { return m_folder.filePath("haproxy.sock"); }
    /// The check that HAProxy calls. It takes the addresses and ports of the proxy and of a node.
    QString checkPath() const { return m_folder.filePath("wsrep-check"); }

private:
    QString configurationPath() const { return m_folder.filePath("haproxy.cfg"); }
    bool writeConfiguration();
    bool writeCheck();
    bool fill(const QString &sample, const QMap<QString, QString> &places, const QString &path);
    bool fail(const QString &error);

    GaleraCluster &m_cluster;
    QTemporaryDir m_folder;
    BoundProcess m_process;
    QString m_error;
};
