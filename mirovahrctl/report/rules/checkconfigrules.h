#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of check-config.
namespace CheckConfigRules {

inline constexpr Rule kDepartmentIdLarge{
    "department-id-large", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "Not every integer type holds the department id: it depends on the column of the site.")};

inline constexpr Rule kDisabled{"disabled", Severity::Warning,
                                QT_TRANSLATE_NOOP("Text", "The plugin is switched off."),
                                QT_TRANSLATE_NOOP("Text", "Write enabled=true to switch it on.")};

inline constexpr Rule kFileFormat{
    "file-format", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The file has lines that are neither a key, nor a group, nor a comment; they are "
        "ignored."),
    QT_TRANSLATE_NOOP("Text", "Compare the file with the sample MirovaHR.ini.")};

inline constexpr Rule kFileMissing{
    "file-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The INI file does not exist, so every key has its default."),
    QT_TRANSLATE_NOOP("Text", "Start from the sample MirovaHR.ini that comes with the plugin.")};

inline constexpr Rule kFileWorldWritable{
    "file-world-writable", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "Every user of the machine can change the INI file."),
    QT_TRANSLATE_NOOP("Text", "Remove the permission with chmod o-w.")};

inline constexpr Rule kFlagEmpty{
    "flag-empty", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A flag has an empty value and is read as false."),
    QT_TRANSLATE_NOOP("Text", "Write true or false.")};

inline constexpr Rule kFlagReadsAsTrue{
    "flag-reads-as-true", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A flag has an unusual value and is read as true."),
    QT_TRANSLATE_NOOP("Text", "Write true or false.")};

inline constexpr Rule kGateAccepts{
    "gate-accepts", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The gate in syncCommand admits whatever has changed."),
    QT_TRANSLATE_NOOP("Text", "Remove --accept from syncCommand: it is for one run by hand.")};

inline constexpr Rule kGateElsewhere{
    "gate-elsewhere", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "The gate publishes to another file than the one that the plugin reads."),
    QT_TRANSLATE_NOOP("Text", "Write the same path as importFile and behind --to.")};

inline constexpr Rule kGateOptions{
    "gate-options", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The gate in syncCommand does not understand its options."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Run the command by hand: it says which option is wrong. Compare it with the sample "
        "MirovaHR.ini.")};

inline constexpr Rule kGateTexts{
    "gate-texts", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "The gate publishes texts as HR wrote them, so that a name can become a statement."),
    QT_TRANSLATE_NOOP("Text",
                      "Leave out --texts as-is, unless HR writes the texts for SQL already.")};

inline constexpr Rule kImportFileNoFile{
    "import-file-no-file", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "importFile names something other than a regular file, which the plugin never reads."),
    QT_TRANSLATE_NOOP("Text", "Write the path of the export file itself.")};

inline constexpr Rule kImportFileRelative{
    "import-file-relative", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "importFile is a relative path, so it depends on the server's working directory."),
    QT_TRANSLATE_NOOP("Text", "Write a path that begins with /.")};

inline constexpr Rule kImportFileWorldWritable{
    "import-file-world-writable", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "Every user of the machine can change the export."),
    QT_TRANSLATE_NOOP("Text", "Let only HR's transfer write to it.")};

inline constexpr Rule kImportFolderMissing{
    "import-folder-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The folder of the export does not exist."),
    QT_TRANSLATE_NOOP("Text", "Create the folder, or correct the path.")};

inline constexpr Rule kImportFolderWorldWritable{
    "import-folder-world-writable", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "Every user of the machine can put an export of their own in place."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Use a folder that only HR's transfer and the attendance server can write to, such as "
        "/var/lib/yav/import.")};

inline constexpr Rule kKeyTwice{
    "key-twice", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A key occurs more than once; the last line counts."),
    QT_TRANSLATE_NOOP("Text", "Keep one of the lines.")};

inline constexpr Rule kMesKeyNoNumber{
    "mes-key-no-number", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "A key of the group MES is not a register state code and counts as code 0."),
    QT_TRANSLATE_NOOP("Text", "Write the code of HR as the key, in digits.")};

inline constexpr Rule kMesKeyWraps{
    "mes-key-wraps", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "A code in the group MES exceeds 16 bits and counts as another code."),
    QT_TRANSLATE_NOOP("Text", "Write a code up to 65535.")};

inline constexpr Rule kMesKeysCollide{
    "mes-keys-collide", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "Two keys of the group MES are the same code; only one text is in force."),
    QT_TRANSLATE_NOOP("Text", "Keep one of the two lines.")};

inline constexpr Rule kMesTextBreaksSql{
    "mes-text-breaks-sql", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "The text of a relationship state breaks the statement that it enters."),
    QT_TRANSLATE_NOOP("Text", "Write the text without these characters.")};

inline constexpr Rule kMesTextTooLong{
    "mes-text-too-long", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "The text of a relationship state is longer than the column of the reference schema."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Shorten the text, or ask check-db --config whether the column of the site holds it.")};

inline constexpr Rule kNoDepartment{
    "no-department", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "New and updated people belong to no department.")};

