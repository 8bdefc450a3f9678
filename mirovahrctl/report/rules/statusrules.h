#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of status.
namespace StatusRules {

inline constexpr Rule kGateRefused{"gate-refused", Severity::Warning,
                                   "The gate has refused the last file.",
                                   "Until a file is admitted nothing new reaches the plugin."};

inline constexpr Rule kInterrupted{
    "interrupted", Severity::Warning,
    "Statements of the plugin failed through a deadlock, a lock's timeout or a lost connection.",
    "What they were to write may be missing for good: force a synchronisation with the same "
    "export, "
    "then run mirovahrctl drift."};

inline constexpr Rule kTooOld{
    "too-old", Severity::Warning,
    "The last admitted file, or the last trace of the plugin, is too old.",
    "Check the log of the attendance server and what HR delivers.", Severity::Error};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kGateRefused,
    &kInterrupted,
    &kTooOld,
};

} // namespace StatusRules
