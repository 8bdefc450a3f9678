#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of drift.
namespace DriftRules {

inline constexpr Rule kAdministratorMissing{
    "administrator-missing", Severity::Warning,
    "A member of a branch is not with an administrator of that branch.",
    "The plugin adds people only when they join. Use --sql, unless somebody removed the person."};

inline constexpr Rule kBalanceDiffers{
    "balance-differs", Severity::Note,
    "The vacation balance is not HR's, and nothing keeps the plugin from correcting it.",
    "The next synchronisation corrects it if the last one could not, as for a new employee; "
    "otherwise a forced one does, or HR's next balance. Days that were taken last month count from "
    "this month on."};

inline constexpr Rule kDisabled{"disabled", Severity::Warning,
                                "The plugin is switched off, so nothing comes by itself.",
                                "Set enabled to 1 and start the attendance server again."};

inline constexpr Rule kEmploymentType{
    "employment-type", Severity::Warning,
    "The employment type is not the one of HR's code, and no other field differs.",
    "The plugin writes it when the line changes or the attendance server is started. Use --sql, "
    "unless somebody changed it by hand."};

inline constexpr Rule kGroupNotPlanned{
    "group-not-planned", Severity::Warning,
    "The calendar group is not planned from the month on that the export names.",
    "A forced synchronisation plans it, unless the plugin tries again by itself."};

inline constexpr Rule kLeftOut{
    "left-out", Severity::Note,
    "People were left out of the comparison: what the plugin makes of their lines is not certain.",
    "Run check-file on the export, and explain for a person."};

inline constexpr Rule kMonthsDiffer{
    "months-differ", Severity::Warning,
    "Months have another calendar group than the one that is planned for them.",
    "The plugin fills the months only when it plans the group. Use --sql, which also has "
    "attendance calculated again, unless somebody changed the months."};

inline constexpr Rule kNotMember{"not-member", Severity::Warning,
                                 "A person is not a member of the branch of the cost centre.",
                                 "A forced synchronisation adds the person."};

inline constexpr Rule kPayrollBinding{
    "payroll-binding", Severity::Warning, "A person has no settings of the payroll export.",
    "The plugin binds only people whom it creates. Use --sql for those whom it should have bound; "
    "others were there before it, or got another employment type later."};

inline constexpr Rule kPayrollSelection{
    "payroll-selection", Severity::Warning,
    "A person is not in the selection of the payroll export.",
    "The plugin selects only people whom it creates. Use --sql for those whom it should have "
    "selected; others were there before it, or somebody removed them."};

inline constexpr Rule kPersonDiffers{"person-differs", Severity::Warning,
                                     "Personal data are not those of the export.",
                                     "A forced synchronisation writes them."};

inline constexpr Rule kPersonMissing{"person-missing", Severity::Warning,
                                     "An employee of the export has no active row.",
                                     "A forced synchronisation creates the person."};

inline constexpr Rule kSupervisorMissing{
    "supervisor-missing", Severity::Warning,
    "Nobody receives the requests of a person, though the export names a supervisor.",
    "A forced synchronisation does not help. Use --sql, or start the attendance server again: the "
    "plugin then assigns all supervisors anew."};

inline constexpr Rule kSupervisorOther{
    "supervisor-other", Severity::Warning,
    "Somebody else receives the requests of a person than the supervisor of the export.",
    "The former supervisor has stayed, or somebody chose another one by hand: the database does "
    "not "
    "say which. Remove the latter from the statements of --sql before running them. The next start "
    "of the attendance server assigns the one of the export in any case."};

inline constexpr Rule kSynchronisationPending{
    "synchronisation-pending", Severity::Note,
    "The plugin is about to synchronise, and may bring some of the differences.",
    "Run drift again after the next tick."};

inline constexpr Rule kTerminalMissing{
    "terminal-missing", Severity::Warning,
    "A member of a branch is not on an active terminal of that branch.",
    "The plugin adds people only when they join. Use --sql, unless somebody removed the person."};

inline constexpr Rule kTerminalNotMarked{
    "terminal-not-marked", Severity::Warning,
    "People are queued for a terminal that is not marked as having people to fetch.",
    "The next change of anybody on the terminal marks it. Use --sql if it stays so: it may be "
    "fetching right now."};

inline constexpr Rule kTestMode{"test-mode", Severity::Warning,
                                "Test mode is on: people are only logged, not written.",
                                "Set testMode to 0 and start the attendance server again."};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kAdministratorMissing, &kBalanceDiffers,    &kDisabled,
    &kEmploymentType,       &kGroupNotPlanned,   &kLeftOut,
    &kMonthsDiffer,         &kNotMember,         &kPayrollBinding,
    &kPayrollSelection,     &kPersonDiffers,     &kPersonMissing,
    &kSupervisorMissing,    &kSupervisorOther,   &kSynchronisationPending,
    &kTerminalMissing,      &kTerminalNotMarked, &kTestMode,
};

} // namespace DriftRules
