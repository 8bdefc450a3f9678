#include "worker/vacationbalance.h"

#include <cmath>
#include <limits>

namespace {

/// Seconds for which a calculation of attendance counts as running.
constexpr qint64 kCalculationAge = 899;

} // namespace

namespace VacationBalance {

bool isCalculating(qint64 calc, qint64 now)
{
    return calc != 0 && now - kCalculationAge <= calc;
}

bool correction(double days, qint64 current, qint32 &value)
{
    using Limits = std::numeric_limits<qint32>;
    // Truncated, not rounded: 1.15 days are 114 hundredths, because the product is 114.99….
    const double target = std::trunc(days * 100.0);
    if (std::isnan(target)) {
        value = 0;
        return false;
    }
    // Far beyond 32 bits, and so that the difference of any two stays within 64.
    constexpr qint64 kWide = qint64(1) << 61;
    const auto wideTarget = static_cast<qint64>(qBound(double(-kWide), target, double(kWide)));
    const qint64 move = wideTarget - qBound(-kWide, current, kWide);
    value = static_cast<qint32>(qBound(qint64(Limits::min()), move, qint64(Limits::max())));
    return target >= Limits::min() && target <= Limits::max() && value == move;
}

} // namespace VacationBalance
