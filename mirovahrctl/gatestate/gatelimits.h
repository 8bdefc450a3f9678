#pragma once

#include <QtGlobal>

/// How much of something may change from one file to the next.
struct GateLimit {
    qint64 count = 0;
    double percent = 0;

    /// True when it is more than the count, or more than the percentage of \a whole.
    bool isExceeded(qint64 changed, qint64 whole) const
    {
        return changed > count || double(changed) * 100 > percent * double(whole);
    }
};

/// What the gate lets pass. The defaults suit a few hundred to a few thousand people.
struct GateLimits {
    GateLimit lostLines{50, 5}; ///< of the lines that the plugin reads as people
    GateLimit leaving{50, 5}; ///< of the people who work
    GateLimit moving{100, 10}; ///< of the people who work
};
