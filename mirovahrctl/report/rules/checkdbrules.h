#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of check-db.
namespace CheckDbRules {

inline constexpr Rule kAdminIdLarge{
    "admin-id-large", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "The id of an administrator exceeds 16 bits, which is all that other components keep."),
    QT_TRANSLATE_NOOP("Text", "Give the administrators ids up to 65535.")};

inline constexpr Rule kBranchIdLarge{
    "branch-id-large", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The id of a branch exceeds 16 bits; members are added to another branch, or to none."),
    QT_TRANSLATE_NOOP("Text", "Give the branches ids up to 65535.")};

inline constexpr Rule kBranchNumberTwice{
    "branch-number-twice", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "Several branches have the same number; people are placed in any of them."),
    QT_TRANSLATE_NOOP("Text", "Give the number to one branch only.")};

inline constexpr Rule kCalendarTwice{
    "calendar-twice", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "Several calendar groups have the same calendar; people are placed in any of them."),
    QT_TRANSLATE_NOOP("Text", "Keep one group for each calendar in a master group.")};

inline constexpr Rule kClock{
    "clock", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The clocks of the server and of this machine differ."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Synchronise both with the same time server: the plugin compares times of the two.")};

inline constexpr Rule kClusterAutoincLockMode{
    "cluster-autoinc-lock-mode", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "innodb_autoinc_lock_mode is not 2, so inserts of several nodes can block "
                      "each other for good."),
    QT_TRANSLATE_NOOP("Text", "Set innodb_autoinc_lock_mode = 2 on every node.")};

inline constexpr Rule kClusterBinlogFormat{
    "cluster-binlog-format", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "binlog_format is not ROW, the only one that a Galera cluster replicates."),
    QT_TRANSLATE_NOOP("Text", "Set binlog_format = ROW on every node.")};

inline constexpr Rule kClusterDonorBlocked{
    "cluster-donor-blocked", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "A node that is being copied to a joining one does not work meanwhile."),
    QT_TRANSLATE_NOOP("Text",
                      "Set wsrep_sst_method = mariabackup and wsrep_sst_donor_rejects_queries = "
                      "OFF on every node.")};

inline constexpr Rule kClusterEngine{
    "cluster-engine", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A table has an engine that the cluster does not replicate."),
    QT_TRANSLATE_NOOP("Text", "Convert the table: ALTER TABLE ... ENGINE = InnoDB.")};

inline constexpr Rule kClusterFewRetries{
    "cluster-few-retries", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "wsrep_retry_autocommit is below 5, so statements fail at conflicts with other nodes."),
    QT_TRANSLATE_NOOP("Text", "Set wsrep_retry_autocommit = 5, or more, on every node.")};

inline constexpr Rule kClusterKeyless{
    "cluster-keyless", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "A table has no primary key, so different new rows of two nodes conflict."),
    QT_TRANSLATE_NOOP(
        "Text", "Add a column id BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY."),
    Severity::Note};

inline constexpr Rule kClusterNodeIncrement{
    "cluster-node-increment", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "Another node counts automatic numbers in other steps than this one."),
    QT_TRANSLATE_NOOP("Text",
                      "Set wsrep_auto_increment_control = ON, or the same "
                      "auto_increment_increment, on every node.")};

inline constexpr Rule kClusterNodeNotAsked{
    "cluster-node-not-asked", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "A member of the cluster could not be asked, so this check says nothing about it."),
    QT_TRANSLATE_NOOP("Text",
                      "Check it by itself. Here the account must be allowed to connect to it.")};

inline constexpr Rule kClusterNodeSqlMode{
    "cluster-node-sql-mode", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "Another node has another SQL mode than this one."),
    QT_TRANSLATE_NOOP("Text",
                      "Give every node the same sql_mode: the plugin works with each of them after "
                      "a fail-over.")};

