#include "tools/columnrange.h"

#include "tools/dbschema.h"

#include <cmath>

namespace {

struct IntegerType {
    const char *name;
    int bits;
};

constexpr IntegerType kIntegers[] = {
    {"tinyint", 8}, {"smallint", 16}, {"mediumint", 24}, {"int", 32}, {"bigint", 64},
};

/// What a type with a fraction holds exactly.
constexpr IntegerType kFloatingPoint[] = {{"float", 24}, {"double", 53}};

ColumnRange symmetric(double greatest)
{
    return {-greatest, greatest};
}

} // namespace

std::optional<ColumnRange> ColumnRange::of(const DbColumn &column)
{
    for (const IntegerType &type : kIntegers) {
        if (column.type != QLatin1String(type.name))
            continue;
        if (column.fullType.contains(QLatin1String("unsigned")))
            return ColumnRange{0, std::ldexp(1.0, type.bits) - 1};
        return ColumnRange{-std::ldexp(1.0, type.bits - 1), std::ldexp(1.0, type.bits - 1) - 1};
    }
    for (const IntegerType &type : kFloatingPoint) {
        if (column.type == QLatin1String(type.name))
            return symmetric(std::ldexp(1.0, type.bits));
    }
    if (column.type == QLatin1String("decimal"))
        return symmetric(std::pow(10.0, column.wholeDigits) - 1);
    return std::nullopt;
}
