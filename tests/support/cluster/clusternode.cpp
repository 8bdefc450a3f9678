#include "tests/support/cluster/clusternode.h"

#include "tests/support/cluster/loopbacknet.h"
#include "tests/support/patience.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <csignal>

namespace {

constexpr char kProvider[] = "/usr/lib/galera/libgalera_smm.so";

using Port = LoopbackNet::Port;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The first column of the first row; a null value when there is none, with the reason in \a error.
QVariant valueOf(PrivateMariaDb &server, const QStringList &statements, QString &error,
                 int column = 0)
{
    const QString name = QStringLiteral("clusternode.%1").arg(server.socketPath());
    QVariant value;
    {
        QSqlDatabase database = server.addConnection(name, PrivateMariaDb::Account::Administrator);
        bool done = database.open();
        error = database.lastError().text();
        QSqlQuery query(database);
        for (const QString &statement : statements) {
            done = done && query.exec(statement);
            if (!done && error.isEmpty())
                error = query.lastError().text();
        }
        if (done && query.next())
            value = query.value(column);
    }
    QSqlDatabase::removeDatabase(name);
    return value;
}

} // namespace

ClusterNode::ClusterNode(const LoopbackNet &net, int number)
    : m_net(net)
    , m_number(number)
{
}

ClusterNode::~ClusterNode()
{
    thaw(); // or it would not end when it is asked to
}

QString ClusterNode::address() const
{
    return m_net.address(m_number);
}

int ClusterNode::port() const
{
    return m_net.port(Port::Clients);
}

QSqlDatabase ClusterNode::addConnection(const QString &connectionName) const
{
    QSqlDatabase database = QSqlDatabase::addDatabase("QMYSQL", connectionName);
    database.setHostName(address());
    database.setPort(port());
    database.setDatabaseName(m_server.databaseName());
    database.setUserName(m_server.userName());
    database.setPassword(m_server.password());
    return database;
}

bool ClusterNode::takeDataOf(const QString &dataDir)
{
    m_server.setMadeDataFolder(dataDir);
    return m_server.prepare() || fail(m_server.errorString());
}

bool ClusterNode::launch(const QStringList &further)
{
    if (!QFile::exists(kProvider))
        return fail("Galera's library is missing: install the package galera-4.");
    m_server.setServerOptions(
        QStringList{"--skip-networking=0", "--bind-address=" + address(),
                    QStringLiteral("--port=%1").arg(port()),
                    // Clients at the address are not "localhost": root, without a password, is for
                    // the socket.
                    "--skip-name-resolve", "--binlog-format=ROW", "--innodb-autoinc-lock-mode=2",
                    "--wsrep-on=ON", QStringLiteral("--wsrep-provider=%1").arg(kProvider),
                    "--wsrep-cluster-name=mirovahr", "--wsrep-cluster-address=" + m_net.group(),
                    "--wsrep-node-address=" + address(),
                    "--wsrep-node-incoming-address=" + m_net.endpoint(m_number, Port::Clients),
                    QStringLiteral("--wsrep-node-name=node%1").arg(m_number),
                    "--wsrep-sst-method=private", "--wsrep-sst-auth=transfer:transfer",
                    "--wsrep-sst-receive-address=" + m_net.endpoint(m_number, Port::FullTransfer),
                    "--wsrep-provider-options=" + providerOptions()}
        + m_options + further);
    m_logBegin = contentOf(m_server.errorLogPath()).size();
    return m_server.launch() || fail(m_server.errorString());
}

/// A node counts as gone after 3 s of silence instead of 5; the rest follows from it. The machine
/// may be busy: with less, nodes that only wait for a processor are expelled.
QString ClusterNode::providerOptions() const
{
    return QStringList{"gmcast.listen_addr=tcp://" + m_net.endpoint(m_number, Port::Group),
                       "ist.recv_addr=" + m_net.endpoint(m_number, Port::IncrementalTransfer),
                       "gcache.size=16M",
                       "pc.announce_timeout=PT0.5S",
                       "evs.keepalive_period=PT0.5S",
                       "evs.inactive_check_period=PT0.5S",
                       "evs.suspect_timeout=PT3S"}
        .join(';');
}

/// Waits until the node has found those of the group that are there.
bool ClusterNode::waitUntilInGroup()
{
    const bool found = pollUntil(
        [this] { return !m_server.isRunning() || log().contains("WSREP: gcomm: connected"); });
    return (found && m_server.isRunning()) || fail("The node finds no group.\n" + log());
}

bool ClusterNode::start()
{
    QStringList position;
    if (m_wasKilled && !recoverPosition(position))
        return false;
    if (!launch(position) || !m_server.waitUntilReady())
        return fail(m_server.errorString());
    m_wasKilled = false;
    return waitUntilSynced();
}

/// After a crash only InnoDB knows the last change that the node has.
bool ClusterNode::recoverPosition(QStringList &options)
{
    static const QRegularExpression recovered("WSREP: Recovered position: (\\S+)");
    if (!launch({"--wsrep-recover"}) || !m_server.waitUntilEnded())
        return fail(m_server.errorString());
    const QString position = recovered.match(log()).captured(1);
    options = QStringList{"--wsrep-start-position=" + position};
    return !position.isEmpty() || fail("The node's position is unknown.\n" + log());
}

bool ClusterNode::stop()
{
    return m_server.stop() || fail(m_server.errorString());
}

void ClusterNode::kill()
{
    m_wasKilled = m_wasKilled || m_server.isRunning();
    m_server.kill();
    m_isFrozen = false;
}

void ClusterNode::forgetPosition()
{
    QFile::remove(m_server.dataDir() + "/grastate.dat");
    m_wasKilled = false;
}

void ClusterNode::freeze()
{
    ::kill(static_cast<pid_t>(m_server.pid()), SIGSTOP);
    m_isFrozen = true;
}

void ClusterNode::thaw()
{
    if (m_isFrozen)
        ::kill(static_cast<pid_t>(m_server.pid()), SIGCONT);
    m_isFrozen = false;
}

QString ClusterNode::status(const QString &variable)
{
    return valueOf(m_server, {"SHOW GLOBAL STATUS LIKE '" + variable + '\''}, m_error, 1)
        .toString();
}

bool ClusterNode::waitForStatus(const QString &variable, const QString &value)
{
    QString last;
    const bool reached = pollUntil([&] {
        last = status(variable);
        return last == value || !m_server.isRunning();
    });
    return (reached && last == value)
        || fail(QStringLiteral("Node %1: %2 is \"%3\" instead of \"%4\". The node's log:\n%5")
                    .arg(m_number)
                    .arg(variable, last, value, log()));
}

bool ClusterNode::waitUntilSynced()
{
    return waitForStatus("wsrep_cluster_status", "Primary")
        && waitForStatus("wsrep_local_state_comment", "Synced")
        && waitForStatus("wsrep_ready", "ON");
}

bool ClusterNode::waitUntilCaughtUp()
{
    // The read waits until the node has applied what the cluster has by then.
    const QVariant one =
        valueOf(m_server, {"SET SESSION wsrep_sync_wait = 1", "SELECT 1"}, m_error);
    return one.isValid() || fail(m_error);
}

QString ClusterNode::log() const
{
    return QString::fromUtf8(contentOf(m_server.errorLogPath()).mid(m_logBegin));
}

bool ClusterNode::fail(const QString &error)
{
    m_error = error;
    return false;
}
