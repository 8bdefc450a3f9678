#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of check-file.
namespace CheckFileRules {

inline constexpr Rule kFieldCount{
    "field-count", Severity::Error,
    "The line has too few or too many fields, so the plugin drops it.",
    "Write every field, even an empty one, and separate them with the character |, which no"
    " text may contain."};

inline constexpr Rule kHeaderLine{
    "header-line", Severity::Error,
    "The line is a header, which the plugin reads as a person without a number and drops.",
    "Export without a header."};

inline constexpr Rule kLineTooLong{
    "line-too-long", Severity::Error,
    "The line exceeds the longest that the plugin reads, so the plugin skips it.",
    "The export is damaged; perhaps line feeds are missing."};

inline constexpr Rule kNoName{
    "no-name", Severity::Error,
    "The line has neither a first name nor a surname, so the plugin drops it.",
    "Provide at least one of the two."};

inline constexpr Rule kNoPersonalNumber{
    "no-personal-number", Severity::Error,
    "The line has no personal number above 0, so the plugin drops it.",
    "Write the personal number into the first field: digits, above 0."};

inline constexpr Rule kNoRelationshipNumber{
    "no-relationship-number", Severity::Error,
    "The line has no relationship number above 0, so the plugin drops it.",
    "Write the number of the employment relationship into the second field: digits, above "
    "0."};

inline constexpr Rule kNulByte{"nul-byte", Severity::Error,
                               "The line contains a NUL byte; the plugin reads nothing after it.",
                               "The export is damaged, or not encoded in UTF-8."};

inline constexpr Rule kBackslashInText{
    "backslash-in-text", Severity::Error,
    "A text contains a backslash: it arrives changed, or its statement fails.",
    "mirovahrctl gate writes such a text so that it arrives; without the gate, write it without "
    "\\."};

inline constexpr Rule kPidClash{
    "pid-clash", Severity::Error,
    "Two people have numbers that join to the same pid; the plugin treats both as one "
    "person.",
    "One of the two needs another personal number."};

inline constexpr Rule kPidZero{
    "pid-zero", Severity::Error,
    "The person's numbers join to more than 32 bits, so the pid becomes 0.",
    "The person needs a shorter personal number."};

inline constexpr Rule kPlaceholderInText{
    "placeholder-in-text", Severity::Error,
    "A text contains a percent sign and a digit, which the plugin replaces with another "
    "value.",
    "mirovahrctl gate writes such a text so that it arrives; without the gate, write it without "
    "%."};

inline constexpr Rule kQuoteInText{
    "quote-in-text", Severity::Error,
    "A text contains an apostrophe, which breaks its statement: the person is not written.",
    "mirovahrctl gate writes such a text so that it arrives; without the gate, write it without ', "
    "or with the character \u2019."};

inline constexpr Rule kTextTooLong{"text-too-long", Severity::Error,
                                   "A text is longer than its column.", "Shorten the text."};

inline constexpr Rule kWideCharacter{
    "wide-character", Severity::Error,
    "A text contains a character above U+FFFF, which the connection cannot carry.",
    "Write the text without it."};

inline constexpr Rule kBadDate{"bad-date", Severity::Warning,
                               "The plugin cannot read the field as a date.",
                               "Write dates as in 2021-03-31 00:00:00.000."};

inline constexpr Rule kBadNumber{"bad-number", Severity::Warning,
                                 "The plugin cannot read the field as a number and takes 0.",
                                 "Write digits only, up to 4294967295."};

inline constexpr Rule kBalanceOutOfRange{
    "balance-out-of-range", Severity::Warning,
    "The vacation balance cannot be stored, so the plugin leaves it unchanged.",
    "Correct the balance."};

inline constexpr Rule kByteOrderMark{
    "byte-order-mark", Severity::Note,
    "The line begins with a byte order mark, which the plugin skips.",
    "Save the export as UTF-8 without a byte order mark."};

inline constexpr Rule kCodeWraps{"code-wraps", Severity::Warning,
                                 "A code exceeds 16 bits and is read as another code.",
                                 "Correct the code."};

inline constexpr Rule kDateOutOfRange{
    "date-out-of-range", Severity::Warning,
    "The plugin stores days from 1970 to 2106 only; the day comes back as another one.",
    "Correct the date."};

inline constexpr Rule kDuplicateRelationship{
    "duplicate-relationship", Severity::Warning,
    "The same employment relationship occurs more than once; the last line wins.",
    "Export each relationship once."};

inline constexpr Rule kEmptyDate{"empty-date", Severity::Warning,
                                 "A date is missing that the plugin needs.", "Provide the date."};

inline constexpr Rule kEmptyNumber{"empty-number", Severity::Warning,
                                   "A number is missing that the plugin needs; it takes 0.",
                                   "Write digits only, up to 4294967295."};

inline constexpr Rule kLeavesBeforeStart{"leaves-before-start", Severity::Warning,
                                         "The person leaves before employment begins.",
                                         "One of the two dates is wrong."};

inline constexpr Rule kNoFinalLineFeed{
    "no-final-line-feed", Severity::Warning,
    "The last line does not end with a line feed; the file may be truncated.",
    "Check whether the export is complete."};

inline constexpr Rule kNoRecords{"no-records", Severity::Warning, "The file contains no people.",
                                 "Check whether the export went wrong."};

inline constexpr Rule kNotUtf8{"not-utf8", Severity::Warning,
                               "Some bytes are not UTF-8 and are read as replacement characters.",
                               "Save the export as UTF-8."};

inline constexpr Rule kRepetitionsNotAllFound{
    "repetitions-not-all-found", Severity::Warning,
    "Too many people occur more than once, so not all of them were compared.",
    "Check whether the export was written several times into one file."};

inline constexpr Rule kUtf16{"utf-16", Severity::Error,
                             "The file is encoded in UTF-16, which the plugin cannot read.",
                             "Save the export as UTF-8."};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kFieldCount,
    &kHeaderLine,
    &kLineTooLong,
    &kNoName,
    &kNoPersonalNumber,
    &kNoRelationshipNumber,
    &kNulByte,
    &kBackslashInText,
    &kPidClash,
    &kPidZero,
    &kPlaceholderInText,
    &kQuoteInText,
    &kTextTooLong,
    &kWideCharacter,
    &kBadDate,
    &kBadNumber,
    &kBalanceOutOfRange,
    &kByteOrderMark,
    &kCodeWraps,
    &kDateOutOfRange,
    &kDuplicateRelationship,
    &kEmptyDate,
    &kEmptyNumber,
    &kLeavesBeforeStart,
    &kNoFinalLineFeed,
    &kNoRecords,
    &kNotUtf8,
    &kRepetitionsNotAllFound,
    &kUtf16,
};

} // namespace CheckFileRules
