#include "tests/worker/service/randomhost.h"

#include "plugin/interfaces/serverinterface.h"

#include <QEvent>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>

namespace {

thread_local QObject *t_worker = nullptr;

} // namespace

bool WorkerWatchingApplication::notify(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::ThreadChange && receiver->inherits("MHRWorker"))
        t_worker = receiver;
    return QCoreApplication::notify(receiver, event);
}

RandomHost::RandomHost(const QString &library, const QSqlDatabase &database, uint seed,
                       ThreadMessages &messages)
    : m_library(library)
    , m_database(database)
    , m_random(seed)
    , m_messages(messages)
{
    if (!m_database.open())
        qFatal("%s", qPrintable(m_database.lastError().text()));
}

RandomHost::~RandomHost()
{
    unload();
}

void RandomHost::live(uint steps)
{
    for (uint i = 0; i < steps; ++i)
        step();
    unload();
}

void RandomHost::settle()
{
    load();
    m_plugin->start();
    force();
    QMetaObject::invokeMethod(t_worker, "checkSync", Qt::BlockingQueuedConnection);
    unload();
}

void RandomHost::step()
{
    if (m_plugin == nullptr) {
        load();
        return;
    }
    switch (random(12)) {
    case 0:
    case 1:
        m_plugin->start();
        break;
    case 2:
        m_plugin->stop();
        break;
    case 3:
        m_plugin->pause();
        break;
    case 4:
        m_plugin->resume();
        break;
    case 5:
    case 6:
        force();
        break;
    case 7:
        unloadWithinATick();
        break;
    case 8:
        unload();
        break;
    default:
        queueTick();
    }
}

void RandomHost::load()
{
    // By its usual hints a loader leaves the code in memory when it unloads. It has to be so here:
    // to a race detector the memory of one library is still its own when another is mapped there.
    m_loader = std::make_unique<QPluginLoader>(m_library);
    m_plugin = qobject_cast<ServerInterface *>(m_loader->instance());
    if (m_plugin == nullptr)
        qFatal("%s", qPrintable(m_loader->errorString()));
    m_debugLevel = random(4);
    t_worker = nullptr;
    m_plugin->setDebugLevel(static_cast<unsigned char>(m_debugLevel));
    m_plugin->setDatabase(m_database);
}

void RandomHost::unload()
{
    if (m_plugin == nullptr)
        return;
    const QThread *const thread = t_worker == nullptr ? nullptr : t_worker->thread();
    m_plugin = nullptr;
    t_worker = nullptr;
    m_loader->unload();
    m_messages.forget(thread);
}

/// After so many messages of a tick, if the debug level gives that many.
void RandomHost::unloadWithinATick()
{
    constexpr uint kMessages[] = {0, 1, 12, 20};
    if (t_worker != nullptr && m_debugLevel > 0) {
        const QThread *const thread = t_worker->thread();
        const int before = m_messages.count(thread);
        queueTick();
        m_messages.waitFor(thread, before + 1 + int(random(kMessages[m_debugLevel])));
    }
    unload();
}

void RandomHost::force()
{
    QSqlQuery query(m_database);
    if (!query.exec("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'"))
        qFatal("%s", qPrintable(query.lastError().text()));
}

void RandomHost::queueTick()
{
    if (t_worker != nullptr)
        QMetaObject::invokeMethod(t_worker, "checkSync", Qt::QueuedConnection);
}
