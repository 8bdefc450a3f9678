#pragma once

#include <QByteArray>

/// The clock of this program. It runs as the machine's does until standAt() stops it at a moment.
///
/// Only the time of day is affected: timers and time limits run on. Programs that this one starts
/// use the machine's clock. A server could not live with a stopped clock: its threads wait for
/// moments.
class MovableClock {
public:
    /// Restarts the program with a clock that can be moved. Call it first in main().
    static void install(char **arguments);

    /// Unix seconds of "2025-12-31T23:59:59+01:00".
    static qint64 seconds(const QByteArray &moment);

    /// As seconds() has it.
    static void standAt(const QByteArray &moment);
    static void standAt(qint64 seconds);
    static void run();
};
