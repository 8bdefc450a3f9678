#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of explain.
namespace ExplainRules {

inline constexpr Rule kBalanceNotWritten{
    "balance-not-written", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "No valid correction leads to the balance of the export, so the balance stays."),
    QT_TRANSLATE_NOOP("Text", "One of the two balances is wrong.")};

inline constexpr Rule kBranchIdLarge{
    "branch-id-large", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "The id of the branch exceeds 16 bits; the person joins another branch, or none."),
    QT_TRANSLATE_NOOP("Text", "Give the branch a smaller id.")};

inline constexpr Rule kBranchUnknown{
    "branch-unknown", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "No branch has the number of the cost centre, so the person joins none."),
    QT_TRANSLATE_NOOP("Text",
                      "Give the branch this number, or ask HR to correct the cost centre.")};

inline constexpr Rule kCalculationForward{
    "calculation-forward", Severity::Note,
    QT_TRANSLATE_NOOP("Text",
                      "The last calculation moves forward; days in between may stay uncalculated."),
    QT_TRANSLATE_NOOP("Text",
                      "Recalculate the person's attendance by hand if there are such days.")};

inline constexpr Rule kCalendarUnknown{
    "calendar-unknown", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The branch's master group has no group for the calendar."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Create a group for this calendar in the master group of the branch, or ask HR to "
        "correct the calendar.")};

inline constexpr Rule kDisabled{
    "disabled", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The plugin is switched off, so nobody is synchronised."),
    QT_TRANSLATE_NOOP("Text", "Set enabled to 1 and start the attendance server again.")};

inline constexpr Rule kGateRefused{
    "gate-refused", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The gate has refused a newer file than the one that is explained."),
    QT_TRANSLATE_NOOP("Text", "Check whether that file has another line for the person.")};

inline constexpr Rule kLeftAlready{
    "left-already", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "The person has left, so the plugin creates no row, or does not write the end."),
    QT_TRANSLATE_NOOP("Text", "Ask HR to export each employment relationship once."),
    Severity::Note};

inline constexpr Rule kLinesNotExplained{
    "lines-not-explained", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "There are more lines about the person than are explained."),
    QT_TRANSLATE_NOOP("Text", "Ask HR to export each employment relationship once.")};

inline constexpr Rule kNoPayrollExport{
    "no-payroll-export", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The new person joins no payroll export."),
    QT_TRANSLATE_NOOP("Text", "Add the person by hand where needed.")};

inline constexpr Rule kNobodyFound{
    "nobody-found", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Nobody in the export or in the database matches the search."),
    QT_TRANSLATE_NOOP("Text", "Check the spelling, and whether HR has ever exported the person.")};

inline constexpr Rule kNotInDatabase{
    "not-in-database", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The person is neither in the export nor in the database."),
    QT_TRANSLATE_NOOP("Text", "Check the number, and whether HR has ever exported the person.")};

inline constexpr Rule kNotInExport{
    "not-in-export", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "No line of the export is about the person."),
    QT_TRANSLATE_NOOP("Text", "Ask HR why the person is missing from the export."), Severity::Note};

inline constexpr Rule kPayrollIdStrange{
    "payroll-id-strange", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The payroll id of an active row belongs to another pid."),
    QT_TRANSLATE_NOOP("Text", "Correct pid and pamId of the row.")};

inline constexpr Rule kPayrollSettingsKept{
    "payroll-settings-kept", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "The person has the settings of the payroll export already, which the plugin logs as a "
        "failure."),
    QT_TRANSLATE_NOOP("Text", "This is harmless.")};

inline constexpr Rule kPersonAmbiguous{
    "person-ambiguous", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The search does not name exactly one person."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Name one by the first column of the table. Where it is empty, the line has no numbers,"
        " and the plugin drops it.")};

inline constexpr Rule kPersonMissing{
    "person-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The person has no row to which a step could apply."),
    QT_TRANSLATE_NOOP("Text", "See above why the person has no row with this pid.")};

inline constexpr Rule kRowsLeftBehind{
    "rows-left-behind", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "Rows of somebody who was deleted lie under a uid that the new person may get."),
    QT_TRANSLATE_NOOP("Text", "Delete them, or raise AUTO_INCREMENT of people above their uids.")};

inline constexpr Rule kStateBreaksStatement{
    "state-breaks-statement", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "The text of the relationship state breaks the statement that writes the row."),
    QT_TRANSLATE_NOOP(
        "Text", "Change the text in the group MES of the configuration, or rsText of the row.")};

inline constexpr Rule kSupervisorUnknown{
    "supervisor-unknown", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "No administrator has the personal number of the supervisor."),
    QT_TRANSLATE_NOOP("Text",
                      "Give the supervisor an administrator's account with this personal number.")};

inline constexpr Rule kTestMode{
    "test-mode", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Test mode is on: rows of people are not written."),
    QT_TRANSLATE_NOOP("Text", "Set testMode to 0 and start the attendance server again.")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kBalanceNotWritten, &kBranchIdLarge,    &kBranchUnknown,        &kCalculationForward,
    &kCalendarUnknown,   &kDisabled,         &kGateRefused,          &kLeftAlready,
    &kLinesNotExplained, &kNoPayrollExport,  &kNobodyFound,          &kNotInDatabase,
    &kNotInExport,       &kPayrollIdStrange, &kPayrollSettingsKept,  &kPersonAmbiguous,
    &kPersonMissing,     &kRowsLeftBehind,   &kStateBreaksStatement, &kSupervisorUnknown,
    &kTestMode,
};

} // namespace ExplainRules
