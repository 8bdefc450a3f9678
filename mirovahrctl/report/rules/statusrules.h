#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of status.
namespace StatusRules {

inline constexpr Rule kGateRefused{
    "gate-refused", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The gate has refused the last file."),
    QT_TRANSLATE_NOOP("Text", "Until a file is admitted nothing new reaches the plugin.")};

inline constexpr Rule kInterrupted{
    "interrupted", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "Statements failed by a deadlock, a lock's timeout, a lost connection or a node "
        "that was not ready."),
    QT_TRANSLATE_NOOP(
        "Text",
        "What they were to write may be missing for good: force a synchronisation with the same "
        "export, then run mirovahrctl drift.")};

inline constexpr Rule kTooOld{
    "too-old", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "The last admitted file, or the last trace of the plugin, is too old."),
    QT_TRANSLATE_NOOP("Text", "Check the log of the attendance server and what HR delivers."),
    Severity::Error};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kGateRefused,
    &kInterrupted,
    &kTooOld,
};

} // namespace StatusRules