inline constexpr Rule kClusterNodeTimeZone{
    "cluster-node-time-zone", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "Another node is in another time zone than this one."),
    QT_TRANSLATE_NOOP(
        "Text", "Give every node, and the attendance server, the same time zone by its name.")};

inline constexpr Rule kClusterNodeVersion{
    "cluster-node-version", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "Another node has another version than this one."),
    QT_TRANSLATE_NOOP("Text", "Finish the upgrade of the cluster.")};

inline constexpr Rule kClusterNotPrimary{
    "cluster-not-primary", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "The node has lost the majority of its cluster, and refuses every statement."),
    QT_TRANSLATE_NOOP("Text", "Use another node. See to the network and the other nodes.")};

inline constexpr Rule kClusterNotSynced{
    "cluster-not-synced", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "A node of the cluster is not in step with the others, or refuses statements."),
    QT_TRANSLATE_NOOP("Text", "Wait until it is Synced, or use another node."), Severity::Warning};

inline constexpr Rule kClusterOff{
    "cluster-off", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The server is prepared for a cluster, and does not replicate."),
    QT_TRANSLATE_NOOP(
        "Text", "Set wsrep_on = ON, or remove wsrep_provider from a server that is to be alone.")};

inline constexpr Rule kClusterStaleReads{
    "cluster-stale-reads", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "wsrep_sync_wait lacks the bit 1, so a query may miss what other nodes have committed."),
    QT_TRANSLATE_NOOP("Text", "Set wsrep_sync_wait = 1 on every node.")};

inline constexpr Rule kColumnCharset{
    "column-charset", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A text column has a character set that lacks letters."),
    QT_TRANSLATE_NOOP("Text", "Convert the column to utf8mb4.")};

inline constexpr Rule kColumnKind{
    "column-kind", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A column has another kind of type than the plugin writes."),
    QT_TRANSLATE_NOOP("Text", "Give the column the type of reference-db/schema.sql.")};

inline constexpr Rule kColumnMissing{
    "column-missing", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "A column that the plugin uses does not exist, or the account has no rights on it."),
    QT_TRANSLATE_NOOP(
        "Text",
        "See the definition in reference-db/schema.sql. An account cannot see what it has no "
        "rights on.")};

inline constexpr Rule kColumnNotNull{
    "column-not-null", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A column does not allow NULL, which the plugin writes into it."),
    QT_TRANSLATE_NOOP("Text", "Allow NULL in the column.")};

inline constexpr Rule kColumnTooNarrow{
    "column-too-narrow", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A column cannot hold everything that the plugin writes into it."),
    QT_TRANSLATE_NOOP("Text", "Give the column the type of reference-db/schema.sql.")};

inline constexpr Rule kColumnWithoutDefault{
    "column-without-default", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "A column that the plugin leaves out has no default value, so new rows are refused."),
    QT_TRANSLATE_NOOP("Text", "Give the column a default value.")};

inline constexpr Rule kColumnsHidden{
    "columns-hidden", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text", "The account sees only some columns of a table, so this check may miss others."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Check again with an account that reads whole tables, such as mirovahrctl, and --other-"
        "account.")};

inline constexpr Rule kConnectionCharset{
    "connection-charset", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The connection's character set is not UTF-8: accented letters are stored wrongly."),
    QT_TRANSLATE_NOOP("Text", "Check the server's init_connect for SET NAMES.")};

inline constexpr Rule kDepartmentTooLarge{
    "department-too-large", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "The column of the department cannot hold that of the configuration."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Give the column the type of reference-db/schema.sql, or write a smaller departmentId.")};

inline constexpr Rule kFoundRows{
    "found-rows", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The connect options contain CLIENT_FOUND_ROWS, so the plugin miscounts changed rows."),
    QT_TRANSLATE_NOOP("Text", "Leave the option out, here and in the attendance server.")};

inline constexpr Rule kGroupsReserved{
    "groups-reserved", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "The server reserves the word groups, so a statement of the plugin fails."),
    QT_TRANSLATE_NOOP("Text", "Use MariaDB, or MySQL up to 5.7.")};

