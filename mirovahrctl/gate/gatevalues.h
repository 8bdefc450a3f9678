#pragma once

#include "mirovahrctl/gate/gatereason.h"

struct ExportDifferences;
struct GateLimits;

/// The reasons to refuse a file that lie in the values of its fields. Pure functions.
namespace GateValues {

/// Values that the plugin misreads. Without a last admitted file these are all such values.
QVector<GateReason> assessMisread(const ExportDifferences &changes, const GateLimits &limits);

/// Values that differ from those of the last admitted file: changed, emptied, suspicious balances,
/// supervisors.
QVector<GateReason> assessChanged(const ExportDifferences &changes, const GateLimits &limits);

} // namespace GateValues
