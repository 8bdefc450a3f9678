#include "tests/support/cluster/loopbacknet.h"

#include <QRandomGenerator>
#include <QStringList>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int kAttempts = 100;
constexpr int kPortsOfANode = 4;
// Below the ports that the kernel gives to connections.
constexpr int kLowestPort = 20000;
constexpr int kHighestPort = 32000;

bool isFree(const QString &address, int port)
{
    sockaddr_in name = {};
    name.sin_family = AF_INET;
    name.sin_port = htons(static_cast<uint16_t>(port));
    ::inet_pton(AF_INET, address.toLatin1().constData(), &name.sin_addr);
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool isFree = ::bind(socket, reinterpret_cast<sockaddr *>(&name), sizeof name) == 0;
    ::close(socket);
    return isFree;
}

bool areFree(const QString &prefix, int nodes, int firstPort)
{
    for (int node = 1; node <= nodes; ++node) {
        for (int port = firstPort; port < firstPort + kPortsOfANode; ++port) {
            if (!isFree(prefix + QString::number(node), port))
                return false;
        }
    }
    return true;
}

} // namespace

LoopbackNet::LoopbackNet(int nodes)
    : m_nodes(nodes)
{
    QRandomGenerator &random = *QRandomGenerator::system();
    for (int attempt = 0; attempt < kAttempts && !isValid(); ++attempt) {
        const QString prefix =
            QStringLiteral("127.%1.%2.").arg(random.bounded(1, 255)).arg(random.bounded(1, 255));
        m_firstPort = random.bounded(kLowestPort, kHighestPort);
        if (areFree(prefix, nodes, m_firstPort))
            m_prefix = prefix;
    }
}

QString LoopbackNet::endpoint(int node, Port port) const
{
    return QStringLiteral("%1:%2").arg(address(node)).arg(this->port(port));
}

QString LoopbackNet::group() const
{
    QStringList endpoints;
    for (int node = 1; node <= m_nodes; ++node)
        endpoints += endpoint(node, Port::Group);
    return "gcomm://" + endpoints.join(',');
}