inline constexpr Rule kIdentityMissing{
    "identity-missing", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "A table has no unique key where the plugin expects one row for each value."),
    QT_TRANSLATE_NOOP("Text", "Remove the duplicate rows and add the key.")};

inline constexpr Rule kKeyMissing{
    "key-missing", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "A unique key is missing: the plugin inserts a second row instead of updating the "
        "first."),
    QT_TRANSLATE_NOOP("Text", "Remove the duplicate rows and add the key.")};

inline constexpr Rule kKeyMissingElsewhere{
    "key-missing-elsewhere", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "A unique key is missing that another component of the attendance server needs."),
    QT_TRANSLATE_NOOP("Text", "Remove the duplicate rows and add the key.")};

inline constexpr Rule kKeyUnexpected{
    "key-unexpected", Severity::Error,
    QT_TRANSLATE_NOOP("Text",
                      "A further unique key can make the plugin change another row than it means."),
    QT_TRANSLATE_NOOP("Text", "Make the key non-unique.")};

inline constexpr Rule kMissingElsewhere{
    "missing-elsewhere", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text",
        "A table or column is missing that only other components of the attendance server use.")};

inline constexpr Rule kNoTimeout{
    "no-timeout", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "The connect options set no time limit: a silent server freezes the plugin."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Give the attendance server's connection the connect options MYSQL_OPT_CONNECT_TIMEOUT=30, "
        "MYSQL_OPT_READ_TIMEOUT=120 and MYSQL_OPT_WRITE_TIMEOUT=120, and this check the same with "
        "--connect-options. yavhost sets them by itself.")};

inline constexpr Rule kNotAutomatic{
    "not-automatic", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "A column is not AUTO_INCREMENT, but the plugin leaves its value to the server."),
    QT_TRANSLATE_NOOP("Text", "Make it AUTO_INCREMENT.")};

inline constexpr Rule kNotTransactional{
    "not-transactional", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A table does not support transactions."),
    QT_TRANSLATE_NOOP("Text", "Use a transactional engine, such as InnoDB.")};

inline constexpr Rule kPayrollExportNone{
    "payroll-export-none", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "There is no payroll export, so the plugin adds new people to none."),
    QT_TRANSLATE_NOOP("Text", "Ignore this if nobody should be added.")};

inline constexpr Rule kPayrollExportSeveral{
    "payroll-export-several", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "There are several payroll exports, so the plugin adds new people to none."),
    QT_TRANSLATE_NOOP("Text", "Ignore this if nobody should be added.")};

inline constexpr Rule kPayrollIdStrange{
    "payroll-id-strange", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The pid and pamId of an active person disagree."),
    QT_TRANSLATE_NOOP(
        "Text",
        "pamId is the personal number, a dot and the number of the relationship; pid is the "
        "digits of both joined.")};

inline constexpr Rule kPrimaryKeyWanted{
    "primary-key-wanted", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The cluster refuses writes to tables without a primary key, and there is such a table."),
    QT_TRANSLATE_NOOP(
        "Text", "Add a column id BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY."),
    Severity::Note};

inline constexpr Rule kRightExcess{
    "right-excess", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The account has more rights than the plugin needs."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Run the plugin with an account as in reference-db/grants.sql; see docs/security.md.")};

inline constexpr Rule kRightMissing{
    "right-missing", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The account lacks a right that the plugin needs."),
    QT_TRANSLATE_NOOP("Text", "Load reference-db/grants.sql, with the account's name in it.")};

inline constexpr Rule kRoutineArguments{
    "routine-arguments", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "A routine takes a different number of arguments from what the plugin passes."),
    QT_TRANSLATE_NOOP("Text", "Compare it with reference-db/routines.sql.")};

inline constexpr Rule kRoutineFails{
    "routine-fails", Severity::Error, QT_TRANSLATE_NOOP("Text", "A routine fails."),
    QT_TRANSLATE_NOOP("Text", "Compare it with reference-db/routines.sql.")};

