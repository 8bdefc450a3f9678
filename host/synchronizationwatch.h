#pragma once

#include <QString>

#include <atomic>

/// Learns from the plugin's log how its first synchronisation ended, and then ends the event loop
/// of the application with the matching ExitStatus. The log is all that a server sees of a plugin's
/// work.
class SynchronizationWatch {
public:
    /// To be called with every message; from any thread. The first telling message decides.
    void inspect(const QString &message);

private:
    std::atomic<bool> m_over{false};
};
