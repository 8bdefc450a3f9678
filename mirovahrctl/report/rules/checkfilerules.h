#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of check-file.
namespace CheckFileRules {

inline constexpr Rule kFieldCount{
    "field-count", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The line has too few or too many fields, so the plugin drops it."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Write every field, even an empty one, and separate them with the character |, which no"
        " text may contain.")};

inline constexpr Rule kHeaderLine{
    "header-line", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The line is a header, which the plugin reads as a person without a number and drops."),
    QT_TRANSLATE_NOOP("Text", "Export without a header.")};

inline constexpr Rule kLineTooLong{
    "line-too-long", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "The line exceeds the longest that the plugin reads, so the plugin skips it."),
    QT_TRANSLATE_NOOP("Text", "The export is damaged; perhaps line feeds are missing.")};

inline constexpr Rule kNoName{
    "no-name", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "The line has neither a first name nor a surname, so the plugin drops it."),
    QT_TRANSLATE_NOOP("Text", "Provide at least one of the two.")};

inline constexpr Rule kNoPersonalNumber{
    "no-personal-number", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The line has no personal number above 0, so the plugin drops it."),
    QT_TRANSLATE_NOOP("Text", "Write the personal number into the first field: digits, above 0.")};

inline constexpr Rule kNoRelationshipNumber{
    "no-relationship-number", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "The line has no relationship number above 0, so the plugin drops it."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Write the number of the employment relationship into the second field: digits, above "
        "0.")};

inline constexpr Rule kNulByte{
    "nul-byte", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The line contains a NUL byte; the plugin reads nothing after it."),
    QT_TRANSLATE_NOOP("Text", "The export is damaged, or not encoded in UTF-8.")};

inline constexpr Rule kBackslashInText{
    "backslash-in-text", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "A text contains a backslash: it arrives changed, or its statement fails."),
    QT_TRANSLATE_NOOP("Text",
                      "mirovahrctl gate writes such a text so that it arrives; without the gate, "
                      "write it without "
                      "\\.")};

inline constexpr Rule kPidClash{
    "pid-clash", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "Two people have numbers that join to the same pid; the plugin treats both as one "
        "person."),
    QT_TRANSLATE_NOOP("Text", "One of the two needs another personal number.")};

inline constexpr Rule kPidZero{
    "pid-zero", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "The person's numbers join to more than 32 bits, so the pid becomes 0."),
    QT_TRANSLATE_NOOP("Text", "The person needs a shorter personal number.")};

inline constexpr Rule kPlaceholderInText{
    "placeholder-in-text", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "A text contains a percent sign and a digit, which the plugin replaces with another "
        "value."),
    QT_TRANSLATE_NOOP("Text",
                      "mirovahrctl gate writes such a text so that it arrives; without the gate, "
                      "write it without "
                      "%.")};

inline constexpr Rule kQuoteInText{
    "quote-in-text", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "A text contains an apostrophe, which breaks its statement: the person is not written."),
    QT_TRANSLATE_NOOP("Text",
                      "mirovahrctl gate writes such a text so that it arrives; without the gate, "
                      "write it without ', "
                      "or with the character \u2019.")};

inline constexpr Rule kTextTooLong{"text-too-long", Severity::Error,
                                   QT_TRANSLATE_NOOP("Text", "A text is longer than its column."),
                                   QT_TRANSLATE_NOOP("Text", "Shorten the text.")};

inline constexpr Rule kWideCharacter{
    "wide-character", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "A text contains a character above U+FFFF, which the connection cannot carry."),
    QT_TRANSLATE_NOOP("Text", "Write the text without it.")};

inline constexpr Rule kBadDate{
    "bad-date", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The plugin cannot read the field as a date."),
    QT_TRANSLATE_NOOP("Text", "Write dates as in 2021-03-31 00:00:00.000.")};

inline constexpr Rule kBadNumber{
    "bad-number", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The plugin cannot read the field as a number and takes 0."),
    QT_TRANSLATE_NOOP("Text", "Write digits only, up to 4294967295.")};

inline constexpr Rule kBalanceOutOfRange{
    "balance-out-of-range", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "The vacation balance cannot be stored, so the plugin leaves it unchanged."),
    QT_TRANSLATE_NOOP("Text", "Correct the balance.")};

inline constexpr Rule kByteOrderMark{
    "byte-order-mark", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "The line begins with a byte order mark, which the plugin skips."),
    QT_TRANSLATE_NOOP("Text", "Save the export as UTF-8 without a byte order mark.")};

inline constexpr Rule kCodeWraps{
    "code-wraps", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A code exceeds 16 bits and is read as another code."),
    QT_TRANSLATE_NOOP("Text", "Correct the code.")};

inline constexpr Rule kDateOutOfRange{
    "date-out-of-range", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "The plugin stores days from 1970 to 2106 only; the day comes back as another one."),
    QT_TRANSLATE_NOOP("Text", "Correct the date.")};

inline constexpr Rule kDuplicateRelationship{
    "duplicate-relationship", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "The same employment relationship occurs more than once; the last line wins."),
    QT_TRANSLATE_NOOP("Text", "Export each relationship once.")};

inline constexpr Rule kEmptyDate{
    "empty-date", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A date is missing that the plugin needs."),
    QT_TRANSLATE_NOOP("Text", "Provide the date.")};

inline constexpr Rule kEmptyNumber{
    "empty-number", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A number is missing that the plugin needs; it takes 0."),
    QT_TRANSLATE_NOOP("Text", "Write digits only, up to 4294967295.")};

inline constexpr Rule kLeavesBeforeStart{
    "leaves-before-start", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The person leaves before employment begins."),
    QT_TRANSLATE_NOOP("Text", "One of the two dates is wrong.")};

inline constexpr Rule kNoFinalLineFeed{
    "no-final-line-feed", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "The last line does not end with a line feed; the file may be truncated."),
    QT_TRANSLATE_NOOP("Text", "Check whether the export is complete.")};

inline constexpr Rule kNoRecords{"no-records", Severity::Warning,
                                 QT_TRANSLATE_NOOP("Text", "The file contains no people."),
                                 QT_TRANSLATE_NOOP("Text", "Check whether the export went wrong.")};

inline constexpr Rule kNotUtf8{
    "not-utf8", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Some bytes are not UTF-8 and are read as replacement characters."),
    QT_TRANSLATE_NOOP("Text", "Save the export as UTF-8.")};

inline constexpr Rule kRepetitionsNotAllFound{
    "repetitions-not-all-found", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "Too many people occur more than once, so not all of them were compared."),
    QT_TRANSLATE_NOOP("Text", "Check whether the export was written several times into one file.")};

inline constexpr Rule kUtf16{
    "utf-16", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The file is encoded in UTF-16, which the plugin cannot read."),
    QT_TRANSLATE_NOOP("Text", "Save the export as UTF-8.")};

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
