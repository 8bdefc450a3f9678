#pragma once

#include <optional>

struct DbColumn;

/// The range of whole numbers that a column can hold, both ends included.
struct ColumnRange {
    double from = 0;
    double to = 0;

    /// Whether the other range lies within this one.
    bool holds(const ColumnRange &other) const { return from <= other.from && other.to <= to; }

    /// Nothing for a column that is not numeric.
    static std::optional<ColumnRange> of(const DbColumn &column);
};
