#pragma once

#include <optional>

struct DbColumn;

/// The whole numbers that a column holds, from the least to the greatest.
struct ColumnRange {
    double from = 0;
    double to = 0;

    bool holds(const ColumnRange &other) const { return from <= other.from && other.to <= to; }

    /// Nothing for a column that is not for numbers.
    static std::optional<ColumnRange> of(const DbColumn &column);
};
