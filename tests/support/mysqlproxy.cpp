#include "tests/support/mysqlproxy.h"

#include "tests/support/patience.h"

#include <QFile>
#include <QRegularExpression>

#include <chrono>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>

namespace {

constexpr std::chrono::milliseconds kPatience(kPatienceMs);
/// How long the proxy holds a command: longer than a test waits for anything in the meantime.
constexpr std::chrono::milliseconds kHolding(3 * kPatienceMs);

// Bits of what a server offers in its greeting.
constexpr quint16 kCompression = 0x0020;
constexpr quint16 kTls = 0x0800;
constexpr quint16 kListsWithoutEnd = 0x0100; // of the upper half

/// Of what executes a prepared statement: kind, number of the statement, flags, a count.
constexpr int kBeforeValues = 1 + 4 + 1 + 4;

/// Removes from a greeting the features that the proxy cannot read, so that client and server agree
/// on the plain protocol.
void offerPlainProtocol(QByteArray &greeting)
{
    // Protocol, version text and its end, connection number, scramble, filler.
    const int lower = greeting.indexOf('\0', 1) + 1 + 4 + 8 + 1;
    const int upper = lower + 2 + 1 + 2;
    const int extended = upper + 2 + 1 + 6;
    const auto clear = [&greeting](int at, quint16 bits) {
        greeting[at] = char(quint8(greeting.at(at)) & ~(bits & 0xff));
        greeting[at + 1] = char(quint8(greeting.at(at + 1)) & ~(bits >> 8));
    };
    clear(lower, kCompression | kTls);
    clear(upper, kListsWithoutEnd);
    clear(extended, 0xffff);
    clear(extended + 2, 0xffff);
}

/// The texts among the bytes of a packet.
QString texts(const QByteArray &payload)
{
    QString text = QString::fromLatin1(payload.constData(), payload.size());
    return text.replace(QRegularExpression("[^ -~]"), " ").simplified();
}

MySqlPacket query(const QByteArray &text)
{
    MySqlPacket packet;
    packet.payload = char(MySqlCommand::Query) + text;
    return packet;
}

} // namespace

MySqlProxy::MySqlProxy(const QString &serverSocket)
    : m_serverSocket(QFile::encodeName(serverSocket))
{
    listen();
    m_thread = std::thread([this] { run(); });
}

MySqlProxy::~MySqlProxy()
{
    release();
    resume();
    ::shutdown(m_listener, SHUT_RDWR);
    if (!waitUntilIdle())
        qFatal("A client is still connected to the proxy.");
    m_thread.join();
}

QString MySqlProxy::socketPath() const
{
    return m_folder.filePath("proxy.sock");
}

bool MySqlProxy::waitUntilIdle()
{
    return waitUntil([this] { return !m_serving; });
}

void MySqlProxy::restartCount()
{
    disturb(0, {});
}

void MySqlProxy::disturb(int number, const Disturbance &disturbance)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.clear();
    m_disturbed = number;
    m_disturbedText.clear();
    m_disturbance = disturbance;
    m_arrived = false;
    m_released = false;
    m_over = false;
    m_resumed = false;
}

void MySqlProxy::disturb(const QString &text, const Disturbance &disturbance)
{
    disturb(0, disturbance);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_disturbedText = text;
}

bool MySqlProxy::waitForArrival()
{
    return waitUntil([this] { return m_arrived; });
}

void MySqlProxy::release()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_released = true;
    m_changed.notify_all();
}

bool MySqlProxy::waitForEnd()
{
    return waitUntil([this] { return m_over; });
}

void MySqlProxy::resume()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_resumed = true;
    m_changed.notify_all();
}

QVector<MySqlProxy::Command> MySqlProxy::commands() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return QVector<Command>(m_commands.begin(), m_commands.end());
}

void MySqlProxy::disappear()
{
    QFile::rename(socketPath(), socketPath() + ".hidden");
}

void MySqlProxy::appear()
{
    QFile::rename(socketPath() + ".hidden", socketPath());
}

void MySqlProxy::listen()
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray path = QFile::encodeName(socketPath());
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(m_listener, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0
        || ::listen(m_listener, 8) != 0) {
        qFatal("%s: %s", path.constData(), std::strerror(errno));
    }
}

void MySqlProxy::run()
{
    const MySqlWire listener(m_listener);
    for (;;) {
        MySqlWire client(::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC));
        if (!client.isConnected())
            return;
        setServing(true);
        serve(client);
        setServing(false);
    }
}

void MySqlProxy::setServing(bool serving)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_serving = serving;
    m_changed.notify_all();
}

void MySqlProxy::serve(MySqlWire &client)
{
    MySqlWire server(MySqlWire::connectTo(m_serverSocket));
    if (!logIn(client, server))
        return;
    MySqlPacket request;
    while (client.read(request) && passCommand(request, client, server)) { }
}

