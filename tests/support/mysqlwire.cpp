#include "tests/support/mysqlwire.h"

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int kHeaderSize = 4;

/// Of the status flags: another result follows this one.
constexpr quint16 kMoreResults = 0x0008;

quint16 number16(const QByteArray &bytes, int at)
{
    return quint16(quint8(bytes.at(at)) | quint8(bytes.at(at + 1)) << 8);
}

/// Steps over a number of one to nine bytes, whose first byte says how many they are.
int behindNumber(const QByteArray &bytes, int at)
{
    switch (quint8(bytes.at(at))) {
    case 0xfc:
        return at + 3;
    case 0xfd:
        return at + 4;
    case 0xfe:
        return at + 9;
    default:
        return at + 1;
    }
}

/// The status flags of an "OK" packet: behind the changed rows and the last id.
quint16 statusOfOk(const QByteArray &payload)
{
    return number16(payload, behindNumber(payload, behindNumber(payload, 1)));
}

/// The status flags of the packet that ends a list: behind the warnings.
quint16 statusOfEnd(const QByteArray &payload)
{
    return number16(payload, 3);
}

class AnswerPassage {
public:
    AnswerPassage(MySqlWire &server, MySqlWire *client)
        : m_server(server)
        , m_client(client)
    {
    }

    bool next(MySqlPacket &packet)
    {
        if (!m_server.read(packet))
            return false;
        // The answer is read to its end even when the client is gone.
        if (m_client != nullptr && !m_client->write(packet))
            m_client = nullptr;
        return true;
    }

    /// Columns or rows up to their end or to an error.
    bool list(MySqlPacket &last)
    {
        do {
            if (!next(last))
                return false;
        } while (!last.isEnd() && !last.isError());
        return true;
    }

    bool results(MySqlPacket &first)
    {
        quint16 status = 0;
        if (!next(first) || !restOfResult(first, status))
            return false;
        while ((status & kMoreResults) != 0) {
            MySqlPacket head;
            if (!next(head) || !restOfResult(head, status))
                return false;
        }
        return true;
    }

    bool prepared(MySqlPacket &first)
    {
        if (!next(first) || first.isError())
            return m_server.isConnected();
        const quint16 columns = number16(first.payload, 5);
        const quint16 parameters = number16(first.payload, 7);
        MySqlPacket last;
        return (parameters == 0 || list(last)) && (columns == 0 || list(last));
    }

private:
    /// \a status gets the flags of the result, none after an error.
    bool restOfResult(const MySqlPacket &head, quint16 &status)
    {
        status = 0;
        if (head.isError())
            return true;
        if (head.payload.at(0) == '\0') {
            status = statusOfOk(head.payload);
            return true;
        }
        MySqlPacket last;
        const bool whole = list(last) && (last.isError() || list(last));
        if (whole && last.isEnd())
            status = statusOfEnd(last.payload);
        return whole;
    }

    MySqlWire &m_server;
    MySqlWire *m_client;
};

} // namespace

int MySqlPacket::errorNumber() const
{
    return isError() ? number16(payload, 1) : 0;
}

MySqlPacket MySqlPacket::error(quint8 sequence, int number, const QByteArray &sqlState,
                               const QByteArray &text)
{
    MySqlPacket packet;
    packet.sequence = sequence;
    packet.payload += '\xff';
    packet.payload += char(number & 0xff);
    packet.payload += char(number >> 8);
    packet.payload += '#' + sqlState + text;
    return packet;
}

MySqlWire::MySqlWire(int descriptor)
    : m_descriptor(descriptor)
{
}

MySqlWire::~MySqlWire()
{
    close();
}

int MySqlWire::connectTo(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::connect(descriptor, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0)
        return descriptor;
    ::close(descriptor);
    return -1;
}

bool MySqlWire::read(MySqlPacket &packet)
{
    char header[kHeaderSize];
    if (!readBytes(header, kHeaderSize))
        return false;
    const int size = quint8(header[0]) | quint8(header[1]) << 8 | quint8(header[2]) << 16;
    packet.sequence = quint8(header[3]);
    packet.payload.resize(size);
    return readBytes(packet.payload.data(), size);
}

bool MySqlWire::write(const MySqlPacket &packet)
{
    const int size = packet.payload.size();
    QByteArray bytes;
    bytes.reserve(kHeaderSize + size);
    bytes += char(size & 0xff);
    bytes += char(size >> 8 & 0xff);
    bytes += char(size >> 16 & 0xff);
    bytes += char(packet.sequence);
    bytes += packet.payload;
    // The packets of the tests are far smaller than what a socket takes at once.
    if (isConnected()
        && ::send(m_descriptor, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL)
            == bytes.size())
        return true;
    close();
    return false;
}

void MySqlWire::swallow()
{
    char byte = 0;
    while (readBytes(&byte, 1)) { }
}

bool MySqlWire::readBytes(char *bytes, int count)
{
    if (count == 0)
        return true;
    if (isConnected() && ::recv(m_descriptor, bytes, size_t(count), MSG_WAITALL) == count)
        return true;
    close();
    return false;
}

void MySqlWire::close()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

MySqlCommand::MySqlCommand(const MySqlPacket &packet)
    : code(quint8(packet.payload.at(0)))
{
    if (code == Query || code == Prepare)
        text = packet.payload.mid(1);
}

bool passAnswer(const MySqlCommand &command, MySqlWire &server, MySqlWire *client,
                MySqlPacket &first)
{
    AnswerPassage passage(server, client);
    switch (command.code) {
    case MySqlCommand::Query:
    case MySqlCommand::Execute:
        return passage.results(first);
    case MySqlCommand::Prepare:
        return passage.prepared(first);
    default:
        return passage.next(first);
    }
}
