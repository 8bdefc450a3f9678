#include "privatedb/commandrun.h"

#include "privatedb/boundprocess.h"
#include "privatedb/environment.h"
#include "privatedb/privatemariadb.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
constexpr int kCommandNotStarted = 127;
constexpr int kEndedBySignal = 128;

int g_pipe[2];
volatile std::sig_atomic_t g_signal = 0;

void noteSignal(int number)
{
    g_signal = number;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(g_pipe[1], &byte, 1);
}

QProcessEnvironment commandEnvironment(const PrivateMariaDb &server)
{
    QProcessEnvironment environment = environmentWithoutServers();
    environment.insert(QStringLiteral("MIROVAHR_DB_SOCKET"), server.socketPath());
    environment.insert(QStringLiteral("MIROVAHR_DB_NAME"), server.databaseName());
    environment.insert(QStringLiteral("MIROVAHR_DB_USER"), server.userName());
    environment.insert(QStringLiteral("MIROVAHR_DB_PASSWORD_FILE"), server.passwordFile());
    return environment;
}

} // namespace

CommandRun::CommandRun()
{
    if (::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe for signals");
    m_notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &CommandRun::passSignalOn);
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    for (const int number : kSignals)
        ::sigaction(number, &action, nullptr);
}

CommandRun::~CommandRun()
{
    for (const int number : kSignals)
        ::signal(number, SIG_DFL);
    delete m_notifier;
    ::close(g_pipe[0]);
    ::close(g_pipe[1]);
}

bool CommandRun::interrupted() const
{
    return g_signal != 0;
}

int CommandRun::interruptedStatus() const
{
    return kEndedBySignal + g_signal;
}

int CommandRun::run(const QStringList &command, const PrivateMariaDb &server)
{
    BoundProcess process(SIGTERM, BoundProcess::Group::WithParent);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    process.setProcessEnvironment(commandEnvironment(server));
    process.start(command.first(), command.mid(1));
    if (!process.waitForStarted(-1)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(command.first()),
                     qPrintable(process.errorString()));
        return kCommandNotStarted;
    }
    m_process = &process;
    QEventLoop loop;
    connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
            &QEventLoop::quit);
    if (process.state() != QProcess::NotRunning)
        loop.exec();
    m_process = nullptr;
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode()
                                                        : kEndedBySignal + process.exitCode();
}

void CommandRun::passSignalOn()
{
    char bytes[16];
    while (::read(g_pipe[0], bytes, sizeof bytes) > 0) { }
    if (m_process)
        m_process->terminate();
}
