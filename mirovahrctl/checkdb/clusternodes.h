#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class SiteDatabase;
class SqlSession;

/// Where a node of a cluster listens.
struct NodeAddress {
    QString host;
    uint port = 0; ///< 0: the server's usual port

    /// Parses an entry of wsrep_incoming_addresses, such as "10.0.0.2:3306" or "[fd00::2]:3306".
    /// Nothing when it names no host.
    static std::optional<NodeAddress> parse(const QString &text);
};

/// A node of a cluster, as the account's session on it sees it.
struct AskedNode {
    QString address; ///< as the cluster names it
    QString failure; ///< why it was not asked, without a full stop; the rest is empty then
    QString cluster; ///< id of the cluster
    QString member; ///< id of the node, different for each
    QString state; ///< "Synced", ...
    QString version;
    QString sqlMode;
    QString autoIncrementIncrement;
    QString timeZone;
    QStringList midnights; ///< when the days begin that ClusterNodes::days() names

    bool isSynced() const { return state == QLatin1String("Synced"); }
};

/// The nodes of the cluster that the site's server belongs to.
class ClusterNodes {
public:
    /// Asks the site's server, and then every other node of its cluster, with the same account.
    static ClusterNodes ask(SiteDatabase &site);

    /// The site's server.
    const AskedNode &own() const { return m_own; }
    const QVector<AskedNode> &others() const { return m_others; }
    /// How many members of the cluster have no address.
    int unnamed() const { return m_unnamed; }

    /// The days on which the time zones of the nodes are compared.
    static QVector<QDate> days();

private:
    void askOther(const SiteDatabase &site, const QString &address);
    QString strangeness(const AskedNode &node) const;

    AskedNode m_own;
    QVector<AskedNode> m_others;
    int m_unnamed = 0;
};
