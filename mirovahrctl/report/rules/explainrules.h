#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of explain.
namespace ExplainRules {

inline constexpr Rule kBalanceNotWritten{
    "balance-not-written", Severity::Warning,
    "No valid correction leads to the balance of the export, so the balance stays.",
    "One of the two balances is wrong."};

inline constexpr Rule kBranchIdLarge{
    "branch-id-large", Severity::Warning,
    "The id of the branch exceeds 16 bits; the person joins another branch, or none.",
    "Give the branch a smaller id."};

inline constexpr Rule kBranchUnknown{
    "branch-unknown", Severity::Warning,
    "No branch has the number of the cost centre, so the person joins none.",
    "Give the branch this number, or ask HR to correct the cost centre."};

inline constexpr Rule kCalculationForward{
    "calculation-forward", Severity::Note,
    "The last calculation moves forward; days in between may stay uncalculated.",
    "Recalculate the person's attendance by hand if there are such days."};

inline constexpr Rule kCalendarUnknown{
    "calendar-unknown", Severity::Warning,
    "The branch's master group has no group for the calendar.",
    "Create a group for this calendar in the master group of the branch, or ask HR to "
    "correct the calendar."};

inline constexpr Rule kDisabled{"disabled", Severity::Warning,
                                "The plugin is switched off, so nobody is synchronised.",
                                "Set enabled to 1 and start the attendance server again."};

inline constexpr Rule kGateRefused{
    "gate-refused", Severity::Warning,
    "The gate has refused a newer file than the one that is explained.",
    "Check whether that file has another line for the person."};

inline constexpr Rule kLeftAlready{
    "left-already", Severity::Warning,
    "The person has left, so the plugin creates no row, or does not write the end.",
    "Ask HR to export each employment relationship once.", Severity::Note};

inline constexpr Rule kLinesNotExplained{
    "lines-not-explained", Severity::Warning,
    "There are more lines about the person than are explained.",
    "Ask HR to export each employment relationship once."};

inline constexpr Rule kNoPayrollExport{"no-payroll-export", Severity::Warning,
                                       "The new person joins no payroll export.",
                                       "Add the person by hand where needed."};

inline constexpr Rule kNobodyFound{
    "nobody-found", Severity::Warning,
    "Nobody in the export or in the database matches the search.",
    "Check the spelling, and whether HR has ever exported the person."};

inline constexpr Rule kNotInDatabase{
    "not-in-database", Severity::Warning,
    "The person is neither in the export nor in the database.",
    "Check the number, and whether HR has ever exported the person."};

inline constexpr Rule kNotInExport{
    "not-in-export", Severity::Warning, "No line of the export is about the person.",
    "Ask HR why the person is missing from the export.", Severity::Note};

inline constexpr Rule kPayrollIdStrange{"payroll-id-strange", Severity::Warning,
                                        "The payroll id of an active row belongs to another pid.",
                                        "Correct pid and pamId of the row."};

inline constexpr Rule kPayrollSettingsKept{
    "payroll-settings-kept", Severity::Note,
    "The person has the settings of the payroll export already, which the plugin logs as a "
    "failure.",
    "This is harmless."};

inline constexpr Rule kPersonAmbiguous{
    "person-ambiguous", Severity::Warning, "The search does not name exactly one person.",
    "Name one by the first column of the table. Where it is empty, the line has no numbers,"
    " and the plugin drops it."};

inline constexpr Rule kPersonMissing{"person-missing", Severity::Warning,
                                     "The person has no row to which a step could apply.",
                                     "See above why the person has no row with this pid."};

inline constexpr Rule kRowsLeftBehind{
    "rows-left-behind", Severity::Warning,
    "Rows of somebody who was deleted lie under a uid that the new person may get.",
    "Delete them, or raise AUTO_INCREMENT of people above their uids."};

inline constexpr Rule kStateBreaksStatement{
    "state-breaks-statement", Severity::Warning,
    "The text of the relationship state breaks the statement that writes the row.",
    "Change the text in the group MES of the configuration, or rsText of the row."};

inline constexpr Rule kSupervisorUnknown{
    "supervisor-unknown", Severity::Warning,
    "No administrator has the personal number of the supervisor.",
    "Give the supervisor an administrator's account with this personal number."};

inline constexpr Rule kTestMode{"test-mode", Severity::Warning,
                                "Test mode is on: rows of people are not written.",
                                "Set testMode to 0 and start the attendance server again."};

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
