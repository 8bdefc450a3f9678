#pragma once

#include <QObject>
#include <QString>

#include <atomic>

/// Learns from the plugin's log how its first synchronisation ended. The log is all that a server
/// sees of a plugin's work.
class SynchronizationWatch : public QObject {
    Q_OBJECT

public:
    /// To be called with every message; from any thread. The first telling message decides.
    void inspect(const QString &message);

Q_SIGNALS:
    /// The first synchronisation is over, or there will be none; with an ExitStatus. Sent in the
    /// thread that logged it, while the plugin's tick may still be running.
    void over(int exitStatus);

private:
    std::atomic<bool> m_over{false};
};
