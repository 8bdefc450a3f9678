#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of log.
namespace LogRules {

inline constexpr Rule kInterrupted{
    "interrupted", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "Statements failed by a deadlock, a lock's timeout, a lost connection or a node "
        "that was not ready."),
    QT_TRANSLATE_NOOP(
        "Text",
        "What they were to write may be missing for good: force a synchronisation with the same "
        "export, then run mirovahrctl drift. Look out for more: a failed COMMIT is not logged.")};

inline constexpr Rule kLoggedError{
    "logged-error", Severity::Error, QT_TRANSLATE_NOOP("Text", "The plugin logged an error."),
    QT_TRANSLATE_NOOP(
        "Text",
        "The finding says what was lost and what to do; docs/operations.md lists every text.")};

inline constexpr Rule kLoggedWarning{
    "logged-warning", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "The plugin logged a warning. It is a note when nothing has to be done."),
    QT_TRANSLATE_NOOP(
        "Text",
        "The finding says what was lost and what to do; docs/operations.md lists every text."),
    Severity::Note};

inline constexpr Rule kNoEnd{
    "no-end", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "A synchronisation began and did not end. It is a note when it may still be running."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Look for what ended the attendance server; then provide the export again, and force."),
    Severity::Note};

inline constexpr Rule kNoBegin{
    "no-begin", Severity::Note,
    QT_TRANSLATE_NOOP("Text",
                      "The log begins within a synchronisation: its counts are not known.")};

inline constexpr Rule kNoTick{
    "no-tick", Severity::Warning, QT_TRANSLATE_NOOP("Text", "A tick that was due did not come."),
    QT_TRANSLATE_NOOP(
        "Text", "Look for what stopped the attendance server, or the machine, at that time.")};

inline constexpr Rule kNoSynchronisation{
    "no-synchronisation", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The log shows no synchronisation, or none when one was due."),
    QT_TRANSLATE_NOOP(
        "Text",
        "See whether the attendance server runs with the plugin, at debug level 1 at least.")};

inline constexpr Rule kUnknownLine{
    "unknown-line", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "Lines begin like those of the plugin, but are none that this program knows."),
    QT_TRANSLATE_NOOP("Text",
                      "They are cut, or the plugin is of another version: read them yourself.")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kInterrupted, &kLoggedError, &kLoggedWarning,     &kNoEnd,
    &kNoBegin,     &kNoTick,      &kNoSynchronisation, &kUnknownLine,
};

} // namespace LogRules
