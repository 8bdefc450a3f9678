#include "privatedb/commandrun.h"

#include "privatedb/boundprocess.h"
#include "privatedb/environment.h"
#include "privatedb/privatemariadb.h"

#include <QEventLoop>

#include <csignal>
#include <cstdio>

namespace {

constexpr int kCommandNotStarted = 127;
constexpr int kEndedBySignal = 128;

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
    : m_signals{SIGINT, SIGTERM, SIGHUP}
{
    connect(&m_signals, &UnixSignals::received, this, &CommandRun::passSignalOn);
}

bool CommandRun::interrupted() const
{
    return m_signals.last() != 0;
}

int CommandRun::interruptedStatus() const
{
    return kEndedBySignal + m_signals.last();
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
    if (m_process)
        m_process->terminate();
}
