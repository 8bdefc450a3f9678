#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of drift.
namespace DriftRules {

inline constexpr Rule kAdministratorMissing{
    "administrator-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A member of a branch is not with an administrator of that branch."),
    QT_TRANSLATE_NOOP("Text",
                      "The plugin adds people only when they join. Use --sql, unless somebody "
                      "removed the person.")};

inline constexpr Rule kBalanceDiffers{
    "balance-differs", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "The vacation balance is not HR's, and nothing keeps the plugin from correcting it."),
    QT_TRANSLATE_NOOP(
        "Text",
        "The next synchronisation corrects it if the last one could not, as for a new employee; "
        "otherwise a forced one does, or HR's next balance. Days that were taken last month count "
        "from "
        "this month on.")};

inline constexpr Rule kDisabled{
    "disabled", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The plugin is switched off, so nothing comes by itself."),
    QT_TRANSLATE_NOOP("Text", "Set enabled to 1 and start the attendance server again.")};

inline constexpr Rule kEmploymentType{
    "employment-type", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "The employment type is not the one of HR's code, and no other field differs."),
    QT_TRANSLATE_NOOP("Text",
                      "The plugin writes it when the line changes or the attendance server is "
                      "started. Use --sql, "
                      "unless somebody changed it by hand.")};

inline constexpr Rule kGroupNotPlanned{
    "group-not-planned", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "The calendar group is not planned from the month on that the export names."),
    QT_TRANSLATE_NOOP(
        "Text", "A forced synchronisation plans it, unless the plugin tries again by itself.")};

inline constexpr Rule kLeftOut{
    "left-out", Severity::Note,
    QT_TRANSLATE_NOOP("Text",
                      "People were left out of the comparison: what the plugin makes of their "
                      "lines is not certain."),
    QT_TRANSLATE_NOOP("Text", "Run check-file on the export, and explain for a person.")};

inline constexpr Rule kMonthsDiffer{
    "months-differ", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "Months have another calendar group than the one that is planned for them."),
    QT_TRANSLATE_NOOP(
        "Text",
        "The plugin fills the months only when it plans the group. Use --sql, which also has "
        "attendance calculated again, unless somebody changed the months.")};

inline constexpr Rule kNotMember{
    "not-member", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A person is not a member of the branch of the cost centre."),
    QT_TRANSLATE_NOOP("Text", "A forced synchronisation adds the person.")};

inline constexpr Rule kPayrollBinding{
    "payroll-binding", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A person has no settings of the payroll export."),
    QT_TRANSLATE_NOOP("Text",
                      "The plugin binds only people whom it creates. Use --sql for those whom it "
                      "should have bound; "
                      "others were there before it, or got another employment type later.")};

inline constexpr Rule kPayrollSelection{
    "payroll-selection", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A person is not in the selection of the payroll export."),
    QT_TRANSLATE_NOOP(
        "Text",
        "The plugin selects only people whom it creates. Use --sql for those whom it should have "
        "selected; others were there before it, or somebody removed them.")};

inline constexpr Rule kPersonDiffers{
    "person-differs", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Personal data are not those of the export."),
    QT_TRANSLATE_NOOP("Text", "A forced synchronisation writes them.")};

inline constexpr Rule kPersonMissing{
    "person-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "An employee of the export has no active row."),
    QT_TRANSLATE_NOOP("Text", "A forced synchronisation creates the person.")};

inline constexpr Rule kSupervisorMissing{
    "supervisor-missing", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "Nobody receives the requests of a person, though the export names a supervisor."),
    QT_TRANSLATE_NOOP("Text",
                      "A forced synchronisation does not help. Use --sql, or start the attendance "
                      "server again: the "
                      "plugin then assigns all supervisors anew.")};

inline constexpr Rule kSupervisorOther{
    "supervisor-other", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "Somebody else receives the requests of a person than the supervisor of the export."),
    QT_TRANSLATE_NOOP("Text",
                      "The former supervisor has stayed, or somebody chose another one by hand: "
                      "the database does "
                      "not "
                      "say which. Remove the latter from the statements of --sql before running "
                      "them. The next start "
                      "of the attendance server assigns the one of the export in any case.")};

inline constexpr Rule kSynchronisationPending{
    "synchronisation-pending", Severity::Note,
    QT_TRANSLATE_NOOP("Text",
                      "The plugin is about to synchronise, and may bring some of the differences."),
    QT_TRANSLATE_NOOP("Text", "Run drift again after the next tick.")};

inline constexpr Rule kTerminalMissing{
    "terminal-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A member of a branch is not on an active terminal of that branch."),
    QT_TRANSLATE_NOOP("Text",
                      "The plugin adds people only when they join. Use --sql, unless somebody "
                      "removed the person.")};

inline constexpr Rule kTerminalNotMarked{
    "terminal-not-marked", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "People are queued for a terminal that is not marked as having people to fetch."),
    QT_TRANSLATE_NOOP(
        "Text",
        "The next change of anybody on the terminal marks it. Use --sql if it stays so: it may be "
        "fetching right now.")};

inline constexpr Rule kTestMode{
    "test-mode", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Test mode is on: people are only logged, not written."),
    QT_TRANSLATE_NOOP("Text", "Set testMode to 0 and start the attendance server again.")};

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
