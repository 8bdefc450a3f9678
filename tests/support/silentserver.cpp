#include "tests/support/silentserver.h"

#include <cerrno>
#include <cstring>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

sockaddr_in loopback()
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

} // namespace

SilentServer::SilentServer()
    : m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    // The kernel accepts the clients that nobody takes from the queue.
    const sockaddr_in address = loopback();
    if (::bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        || ::listen(m_listener, 8) != 0)
        qFatal("No server on 127.0.0.1: %s", std::strerror(errno));
}

SilentServer::~SilentServer()
{
    ::close(m_listener);
}

quint16 SilentServer::port() const
{
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    if (::getsockname(m_listener, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        qFatal("The server on 127.0.0.1 has no port: %s", std::strerror(errno));
    return ntohs(address.sin_port);
}
