#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of gate.
namespace GateRules {

inline constexpr Rule kBusy{"busy", Severity::Error,
                            QT_TRANSLATE_NOOP("Text", "Another gate is using the folder."),
                            QT_TRANSLATE_NOOP("Text", "Wait until it has finished.")};

inline constexpr Rule kChangedMeanwhile{
    "changed-meanwhile", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The file changed while it was being read."),
    QT_TRANSLATE_NOOP(
        "Text",
        "HR's export should write under another name and rename the file when it is complete.")};

inline constexpr Rule kEmpty{"empty", Severity::Error,
                             QT_TRANSLATE_NOOP("Text", "The file contains no people."),
                             QT_TRANSLATE_NOOP("Text", "Ask HR whether the export went wrong.")};

inline constexpr Rule kFileTooLong{
    "file-too-long", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The file is larger than the plugin reads."),
    QT_TRANSLATE_NOOP("Text", "Ask HR whether the export went wrong.")};

inline constexpr Rule kJustWritten{
    "just-written", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The file was changed less than the seconds of --settle ago."),
    QT_TRANSLATE_NOOP("Text", "It may still be incomplete; run the gate again later.")};

inline constexpr Rule kLinesLost{
    "lines-lost", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More lines with people than the limits allow are missing."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kLinesRepeated{
    "lines-repeated", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "More lines than the limits allow are about people of earlier lines."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kMissing{"missing", Severity::Error,
                               QT_TRANSLATE_NOOP("Text", "HR's file does not exist."),
                               QT_TRANSLATE_NOOP("Text", "Ask HR whether the export has run.")};

inline constexpr Rule kNoBaseline{
    "no-baseline", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "There is no admitted file to compare with."),
    QT_TRANSLATE_NOOP(
        "Text", "Inspect the file with check-file and preview, then admit it once with --accept."),
    Severity::Warning};

inline constexpr Rule kPeopleLeaving{
    "people-leaving", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More people than the limits allow leave."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kPeopleMoving{
    "people-moving", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More people than the limits allow get another cost centre."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kPeopleNew{
    "people-new", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More people than the limits allow are new."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kPeopleReturning{
    "people-returning", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More people than the limits allow return who had left."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kSupervisorsChanged{
    "supervisors-changed", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "More people than the limits allow lose a supervisor who still works in the same place."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kBalancesZero{
    "balances-zero", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More vacation balances than the limits allow become 0."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kBalancesImplausible{
    "balances-implausible", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "More vacation balances than the limits allow leave the plausible range."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kBalancesMultiplied{
    "balances-multiplied", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "More vacation balances than the limits allow are the same multiple of what they were."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kValuesChanged{
    "values-changed", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More values of a field than the limits allow change."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kValuesEmptied{
    "values-emptied", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "More values of a field than the limits allow are emptied."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR; if the change is intended, run the gate once with --accept."),
    Severity::Warning};

inline constexpr Rule kValuesMisread{
    "values-misread", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "More values of a field than the limits allow are newly misread by the plugin."),
    QT_TRANSLATE_NOOP("Text", "Ask HR for a correct file."), Severity::Warning};

inline constexpr Rule kTruncated{
    "truncated", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The last line is damaged or has no line feed."),
    QT_TRANSLATE_NOOP("Text", "Ask HR for the complete file."), Severity::Warning};

inline constexpr Rule kRejectedLines{
    "rejected-lines", Severity::Note,
    QT_TRANSLATE_NOOP("Text",
                      "The file has lines with errors, which do not keep it from being admitted."),
    QT_TRANSLATE_NOOP("Text", "Send HR the file of these lines.")};

inline constexpr Rule kWarnedLines{
    "warned-lines", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "The file has lines with values that the plugin misreads or that are hardly intended."),
    QT_TRANSLATE_NOOP("Text", "Send HR the file of these lines.")};

inline constexpr Rule kTextsWritten{
    "texts-written", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "The file has texts that look as if they were written for SQL already, such as O''Brien."),
    QT_TRANSLATE_NOOP("Text",
                      "Ask HR whether its program doubles apostrophes or backslashes; it should "
                      "leave that to the "
                      "gate.")};

inline constexpr Rule kUnchanged{
    "unchanged", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "The file equals the last admitted one and is published again.")};

inline constexpr Rule kUnread{
    "unread", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "An earlier file was still in place, which the plugin has not read or does not remove.")};

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