inline constexpr Rule kRoutineLateDays{
    "routine-late-days", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "A function fails for days beyond the server's range."),
    QT_TRANSLATE_NOOP("Text",
                      "Create the function again in an SQL mode that is not strict, as reference-"
                      "db/routines.sql does, and grant EXECUTE on it again.")};

inline constexpr Rule kRoutineMissing{
    "routine-missing", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A routine does not exist, or the account may not call it."),
    QT_TRANSLATE_NOOP("Text", "See reference-db/routines.sql and reference-db/grants.sql.")};

inline constexpr Rule kRoutineUnseen{
    "routine-unseen", Severity::Note,
    QT_TRANSLATE_NOOP("Text", "The account cannot see a routine."),
    QT_TRANSLATE_NOOP("Text", "Check with the plugin's account as well.")};

inline constexpr Rule kRoutineWrong{
    "routine-wrong", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A function returns a wrong result."),
    QT_TRANSLATE_NOOP("Text", "Compare it with reference-db/routines.sql.")};

inline constexpr Rule kSelectionWidth{
    "selection-width", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text", "The column of the payroll export's selection cannot name every active person."),
    QT_TRANSLATE_NOOP("Text", "Make the column a MEDIUMTEXT.")};

inline constexpr Rule kServerReadOnly{
    "server-read-only", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The server is read-only, so every write of the plugin fails."),
    QT_TRANSLATE_NOOP("Text", "Use the server that accepts writes, not a replica.")};

inline constexpr Rule kSeveralStatements{
    "several-statements", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The connection refuses several statements in one text."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Check for a proxy between this machine and the server that splits the statements.")};

inline constexpr Rule kSqlModeBackslash{
    "sql-mode-backslash", Severity::Note,
    QT_TRANSLATE_NOOP(
        "Text", "The SQL mode NO_BACKSLASH_ESCAPES is on, so a backslash is stored literally."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Run the gate with --texts no-backslash-escapes: otherwise it doubles backslashes.")};

inline constexpr Rule kSqlModeEmptyNull{
    "sql-mode-empty-null", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The SQL mode EMPTY_STRING_IS_NULL is on, so people with empty texts cannot be written."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Remove the mode from the server's sql_mode, or from that of the plugin's connections.")};

inline constexpr Rule kSqlModeGroupBy{
    "sql-mode-group-by", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The SQL mode ONLY_FULL_GROUP_BY is on, so some statements fail."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Remove the mode from the server's sql_mode, or from that of the plugin's connections.")};

inline constexpr Rule kSqlModeNotStrict{
    "sql-mode-not-strict", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "No strict SQL mode is on, so values that do not fit are altered silently."),
    QT_TRANSLATE_NOOP("Text", "Add STRICT_TRANS_TABLES to the server's sql_mode.")};

inline constexpr Rule kStateTextLetters{
    "state-text-letters", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The column of the relationship state lacks letters of a text in the configuration."),
    QT_TRANSLATE_NOOP("Text", "Convert the column to utf8mb4.")};

inline constexpr Rule kStateTextTooLong{
    "state-text-too-long", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The column of the relationship state is shorter than a text in the configuration."),
    QT_TRANSLATE_NOOP("Text", "Shorten the text in the group MES, or widen the column.")};

inline constexpr Rule kStatementScans{
    "statement-scans", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "Without a key, statements that the plugin sends for each person walk a large table."),
    QT_TRANSLATE_NOOP("Text", "Add the key of reference-db/schema.sql.")};

inline constexpr Rule kStatusDefault{
    "status-default", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The default of people.status is not 1, so new people are inactive."),
    QT_TRANSLATE_NOOP("Text", "Make 1 the default of the column.")};

inline constexpr Rule kSupervisorTwice{
    "supervisor-twice", Severity::Warning,
    QT_TRANSLATE_NOOP(
        "Text",
        "Several administrators have the same personal number; any of them gets the requests."),
    QT_TRANSLATE_NOOP("Text", "Give the number to one administrator only.")};