inline constexpr Rule kNoGate{
    "no-gate", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "No gate keeps damaged files of HR from the plugin."),
    QT_TRANSLATE_NOOP("Text",
                      "Make mirovahrctl gate the syncCommand, as the sample MirovaHR.ini does.")};

inline constexpr Rule kNoMessages{
    "no-messages", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "The group MES defines no relationship state, so nobody gets one.")};

inline constexpr Rule kNumberReadsAs0{
    "number-reads-as-0", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A number is not a whole number and is read as 0."),
    QT_TRANSLATE_NOOP("Text", "Write digits only, without sign, unit, point or comma.")};

inline constexpr Rule kNumberWraps{
    "number-wraps", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A number exceeds 32 bits and is read as another number."),
    QT_TRANSLATE_NOOP("Text", "Write a number up to 4294967295.")};

inline constexpr Rule kSyncCommandMissing{
    "sync-command-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "syncCommandRun demands a command, but there is none."),
    QT_TRANSLATE_NOOP("Text", "Write the command, or syncCommandRun=0.")};

inline constexpr Rule kSyncCommandNeverRuns{
    "sync-command-never-runs", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "There is a command, but syncCommandRun never runs it."),
    QT_TRANSLATE_NOOP("Text",
                      "Write syncCommandRun=1 for a forced synchronisation, 2 for every one.")};

inline constexpr Rule kSyncCommandNotFound{
    "sync-command-not-found", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The program of syncCommand does not exist or is not executable."),
    QT_TRANSLATE_NOOP("Text", "Write the program with its full path. No shell reads the line.")};

inline constexpr Rule kSyncCommandRunWraps{
    "sync-command-run-wraps", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "syncCommandRun exceeds 8 bits and counts as another number."),
    QT_TRANSLATE_NOOP("Text",
                      "Write 0 for never, 1 for a forced synchronisation, 2 for every one.")};

inline constexpr Rule kSyncIntervalZero{
    "sync-interval-zero", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "syncInterval is 0 and counts as 1: every tick synchronises."),
    QT_TRANSLATE_NOOP("Text", "Write the number of ticks between two synchronisations.")};

inline constexpr Rule kTestMode{
    "test-mode", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Test mode is on: people are neither created nor updated."),
    QT_TRANSLATE_NOOP("Text", "Write testMode=false for normal work.")};

inline constexpr Rule kTickOverflows{
    "tick-overflows", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "timerInterval exceeds 32 bits of milliseconds, so the plugin ticks at another period."),
    QT_TRANSLATE_NOOP("Text", "Write at most 2147483.")};

inline constexpr Rule kTickTooLong{
    "tick-too-long", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "timerInterval exceeds the limit of a timer, so the plugin ticks at another period."),
    QT_TRANSLATE_NOOP("Text", "Write at most 2147483.")};

inline constexpr Rule kTickTooShort{
    "tick-too-short", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "timerInterval is below a second; the plugin ticks every second."),
    QT_TRANSLATE_NOOP("Text", "Write the seconds between two ticks, 60 for a minute.")};

inline constexpr Rule kUnknownKey{
    "unknown-key", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The plugin does not know the key; the line has no effect."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Remove the line or correct the key: keys are case-sensitive, and comments begin with a"
        " semicolon.")};

inline constexpr Rule kUnquotedComma{
    "unquoted-comma", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A text has a comma outside quotation marks and is read as empty."),
    QT_TRANSLATE_NOOP("Text", "Put the whole value in quotation marks.")};

inline constexpr Rule kUnquotedSemicolon{
    "unquoted-semicolon", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A value has a semicolon outside quotation marks and ends there."),
    QT_TRANSLATE_NOOP("Text", "Put the whole value in quotation marks.")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kDepartmentIdLarge,
    &kDisabled,
    &kFileFormat,
    &kFileMissing,
    &kFileWorldWritable,
    &kFlagEmpty,
    &kFlagReadsAsTrue,
    &kGateAccepts,
    &kGateElsewhere,
    &kGateOptions,
    &kGateTexts,
    &kImportFileNoFile,
    &kImportFileRelative,
    &kImportFileWorldWritable,
    &kImportFolderMissing,
    &kImportFolderWorldWritable,
    &kKeyTwice,
    &kMesKeyNoNumber,
    &kMesKeyWraps,
    &kMesKeysCollide,
    &kMesTextBreaksSql,
    &kMesTextTooLong,
    &kNoDepartment,
    &kNoGate,
    &kNoMessages,
    &kNumberReadsAs0,
    &kNumberWraps,
    &kSyncCommandMissing,
    &kSyncCommandNeverRuns,
    &kSyncCommandNotFound,
    &kSyncCommandRunWraps,
    &kSyncIntervalZero,
    &kTestMode,
    &kTickOverflows,
    &kTickTooLong,
    &kTickTooShort,
    &kUnknownKey,
    &kUnquotedComma,
    &kUnquotedSemicolon,
};

} // namespace CheckConfigRules
