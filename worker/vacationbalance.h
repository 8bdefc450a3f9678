#pragma once

#include <QtGlobal>

/// Arithmetic of the vacation balance. Pure functions.
namespace VacationBalance {

/// True when attendance whose calculation began at \a calc (`people.calc`, Unix seconds, 0 for
/// none) counts as being calculated at \a now: for 899 seconds.
bool isCalculating(qint64 calc, qint64 now);

/// The fund move that brings the balance `current` (hundredths of a day) to the HR balance in days,
/// which counts in hundredths truncated toward zero. False when there is no such move: the HR
/// balance is not finite, or it or the move does not fit 32 bits; `value` is then saturated, and 0
/// for a balance that is not a number.
bool correction(double days, qint64 current, qint32 &value);

} // namespace VacationBalance
