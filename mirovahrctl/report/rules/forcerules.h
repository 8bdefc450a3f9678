#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of force.
namespace ForceRules {

inline constexpr Rule kChangedMeanwhile{
    "changed-meanwhile", Severity::Warning,
    "Somebody else, or a synchronisation, changed the flag at the same time.", "Try again."};

inline constexpr Rule kDisabled{"disabled", Severity::Warning,
                                "The plugin is switched off, so it does not tick.",
                                "Set enabled to 1 and restart the attendance server."};

inline constexpr Rule kNoExport{
    "no-export", Severity::Warning,
    "There is no export now; without one the flag is cleared and nothing is synchronised.",
    "Put the export there and set the flag again."};

inline constexpr Rule kTestMode{"test-mode", Severity::Warning,
                                "Test mode is on: people are only logged, not written.",
                                "Set testMode to 0 and restart the attendance server."};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kChangedMeanwhile,
    &kDisabled,
    &kNoExport,
    &kTestMode,
};

} // namespace ForceRules
