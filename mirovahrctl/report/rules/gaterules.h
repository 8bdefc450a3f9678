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

inline constexpr Rule kTruncated{"truncated", Severity::Error,
                                 "The last line is damaged or has no line feed.",
                                 "Ask HR for the complete file.", Severity::Warning};

inline constexpr Rule kRejectedLines{
    "rejected-lines", Severity::Note,
    "The file has lines with errors, which do not keep it from being admitted.",
    "Send HR the file of these lines."};

inline constexpr Rule kUnchanged{"unchanged", Severity::Note,
                                 "The file equals the last admitted one and is published again."};

inline constexpr Rule kUnread{
    "unread", Severity::Note,
    "An earlier file was still in place, which the plugin has not read or does not remove."};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kBusy,      &kChangedMeanwhile, &kEmpty,      &kFileTooLong,   &kJustWritten,
    &kLinesLost, &kMissing,          &kNoBaseline, &kPeopleLeaving, &kPeopleMoving,
    &kTruncated, &kRejectedLines,    &kUnchanged,  &kUnread,
};

} // namespace GateRules
