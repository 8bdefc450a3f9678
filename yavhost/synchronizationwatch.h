#pragma once

#include <QObject>
#include <QSemaphore>
#include <QString>

#include <atomic>

/// Finds in the plugin's log how its first synchronisation ended. The log is all that a server sees
/// of a plugin's work.
///
/// A tick that is due by then would begin another synchronisation at once. So the plugin's thread
/// is held where the first one ends, until the plugin was asked to stop.
class SynchronizationWatch : public QObject {
    Q_OBJECT

public:
    /// To be called with every message, from any thread. The first decisive message counts; unless
    /// it comes from the thread of this object, its thread is held until letGo().
    void inspect(const QString &message);

    /// To be called once the plugin was asked to stop.
    void letGo() { m_stopped.release(); }

Q_SIGNALS:
    /// The first synchronisation is over, or there will be none; with an ExitStatus. Sent in the
    /// thread that logged it, while the plugin's tick may still be running.
    void over(int exitStatus);

private:
    void finish(int exitStatus);

    std::atomic<bool> m_over{false};
    QSemaphore m_stopped;
};
