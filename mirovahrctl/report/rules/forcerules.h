#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of force.
namespace ForceRules {

inline constexpr Rule kChangedMeanwhile{
    "changed-meanwhile", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "Somebody else, or a synchronisation, changed the flag at the same time."),
    QT_TRANSLATE_NOOP("Text", "Try again.")};

inline constexpr Rule kDisabled{
    "disabled", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The plugin is switched off, so it does not tick."),
    QT_TRANSLATE_NOOP("Text", "Set enabled to 1 and restart the attendance server.")};

inline constexpr Rule kNoExport{
    "no-export", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "There is no export now; without one the flag is cleared and nothing is synchronised."),
    QT_TRANSLATE_NOOP("Text", "Put the export there and set the flag again.")};

inline constexpr Rule kTestMode{
    "test-mode", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Test mode is on: people are only logged, not written."),
    QT_TRANSLATE_NOOP("Text", "Set testMode to 0 and restart the attendance server.")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kChangedMeanwhile,
    &kDisabled,
    &kNoExport,
    &kTestMode,
};

} // namespace ForceRules
