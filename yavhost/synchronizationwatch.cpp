#include "yavhost/synchronizationwatch.h"

#include "yavhost/exitstatus.h"

#include <QThread>

namespace {

struct DecisiveMessage {
    const char *begin;
    ExitStatus status;
};

// The end of a synchronisation is a debug message: the plugin's debug level must be 1 at least.
constexpr DecisiveMessage kDecisiveMessages[] = {
    {"MHRWorker: END synchronization #", ExitStatus::Success},
    {"MHRWorker::checkSync() - database not open!", ExitStatus::NoDatabase},
    {"MHRWorker: load people from TEPDB failed - synchronization terminated!",
     ExitStatus::NoPeople},
    {"MirovaHR is DISABLED", ExitStatus::Disabled},
};

} // namespace

void SynchronizationWatch::inspect(const QString &message)
{
    for (const DecisiveMessage &decisive : kDecisiveMessages) {
        if (message.startsWith(QLatin1String(decisive.begin)) && !m_over.exchange(true))
            finish(static_cast<int>(decisive.status));
    }
}

void SynchronizationWatch::finish(int exitStatus)
{
    Q_EMIT over(exitStatus);
    if (QThread::currentThread() != thread())
        m_stopped.acquire();
}
