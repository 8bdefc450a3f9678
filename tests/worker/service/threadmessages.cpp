#include "tests/worker/service/threadmessages.h"

#include "tests/support/patience.h"

#include <QMap>
#include <QThread>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace {

/// A tick of many people takes its time under a race detector.
constexpr std::chrono::milliseconds kPatience(2 * kPatienceMs);

std::mutex g_mutex;
std::condition_variable g_arrival;
QMap<const QThread *, int> g_counts;
int g_openSynchronisations = 0;
QStringList g_complaints;
QtMessageHandler g_previous = nullptr;

void handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    ++g_counts[QThread::currentThread()];
    if (text.startsWith("MHRWorker: BEGIN synchronization"))
        ++g_openSynchronisations;
    if (text.startsWith("MHRWorker: END synchronization"))
        --g_openSynchronisations;
    if (type != QtDebugMsg && type != QtInfoMsg)
        g_complaints += text;
    g_arrival.notify_all();
}

} // namespace

ThreadMessages::ThreadMessages()
{
    g_counts.clear();
    g_openSynchronisations = 0;
    g_complaints.clear();
    g_previous = qInstallMessageHandler(handle);
}

ThreadMessages::~ThreadMessages()
{
    qInstallMessageHandler(g_previous);
}

int ThreadMessages::count(const QThread *thread) const
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_counts.value(thread);
}

void ThreadMessages::waitFor(const QThread *thread, int count) const
{
    std::unique_lock<std::mutex> lock(g_mutex);
    if (!g_arrival.wait_for(lock, kPatience, [&] { return g_counts.value(thread) >= count; }))
        qFatal("A worker does not log what it does");
}

void ThreadMessages::forget(const QThread *thread)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_counts.remove(thread);
}

int ThreadMessages::openSynchronisations() const
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_openSynchronisations;
}

QStringList ThreadMessages::complaints() const
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_complaints;
}
