#include "tests/cycle/threadvisit.h"

#include <QThread>

void ThreadVisit::run(const QObject *object, const std::function<void()> &task)
{
    ThreadVisit visit;
    {
        const std::lock_guard<std::mutex> lock(visit.m_mutex);
        visit.m_task = task;
        visit.m_home = QThread::currentThread();
    }
    visit.moveToThread(object->thread());
    QMetaObject::invokeMethod(&visit, "visit", Qt::BlockingQueuedConnection);
    const std::lock_guard<std::mutex> lock(visit.m_mutex);
}

void ThreadVisit::visit()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_task();
    moveToThread(m_home);
}