bool MySqlProxy::logIn(MySqlWire &client, MySqlWire &server)
{
    MySqlPacket greeting;
    if (!server.read(greeting))
        return false;
    offerPlainProtocol(greeting.payload);
    MySqlPacket request;
    if (!client.write(greeting) || !client.read(request))
        return false;

    Command command;
    command.text = "CONNECT";
    return treat(command, request, client, server, [&](MySqlWire *answered, MySqlPacket &answer) {
        return server.read(answer) && (answered == nullptr || answered->write(answer));
    });
}

bool MySqlProxy::passCommand(const MySqlPacket &request, MySqlWire &client, MySqlWire &server)
{
    const MySqlCommand sent(request);
    if (sent.code == MySqlCommand::Prepare)
        m_preparedText = QString::fromUtf8(sent.text);
    Command command;
    command.hasAnswer = sent.hasAnswer();
    command.text = textOf(sent, request);
    const bool goesOn =
        treat(command, request, client, server, [&](MySqlWire *answered, MySqlPacket &first) {
            return passAnswer(sent, server, answered, first);
        });
    // A program that was started meanwhile has inherited the client's end of the socket.
    return goesOn && sent.code != MySqlCommand::Quit;
}

QString MySqlProxy::textOf(const MySqlCommand &sent, const MySqlPacket &request) const
{
    switch (sent.code) {
    case MySqlCommand::Quit:
        return "QUIT";
    case MySqlCommand::UseDatabase:
        return "USE";
    case MySqlCommand::Query:
        return QString::fromUtf8(sent.text);
    case MySqlCommand::Prepare:
        return "PREPARE " + m_preparedText;
    case MySqlCommand::Execute:
        return "EXECUTE " + m_preparedText + " << " + texts(request.payload.mid(kBeforeValues));
    case MySqlCommand::ResetStatement:
        return "RESET";
    case MySqlCommand::CloseStatement:
        return "CLOSE";
    default:
        qFatal("The proxy does not know the command %d", sent.code);
    }
}

bool MySqlProxy::treat(const Command &command, const MySqlPacket &request, MySqlWire &client,
                       MySqlWire &server, const Exchange &exchange)
{
    Disturbance disturbance;
    const int index = arrive(command, disturbance);
    if (disturbance.way == Disturbance::Way::Refuse) {
        refuse(disturbance, request, client, server);
        leave(index, false, disturbance.errorNumber);
        return true;
    }

    const bool cut = disturbance.way != Disturbance::Way::Forward;
    const bool hushed = disturbance.way == Disturbance::Way::Hush;
    MySqlPacket answer;
    bool done = false;
    if (disturbance.way != Disturbance::Way::CutBefore) {
        done = server.write(request)
            && (!command.hasAnswer || exchange(cut ? nullptr : &client, answer));
    }
    if (cut && !hushed) {
        client.close();
        server.close();
    }
    leave(index, done && !answer.isError(), answer.errorNumber());
    if (!cut)
        holdUntilResumed(index);
    if (hushed)
        client.swallow();
    return done && !cut;
}

void MySqlProxy::refuse(const Disturbance &disturbance, const MySqlPacket &request,
                        MySqlWire &client, MySqlWire &server)
{
    if (disturbance.rollsBack) {
        const MySqlPacket rollback = query("ROLLBACK");
        MySqlPacket answer;
        if (server.write(rollback))
            passAnswer(MySqlCommand(rollback), server, nullptr, answer);
    }
    client.write(MySqlPacket::error(quint8(request.sequence + 1), disturbance.errorNumber,
                                    disturbance.sqlState, disturbance.errorText));
}

int MySqlProxy::arrive(const Command &command, Disturbance &disturbance)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_commands.append(command);
    if (!m_disturbedText.isEmpty() && m_disturbed == 0 && command.text.startsWith(m_disturbedText))
        m_disturbed = m_commands.size();
    if (m_commands.size() == m_disturbed) {
        disturbance = m_disturbance;
        m_arrived = true;
        m_changed.notify_all();
        holdUntil(m_released, lock);
    }
    return m_commands.size() - 1;
}

void MySqlProxy::leave(int index, bool carriedOut, int error)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands[index].carriedOut = carriedOut;
    m_commands[index].error = error;
    m_over = m_over || index + 1 == m_disturbed;
    m_changed.notify_all();
}

void MySqlProxy::holdUntilResumed(int index)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (index + 1 == m_disturbed)
        holdUntil(m_resumed, lock);
}

void MySqlProxy::holdUntil(const bool &freed, std::unique_lock<std::mutex> &lock)
{
    if (!m_changed.wait_for(lock, kHolding, [&freed] { return freed; }))
        qFatal("The test leaves the disturbed command at the proxy.");
}

bool MySqlProxy::waitUntil(const std::function<bool()> &reached)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, kPatience, reached);
}
