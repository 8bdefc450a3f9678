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

    /// What HAProxy answers to a command of its administrator; empty when it does not answer.
    QString administer(const QString &command) const;
    /// Waits until HAProxy counts a node as up, or as down.
    bool waitUntilUp(int number) const { return waitForState(number, "UP"); }
    bool waitUntilDown(int number) const { return waitForState(number, "DOWN"); }

    QString socketPath() const { return m_folder.filePath("haproxy.sock"); }
    /// The check that HAProxy calls. It takes the addresses and ports of the proxy and of a node.
    QString checkPath() const { return m_folder.filePath("wsrep-check"); }

private:
    QString administratorsSocketPath() const { return m_folder.filePath("admin.sock"); }
    QString configurationPath() const { return m_folder.filePath("haproxy.cfg"); }
    bool waitForState(int number, const QString &state) const;
    bool writeConfiguration();
    bool writeCheck();
    bool fill(const QString &sample, const QMap<QString, QString> &places, const QString &path);
    bool fail(const QString &error);

    GaleraCluster &m_cluster;
    QTemporaryDir m_folder;
    BoundProcess m_process;
    QString m_error;
};
