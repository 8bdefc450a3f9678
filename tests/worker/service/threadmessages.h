#pragma once

#include <QStringList>

class QThread;

/// Counts the messages of the Qt log by the thread that logs them, and keeps those that are
/// warnings or worse. Nothing is printed meanwhile. For one object at a time.
class ThreadMessages {
public:
    ThreadMessages();
    ~ThreadMessages();
    ThreadMessages(const ThreadMessages &) = delete;
    ThreadMessages &operator=(const ThreadMessages &) = delete;

    int count(const QThread *thread) const;
    /// Waits until a thread has logged \a count messages.
    void waitFor(const QThread *thread, int count) const;
    /// Forgets a thread that has ended: a new one may get its address.
    void forget(const QThread *thread);

    /// "begun - ended" synchronisations of all threads.
    int openSynchronisations() const;
    QStringList complaints() const;
};
