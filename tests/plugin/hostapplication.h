#pragma once

#include <QCoreApplication>
#include <QVector>

#include <functional>
#include <mutex>

/// The application of a program that runs the built plugin as a server does.
///
/// It sees the events of all objects of the process, and so finds the plugin's private worker.
class HostApplication : public QCoreApplication {
public:
    using QCoreApplication::QCoreApplication;

    static HostApplication *instance();

    bool notify(QObject *receiver, QEvent *event) override;

    /// The last worker that was made; it may be gone. Null before the first.
    QObject *worker() const;
    void forgetWorker();

    // In the worker's thread, after everything that was queued to it before
    // --------------------------

    void runInWorkersThread(const std::function<void()> &task) const;
    void tick() const; ///< As its timer would.
    QVector<int> periods() const; ///< Of its timers, the oldest first, in milliseconds.
    QVector<bool> activity() const; ///< Which of its timers run, the oldest first.

private:
    mutable std::mutex m_mutex;
    QObject *m_worker = nullptr;
};
