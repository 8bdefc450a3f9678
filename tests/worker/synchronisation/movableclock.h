#pragma once

#include <QByteArray>

/// The clock of this program. It runs as the machine's does until it is put somewhere, and then
/// stands still there.
///
/// Only the time of day is moved: timers and time limits run on. The programs that this one starts
/// have the machine's clock. For a server it would be too much: its threads wait for moments.
class MovableClock {
public:
    /// Starts the program anew with a clock that can be moved. To be called first in main().
    static void install(char **arguments);

    /// Unix seconds of "2025-12-31T23:59:59+01:00".
    static qint64 seconds(const QByteArray &moment);

    /// As seconds() has it.
    static void standAt(const QByteArray &moment);
    static void standAt(qint64 seconds);
    static void run();
};
