#include "tests/worker/support/inthreadof.h"

#include "tests/support/patience.h"

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace {

// The two threads meet in this lock and not only in Qt, whose own locks a race detector does not
// see. Hence a function without data of its own is what passes between them.
std::mutex g_taskMutex;
std::condition_variable g_done;
const std::function<void()> *g_task = nullptr;

void runTask()
{
    const std::lock_guard<std::mutex> lock(g_taskMutex);
    (*g_task)();
    g_task = nullptr;
    g_done.notify_one();
}

} // namespace

void runInThreadOf(QObject *object, const std::function<void()> &task)
{
    std::unique_lock<std::mutex> lock(g_taskMutex);
    g_task = &task;
    QMetaObject::invokeMethod(
        object, [] { runTask(); }, Qt::QueuedConnection);
    if (!g_done.wait_for(lock, std::chrono::milliseconds(kPatienceMs),
                         [] { return g_task == nullptr; })) {
        qFatal("The object's thread does not run the task.");
    }
}
