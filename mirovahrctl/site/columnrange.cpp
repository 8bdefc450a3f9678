#include "mirovahrctl/site/columnrange.h"

#include "mirovahrctl/site/dbschema.h"

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

bool isUnsigned(const DbColumn &column)
{
    return column.fullType.contains(QLatin1String("unsigned"));
}

ColumnRange symmetric(const DbColumn &column, double greatest)
{
    return {isUnsigned(column) ? 0 : -greatest, greatest};
}

ColumnRange integers(const DbColumn &column, int bits)
{
    const double half = std::ldexp(1.0, bits - 1);
    if (isUnsigned(column))
        return {0, 2 * half - 1};
    return {-half, half - 1};
}

} // namespace

std::optional<ColumnRange> ColumnRange::of(const DbColumn &column)
{
    for (const IntegerType &type : kIntegers) {
        if (column.type == QLatin1String(type.name))
            return integers(column, type.bits);
    }
    for (const IntegerType &type : kFloatingPoint) {
        if (column.type == QLatin1String(type.name))
            return symmetric(column, std::ldexp(1.0, type.bits));
    }
    if (column.type == QLatin1String("decimal"))
        return symmetric(column, std::pow(10.0, column.wholeDigits) - 1);
    return std::nullopt;
}
