#pragma once

#include <QtGlobal>

/// Arithmetic of the vacation balance. Pure functions.
namespace VacationBalance {

/// The fund move that brings the balance `current` (hundredths of a day) to the HR balance in days,
/// which counts in hundredths truncated toward zero. False when there is no such move: the HR
/// balance is not finite, or it or the move does not fit 32 bits; `value` is then saturated, and 0
/// for a balance that is not a number.
bool correction(double days, qint64 current, qint32 &value);

} // namespace VacationBalance
