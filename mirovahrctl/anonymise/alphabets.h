#pragma once

#include <QVector>

/// The letters and digits that can take each other's place. Pure functions.
namespace Alphabets {

/// Code points in ascending order.
using Alphabet = QVector<uint>;

/// The letters or digits of the same script and case as this one, with and without accents apart,
/// and as long in UTF-8. Null for a character that is neither letter nor digit.
const Alphabet *of(uint character);

/// The digits that a number can begin with: 1 to 9.
const Alphabet &firstDigits();

} // namespace Alphabets