inline constexpr Rule kTableMissing{
    "table-missing", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text", "A table that the plugin uses does not exist, or the account has no rights on it."),
    QT_TRANSLATE_NOOP(
        "Text",
        "See the definition in reference-db/schema.sql. An account cannot see what it has no "
        "rights on.")};

inline constexpr Rule kTemporaryTableRefused{
    "temporary-table-refused", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "The server refuses temporary tables without a primary key."),
    QT_TRANSLATE_NOOP("Text", "Change the setting of the server that the finding names.")};

inline constexpr Rule kTimeZone{
    "time-zone", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The server and this program disagree about when days begin."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Run this check with the TZ of the attendance server. If the error remains, give both "
        "the same zone by name: an offset such as +01:00 has no daylight saving time.")};

inline constexpr Rule kVacationFundNone{
    "vacation-fund-none", Severity::Warning,
    QT_TRANSLATE_NOOP("Text",
                      "There is no vacation fund, so vacation balances are not synchronised."),
    QT_TRANSLATE_NOOP("Text", "Ignore this if they should not be.")};

inline constexpr Rule kVacationFundNumber{
    "vacation-fund-number", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The number of the vacation fund exceeds 16 bits; the plugin would write to another "
        "fund."),
    QT_TRANSLATE_NOOP("Text", "Give the fund a number up to 65535.")};

inline constexpr Rule kVacationFundSeveral{
    "vacation-fund-several", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "There are several vacation funds; the plugin uses any of them."),
    QT_TRANSLATE_NOOP("Text", "Keep only one.")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kAdminIdLarge,
    &kBranchIdLarge,
    &kBranchNumberTwice,
    &kCalendarTwice,
    &kClock,
    &kClusterAutoincLockMode,
    &kClusterBinlogFormat,
    &kClusterDonorBlocked,
    &kClusterEngine,
    &kClusterFewRetries,
    &kClusterKeyless,
    &kClusterNodeIncrement,
    &kClusterNodeNotAsked,
    &kClusterNodeSqlMode,
    &kClusterNodeTimeZone,
    &kClusterNodeVersion,
    &kClusterNotPrimary,
    &kClusterNotSynced,
    &kClusterOff,
    &kClusterStaleReads,
    &kColumnCharset,
    &kColumnKind,
    &kColumnMissing,
    &kColumnNotNull,
    &kColumnTooNarrow,
    &kColumnWithoutDefault,
    &kColumnsHidden,
    &kConnectionCharset,
    &kDepartmentTooLarge,
    &kFoundRows,
    &kGroupsReserved,
    &kIdentityMissing,
    &kKeyMissing,
    &kKeyMissingElsewhere,
    &kKeyUnexpected,
    &kMissingElsewhere,
    &kNoTimeout,
    &kNotAutomatic,
    &kNotTransactional,
    &kPayrollExportNone,
    &kPayrollExportSeveral,
    &kPayrollIdStrange,
    &kPrimaryKeyWanted,
    &kRightExcess,
    &kRightMissing,
    &kRoutineArguments,
    &kRoutineFails,
    &kRoutineLateDays,
    &kRoutineMissing,
    &kRoutineUnseen,
    &kRoutineWrong,
    &kSelectionWidth,
    &kServerReadOnly,
    &kSeveralStatements,
    &kSqlModeBackslash,
    &kSqlModeEmptyNull,
    &kSqlModeGroupBy,
    &kSqlModeNotStrict,
    &kStateTextLetters,
    &kStateTextTooLong,
    &kStatementScans,
    &kStatusDefault,
    &kSupervisorTwice,
    &kTableMissing,
    &kTemporaryTableRefused,
    &kTimeZone,
    &kVacationFundNone,
    &kVacationFundNumber,
    &kVacationFundSeveral,
};

} // namespace CheckDbRules
