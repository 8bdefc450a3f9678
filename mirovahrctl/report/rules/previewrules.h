#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of preview.
namespace PreviewRules {

inline constexpr Rule kDisabled{"disabled", Severity::Warning,
                                "The plugin is switched off, so it would not synchronise at all.",
                                "Set enabled to 1 and start the attendance server again."};

inline constexpr Rule kNoSnapshot{
    "no-snapshot", Severity::Note,
    "A table's engine does not support snapshots, so it was not copied at the same moment.",
    "Run the preview while nobody works with the attendance server."};

inline constexpr Rule kOtherServer{"other-server", Severity::Note,
                                   "The copy was on a server of another version than the site's."};

inline constexpr Rule kPluginError{
    "plugin-error", Severity::Error, "The plugin logged an error during the synchronisation.",
    "The text is that of the plugin's log: docs/operations.md says what it means and what to do."};

inline constexpr Rule kPluginWarning{
    "plugin-warning", Severity::Warning, "The plugin logged a warning during the synchronisation.",
    "The text is that of the plugin's log: docs/operations.md says what it means and what to do."};

inline constexpr Rule kTestMode{"test-mode", Severity::Warning,
                                "Test mode is on: people are only logged, not written.",
                                "Set testMode to 0 and start the attendance server again."};

inline constexpr Rule kTriggersHidden{
    "triggers-hidden", Severity::Note,
    "The account may not see the triggers of a table, so the preview lacks their effects.",
    "Run one preview with an account that has TRIGGER on the database."};

inline constexpr Rule kViewNotCopied{
    "view-not-copied", Severity::Note,
    "A routine or trigger seems to use a view, which is not copied.",
    "Check whether the plugin's warnings above mention them."};

inline constexpr Rule kWholeTables{"whole-tables", Severity::Note,
                                   "Something may let the plugin reach more rows than by itself, "
                                   "so all were copied: it took longer."};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kDisabled, &kNoSnapshot,     &kOtherServer,   &kPluginError, &kPluginWarning,
    &kTestMode, &kTriggersHidden, &kViewNotCopied, &kWholeTables,
};

} // namespace PreviewRules
