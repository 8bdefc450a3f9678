#include "worker/schedule.h"

#include <limits>

namespace Schedule {

quint32 tickPeriod(quint32 configured)
{
    return qMax(configured, 1000U);
}

int timerInterval(quint32 tickPeriod)
{
    constexpr quint32 kLongest = std::numeric_limits<int>::max();
    return static_cast<int>(qMin(tickPeriod, kLongest));
}

quint32 ticksPerSynchronisation(quint32 configured)
{
    return qMax(configured, 1U);
}

bool isCommandDue(quint8 condition, bool forced)
{
    return condition >= 2 || (condition == 1 && forced);
}

} // namespace Schedule
