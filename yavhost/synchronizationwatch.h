#pragma once

#include <QObject>
#include <QSemaphore>
#include <QString>

#include <atomic>

/// Learns from the plugin's log how its first synchronisation ended. The log is all that a server
/// sees of a plugin's work.
///
/// A tick that came meanwhile begins another synchronisation as soon as the plugin's thread gets to
/// it. So that thread is held where the first one ends, until the plugin was told to stop.
class SynchronizationWatch : public QObject {
    Q_OBJECT

public:
    /// To be called with every message; from any thread. The first telling message decides: unless
    /// it comes in the thread of this object, it holds its thread until letGo().
    void inspect(const QString &message);

    /// To be called once the plugin was told to stop.
    void letGo() { m_stopped.release(); }

Q_SIGNALS:
    /// The first synchronisation is over, or there will be none; with an ExitStatus. Sent in the
    /// thread that logged it, while the plugin's tick may still be running.
    void over(int exitStatus);

private:
    void tell(int exitStatus);

    std::atomic<bool> m_over{false};
    QSemaphore m_stopped;
};
