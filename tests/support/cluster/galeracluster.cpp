#include "tests/support/cluster/galeracluster.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

#include <algorithm>

namespace {

bool writeFile(const QString &path, const QString &content)
{
    const QByteArray bytes = content.toUtf8();
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace

GaleraCluster::GaleraCluster(int nodes)
    : m_net(nodes)
{
    // Where the nodes find the script of their "wsrep_sst_method".
    qputenv("PATH", qgetenv("PATH") + ":" MIROVAHR_TRANSFER_SCRIPTS);
    for (int number = 1; number <= nodes; ++number)
        m_nodes.push_back(std::make_unique<ClusterNode>(m_net, number));
}

GaleraCluster::~GaleraCluster()
{
    for (const auto &node : m_nodes)
        node->kill();
}

bool GaleraCluster::start(const QStringList &sqlFiles, PrivateMariaDb::HostRights hostRights)
{
    if (!m_net.isValid())
        return fail("No free ports were found in the loopback range.");
    return makeData(sqlFiles, hostRights) && copyData() && writeSavedStates() && startNodes();
}

bool GaleraCluster::makeData(const QStringList &sqlFiles, PrivateMariaDb::HostRights hostRights)
{
    m_origin.setHostRights(hostRights);
    return (m_origin.start() && m_origin.load(sqlFiles) && prepareAccounts() && m_origin.stop())
        || fail(m_origin.errorString());
}

/// The accounts of "localhost" can only connect to a node's socket. The host's and others become
/// those of 127.0.0.1, which is where connections in the loopback range come from. The
/// administrator, who has no password, stays at the socket. A new one reads a node's state for
/// another node.
bool GaleraCluster::prepareAccounts()
{
    const QString name = "galeracluster.accounts";
    QString error;
    {
        QSqlDatabase database =
            m_origin.addConnection(name, PrivateMariaDb::Account::Administrator);
        database.open();
        QSqlQuery changes(database);
        QSqlQuery query(database);
        changes.exec(
            "SELECT CONCAT('DROP USER ', QUOTE(user), '@', QUOTE(host)) FROM mysql.user"
            " WHERE host <> 'localhost'"
            " UNION SELECT CONCAT('RENAME USER ', QUOTE(user), '@localhost TO ', QUOTE(user),"
            " '@127.0.0.1') FROM mysql.user"
            " WHERE host = 'localhost' AND user NOT IN ('', 'root', 'mariadb.sys')"
            " UNION SELECT 'GRANT RELOAD, PROCESS, LOCK TABLES, BINLOG MONITOR ON *.* TO"
            " transfer@localhost IDENTIFIED BY ''transfer'''");
        while (changes.next() && error.isEmpty()) {
            if (!query.exec(changes.value(0).toString()))
                error = query.lastError().text();
        }
    }
    QSqlDatabase::removeDatabase(name);
    return error.isEmpty() || fail(error);
}

bool GaleraCluster::copyData()
{
    return std::all_of(m_nodes.begin(), m_nodes.end(), [this](const auto &node) {
        return node->takeDataOf(m_origin.dataDir()) || fail(node->errorString());
    });
}

/// Lets every node believe that all of them were together at the same position before a power
/// failure: they become a primary component again as soon as all are there, and nobody has to
/// transfer anything.
bool GaleraCluster::writeSavedStates()
{
    const QString position = QString("# GALERA saved state\n"
                                     "version: 2.1\n"
                                     "uuid:    %1\n"
                                     "seqno:   0\n"
                                     "safe_to_bootstrap: 0\n")
                                 .arg(newUuid());
    QStringList uuids;
    QString members;
    for (int number = 1; number <= size(); ++number) {
        uuids += newUuid();
        members += "member: " + uuids.last() + " 0\n";
    }
    for (int number = 1; number <= size(); ++number) {
        const QString view =
            QString("my_uuid: %1\n#vwbeg\nview_id: 3 %2 1\nbootstrap: 0\n%3#vwend\n")
                .arg(uuids.at(number - 1), uuids.first(), members);
        const QString folder = node(number).server().dataDir();
        if (!writeFile(folder + "/grastate.dat", position)
            || !writeFile(folder + "/gvwstate.dat", view))
            return fail("No saved state could be written into " + folder);
    }
    return true;
}

/// One after the other: nodes that look for each other all at once take three times as long.
bool GaleraCluster::startNodes()
{
    for (const auto &node : m_nodes) {
        if (!node->launch() || !node->waitUntilInGroup())
            return fail(node->errorString());
    }
    for (const auto &node : m_nodes) {
        if (!node->server().waitUntilReady())
            return fail(node->server().errorString());
    }
    return waitUntilSettled();
}

bool GaleraCluster::waitUntilSettled()
{
    const auto isRunning = [](const auto &node) {
        return node->server().isRunning();
    };
    const QString count = QString::number(std::count_if(m_nodes.begin(), m_nodes.end(), isRunning));
    return std::all_of(m_nodes.begin(), m_nodes.end(), [&](const auto &node) {
        return !isRunning(node)
            || (node->waitForStatus("wsrep_cluster_size", count) && node->waitUntilSynced()
                && node->waitUntilCaughtUp())
            || fail(node->errorString());
    });
}

bool GaleraCluster::fail(const QString &error)
{
    m_error = error;
    return false;
}
