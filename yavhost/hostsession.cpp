#include "yavhost/hostsession.h"

#include "plugin/interfaces/serverinterface.h"
#include "yavhost/hostoutput.h"

#include <QCoreApplication>

#include <algorithm>
#include <csignal>

HostSession::HostSession(const HostOptions &options)
    : m_options(options)
    , m_signals({SIGINT, SIGTERM, SIGUSR1, SIGUSR2})
    , m_log(options.debugLevel > 0, observer())
    , m_database(options.database, QStringLiteral("yavhost"))
    , m_plugin(options.library)
{
    QObject::connect(&m_signals, &UnixSignals::received, &m_signals,
                     [this](int signalNumber) { handleSignal(signalNumber); });
    // Queued: it comes from the plugin's thread, or before the event loop runs.
    QObject::connect(
        &m_watch, &SynchronizationWatch::over, QCoreApplication::instance(),
        [](int status) { QCoreApplication::exit(status); }, Qt::QueuedConnection);
}

LogPrinter::Observer HostSession::observer()
{
    if (!m_options.once) {
        return {};
    }
    return [this](const QString &text) {
        m_watch.inspect(text);
    };
}

ExitStatus HostSession::run()
{
    if (!m_plugin.load()) {
        m_detail = m_plugin.errorString();
        return ExitStatus::NoPlugin;
    }
    if (!openDatabase())
        return ExitStatus::NoDatabase;
    if (!startPlugin())
        return ExitStatus::NotStarted;
    printInfo(QStringLiteral("The plugin is started."));
    const auto status = static_cast<ExitStatus>(QCoreApplication::exec());
    m_plugin.server()->stop();
    m_watch.letGo();
    m_plugin.unload();
    printInfo(QStringLiteral("The plugin is unloaded."));
    return status;
}

// A server runs without its database, too: the plugin opens a connection of its own at every tick.
bool HostSession::openDatabase()
{
    if (m_database.open())
        return true;
    if (m_options.once) {
        m_detail = m_database.errorString();
        return false;
    }
    printFailure(ExitStatus::NoDatabase, m_database.errorString());
    return true;
}

bool HostSession::startPlugin()
{
    // --once waits for the end of a synchronisation, which is logged from level 1 on.
    const unsigned char leastLevel = m_options.once ? 1 : 0;
    ServerInterface *server = m_plugin.server();
    server->setDebugLevel(std::max(m_options.debugLevel, leastLevel));
    server->setDatabase(m_database.handle());
    return server->start();
}

void HostSession::handleSignal(int signalNumber)
{
    switch (signalNumber) {
    case SIGUSR1:
        m_plugin.server()->pause();
        break;
    case SIGUSR2:
        m_plugin.server()->resume();
        break;
    default:
        QCoreApplication::exit(
            static_cast<int>(m_options.once ? ExitStatus::Interrupted : ExitStatus::Success));
    }
}
