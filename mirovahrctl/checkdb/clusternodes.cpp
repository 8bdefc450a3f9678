#include "mirovahrctl/checkdb/clusternodes.h"

#include "cli/text.h"
#include "mirovahrctl/checkdb/serversettings.h"
#include "mirovahrctl/site/midnights.h"
#include "mirovahrctl/site/sitedatabase.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr char kSelectNode[] = "SELECT VERSION(), @@SESSION.sql_mode,"
                               " @@SESSION.auto_increment_increment, @@SESSION.time_zone,"
                               " @@system_time_zone";

void read(SqlSession &server, const ServerSettings &status, AskedNode &node)
{
    node.cluster = status.value(QStringLiteral("wsrep_cluster_state_uuid"));
    node.member = status.value(QStringLiteral("wsrep_gcomm_uuid"));
    node.state = nodeState(status);
    const QStringList row = server.row(QLatin1String(kSelectNode));
    node.version = row.value(0);
    node.sqlMode = row.value(1);
    node.autoIncrementIncrement = row.value(2);
    node.timeZone = row.value(3) == QLatin1String("SYSTEM") ? row.value(4) : row.value(3);
    node.midnights = server.row(Midnights::query(ClusterNodes::days()));
    node.failure = server.errorString();
}

} // namespace

std::optional<NodeAddress> NodeAddress::parse(const QString &text)
{
    static const QRegularExpression address(
        QStringLiteral("^(?:\\[([^]]+)\\]|([^:]+))(?::(\\d+))?$"));
    const QRegularExpressionMatch match = address.match(text);
    const QString host = match.captured(1) + match.captured(2);
    // A server that does not know its own address says so in this word.
    if (host.isEmpty() || host.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0)
        return std::nullopt;
    return NodeAddress{host, match.captured(3).toUInt()};
}

QVector<QDate> ClusterNodes::days()
{
    return Midnights::daysToCompare(QDate::currentDate());
}

ClusterNodes ClusterNodes::ask(SiteDatabase &site)
{
    ClusterNodes nodes;
    const ServerSettings status = readClusterStatus(site.sql());
    read(site.sql(), status, nodes.m_own);
    const QStringList addresses =
        status.value(QStringLiteral("wsrep_incoming_addresses")).split(QLatin1Char(','));
    bool isKnown = false;
    const int own = status.value(QStringLiteral("wsrep_local_index")).toInt(&isKnown);
    const int size = status.value(QStringLiteral("wsrep_cluster_size")).toInt();
    nodes.m_unnamed = qMax(0, size - addresses.size());
    for (int i = 0; i < addresses.size(); ++i) {
        const QString address = addresses.at(i).trimmed();
        if (isKnown && i == own)
            continue;
        if (NodeAddress::parse(address))
            nodes.askOther(site, address);
        else
            ++nodes.m_unnamed;
    }
    return nodes;
}

void ClusterNodes::askOther(const SiteDatabase &site, const QString &address)
{
    AskedNode node;
    node.address = address;
    const NodeAddress at = *NodeAddress::parse(address);
    SiteDatabase server;
    node.failure = server.openNode(site, at.host, at.port);
    if (node.failure.isEmpty()) {
        const ServerSettings status = readClusterStatus(server.sql());
        if (isOn(status, "wsrep_ready"))
            read(server.sql(), status, node);
        else
            node.failure = Text::tr("It refuses statements (state %1)").arg(nodeState(status));
    }
    if (node.failure.isEmpty())
        node.failure = strangeness(node);
    m_others += node;
}

/// Why the server that answered cannot be the node whose address it has; empty when it can. A proxy
/// or a translated address may lead elsewhere.
QString ClusterNodes::strangeness(const AskedNode &node) const
{
    if (node.cluster.isEmpty() || node.cluster != m_own.cluster)
        return Text::tr("The server there is not a member of this cluster");
    const auto isTheSame = [&node](const AskedNode &other) {
        return other.failure.isEmpty() && other.member == node.member;
    };
    if (isTheSame(m_own) || std::any_of(m_others.cbegin(), m_others.cend(), isTheSame))
        return Text::tr("The address leads to a node that was asked already");
    return QString();
}
