#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of preview.
namespace PreviewRules {

inline constexpr Rule kDisabled{
    "disabled", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The plugin is switched off, so it would not synchronise at all."),
    QT_TRANSLATE_NOOP("Text", "Set enabled to 1 and start the attendance server again.")};

inline constexpr Rule kNoSnapshot{
    "no-snapshot", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "A table's engine does not support snapshots, so it was not copied at the same moment."),
    QT_TRANSLATE_NOOP("Text", "Run the preview while nobody works with the attendance server.")};

inline constexpr Rule kOtherServer{
    "other-server", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "The copy was on a server of another version than the site's.")};

inline constexpr Rule kPluginError{
    "plugin-error", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The plugin logged an error during the synchronisation."),
    QT_TRANSLATE_NOOP("Text",
                      "The text is that of the plugin's log: docs/operations.md says what it means "
                      "and what to do.")};

inline constexpr Rule kPluginWarning{
    "plugin-warning", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The plugin logged a warning during the synchronisation."),
    QT_TRANSLATE_NOOP("Text",
                      "The text is that of the plugin's log: docs/operations.md says what it means "
                      "and what to do.")};

inline constexpr Rule kTestMode{
    "test-mode", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Test mode is on: people are only logged, not written."),
    QT_TRANSLATE_NOOP("Text", "Set testMode to 0 and start the attendance server again.")};

inline constexpr Rule kTriggersHidden{
    "triggers-hidden", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "The account may not see the triggers of a table, so the preview lacks their effects."),
    QT_TRANSLATE_NOOP("Text", "Run one preview with an account that has TRIGGER on the database.")};

inline constexpr Rule kViewNotCopied{
    "view-not-copied", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "A routine or trigger seems to use a view, which is not copied."),
    QT_TRANSLATE_NOOP("Text", "Check whether the plugin's warnings above mention them.")};

inline constexpr Rule kWholeTables{
    "whole-tables", Severity::Note,
    QT_TRANSLATE_NOOP("Text",
                      "Something may let the plugin reach more rows than by itself, "
                      "so all were copied: it took longer.")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kDisabled, &kNoSnapshot,     &kOtherServer,   &kPluginError, &kPluginWarning,
    &kTestMode, &kTriggersHidden, &kViewNotCopied, &kWholeTables,
};

} // namespace PreviewRules
