#pragma once

#include <QObject>

#include <functional>
#include <mutex>

/// Runs a function in the thread of an object, whose event loop must be running.
class ThreadVisit : public QObject {
    Q_OBJECT

public:
    /// Returns when \a task is done, and all that was queued to that thread before.
    static void run(const QObject *object, const std::function<void()> &task);

private:
    Q_INVOKABLE void visit();

    // The two threads meet in this lock as well, not only in Qt: a race detector sees it.
    std::mutex m_mutex;
    std::function<void()> m_task;
    QThread *m_home = nullptr;
};
