#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of gate.
namespace GateRules {

inline constexpr Rule kBusy{"busy", Severity::Error, "Another gate is using the folder.",
                            "Wait until it has finished."};

inline constexpr Rule kChangedMeanwhile{
    "changed-meanwhile", Severity::Error, "The file changed while it was being read.",
    "HR's export should write under another name and rename the file when it is complete."};

inline constexpr Rule kEmpty{"empty", Severity::Error, "The file contains no people.",
                             "Ask HR whether the export went wrong."};

inline constexpr Rule kFileTooLong{"file-too-long", Severity::Error,
                                   "The file is larger than the plugin reads.",
                                   "Ask HR whether the export went wrong."};

inline constexpr Rule kJustWritten{"just-written", Severity::Error,
                                   "The file was changed less than the seconds of --settle ago.",
                                   "It may still be incomplete; run the gate again later."};

inline constexpr Rule kLinesLost{
    "lines-lost", Severity::Error, "More lines with people than the limits allow are missing.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kLinesRepeated{
    "lines-repeated", Severity::Error,
    "More lines than the limits allow are about people of earlier lines.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kMissing{"missing", Severity::Error, "HR's file does not exist.",
                               "Ask HR whether the export has run."};

inline constexpr Rule kNoBaseline{
    "no-baseline", Severity::Error, "There is no admitted file to compare with.",
    "Inspect the file with check-file and preview, then admit it once with --accept.",
    Severity::Warning};

inline constexpr Rule kPeopleLeaving{
    "people-leaving", Severity::Error, "More people than the limits allow leave.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kPeopleMoving{
    "people-moving", Severity::Error, "More people than the limits allow get another cost centre.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kPeopleNew{
    "people-new", Severity::Error, "More people than the limits allow are new.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kPeopleReturning{
    "people-returning", Severity::Error, "More people than the limits allow return who had left.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kSupervisorsChanged{
    "supervisors-changed", Severity::Error,
    "More people than the limits allow lose a supervisor who still works in the same place.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kBalancesZero{
    "balances-zero", Severity::Error, "More vacation balances than the limits allow become 0.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kBalancesImplausible{
    "balances-implausible", Severity::Error,
    "More vacation balances than the limits allow leave the plausible range.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kBalancesMultiplied{
    "balances-multiplied", Severity::Error,
    "More vacation balances than the limits allow are the same multiple of what they were.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kValuesChanged{
    "values-changed", Severity::Error, "More values of a field than the limits allow change.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kValuesEmptied{
    "values-emptied", Severity::Error, "More values of a field than the limits allow are emptied.",
    "Ask HR; if the change is intended, run the gate once with --accept.", Severity::Warning};

inline constexpr Rule kValuesMisread{
    "values-misread", Severity::Error,
    "More values of a field than the limits allow are newly misread by the plugin.",
    "Ask HR for a correct file.", Severity::Warning};

inline constexpr Rule kTruncated{"truncated", Severity::Error,
                                 "The last line is damaged or has no line feed.",
                                 "Ask HR for the complete file.", Severity::Warning};

inline constexpr Rule kRejectedLines{
    "rejected-lines", Severity::Note,
    "The file has lines with errors, which do not keep it from being admitted.",
    "Send HR the file of these lines."};

inline constexpr Rule kWarnedLines{
    "warned-lines", Severity::Note,
    "The file has lines with values that the plugin misreads or that are hardly intended.",
    "Send HR the file of these lines."};

inline constexpr Rule kTextsWritten{
    "texts-written", Severity::Note,
    "The file has texts that look as if they were written for SQL already, such as O''Brien.",
    "Ask HR whether its program doubles apostrophes or backslashes; it should leave that to the "
    "gate."};

inline constexpr Rule kUnchanged{"unchanged", Severity::Note,
                                 "The file equals the last admitted one and is published again."};

inline constexpr Rule kUnread{
    "unread", Severity::Note,
    "An earlier file was still in place, which the plugin has not read or does not remove."};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kBusy,
    &kChangedMeanwhile,
    &kEmpty,
    &kFileTooLong,
    &kJustWritten,
    &kLinesLost,
    &kLinesRepeated,
    &kMissing,
    &kNoBaseline,
    &kPeopleLeaving,
    &kPeopleMoving,
    &kPeopleNew,
    &kPeopleReturning,
    &kSupervisorsChanged,
    &kBalancesZero,
    &kBalancesImplausible,
    &kBalancesMultiplied,
    &kValuesChanged,
    &kValuesEmptied,
    &kValuesMisread,
    &kTruncated,
    &kRejectedLines,
    &kWarnedLines,
    &kTextsWritten,
    &kUnchanged,
    &kUnread,
};

} // namespace GateRules
