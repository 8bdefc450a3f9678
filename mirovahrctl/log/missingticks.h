#pragma once

#include "mirovahrctl/log/loghistory.h"

#include <vector>

/// A time without a tick, or without a synchronisation, although one was due.
struct MissingTick {
    bool ofSynchronisation = false;
    qint64 last = 0; ///< the one before it, in Unix seconds
    qint64 next = 0; ///< the one after it; the end of the log when \a isOpen
    bool isOpen = false; ///< none has come since
    qint64 period = 0; ///< the usual one, in seconds
};

/// Those of a log, judged by its own usual periods: what comes too seldom to have one, or has no
/// times, misses nothing.
std::vector<MissingTick> missingTicks(const LogHistory &history);
