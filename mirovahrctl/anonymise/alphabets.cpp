#include "mirovahrctl/anonymise/alphabets.h"

#include <QChar>
#include <QHash>

namespace Alphabets {

namespace {

constexpr uint kLastAscii = 0x7F;
/// Of the accented letters that European names are written with.
constexpr uint kLastAccented = 0x17F;
constexpr uint kLastOfTwoBytes = 0x7FF;
constexpr uint kLastOfThreeBytes = 0xFFFF;

uint rangeOf(uint character)
{
    uint range = 0;
    for (const uint last : {kLastAscii, kLastAccented, kLastOfTwoBytes, kLastOfThreeBytes})
        range += character > last ? 1 : 0;
    return range;
}

bool isLetterOrDigit(QChar::Category category)
{
    switch (category) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Letter_Modifier:
    case QChar::Letter_Other:
    case QChar::Number_DecimalDigit:
        return true;
    default:
        return false;
    }
}

/// What an alphabet's members have in common; 0 for a character that belongs to none.
uint kindOf(uint character)
{
    constexpr uint kRanges = 8;
    constexpr uint kCategories = 32;
    const QChar::Category category = QChar::category(character);
    if (!isLetterOrDigit(category))
        return 0;
    return 1 + (uint(QChar::script(character)) * kCategories + category) * kRanges
        + rangeOf(character);
}

QHash<uint, Alphabet> collected()
{
    QHash<uint, Alphabet> alphabets;
    for (uint character = 0; character <= QChar::LastValidCodePoint; ++character) {
        if (const uint kind = kindOf(character); kind != 0)
            alphabets[kind] += character;
    }
    return alphabets;
}

} // namespace

const Alphabet *of(uint character)
{
    static const QHash<uint, Alphabet> alphabets = collected();
    // A byte that is no character lies beyond Unicode, where Qt finds no category.
    const auto alphabet = alphabets.constFind(kindOf(character));
    return alphabet == alphabets.constEnd() ? nullptr : &*alphabet;
}

const Alphabet &firstDigits()
{
    static const Alphabet digits{'1', '2', '3', '4', '5', '6', '7', '8', '9'};
    return digits;
}

} // namespace Alphabets
