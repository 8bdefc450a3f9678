<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The id of an administrator exceeds 16 bits, which is all that other components keep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the administrators ids up to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id of a branch exceeds 16 bits; members are added to another branch, or to none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the branches ids up to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several branches have the same number; people are placed in any of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the number to one branch only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several calendar groups have the same calendar; people are placed in any of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep one group for each calendar in a master group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clocks of the server and of this machine differ.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synchronise both with the same time server: the plugin compares times of the two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>innodb_autoinc_lock_mode is not 2, so inserts of several nodes can block each other for good.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set innodb_autoinc_lock_mode = 2 on every node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>binlog_format is not ROW, the only one that a Galera cluster replicates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set binlog_format = ROW on every node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A node that is being copied to a joining one does not work meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set wsrep_sst_method = mariabackup and wsrep_sst_donor_rejects_queries = OFF on every node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table has an engine that the cluster does not replicate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert the table: ALTER TABLE ... ENGINE = InnoDB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wsrep_retry_autocommit is below 5, so statements fail at conflicts with other nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set wsrep_retry_autocommit = 5, or more, on every node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table has no primary key, so different new rows of two nodes conflict.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a column id BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another node counts automatic numbers in other steps than this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set wsrep_auto_increment_control = ON, or the same auto_increment_increment, on every node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A member of the cluster could not be asked, so this check says nothing about it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check it by itself. Here the account must be allowed to connect to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another node has another SQL mode than this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give every node the same sql_mode: the plugin works with each of them after a fail-over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another node is in another time zone than this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give every node, and the attendance server, the same time zone by its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another node has another version than this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish the upgrade of the cluster.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node has lost the majority of its cluster, and refuses every statement.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use another node. See to the network and the other nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A node of the cluster is not in step with the others, or refuses statements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait until it is Synced, or use another node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is prepared for a cluster, and does not replicate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set wsrep_on = ON, or remove wsrep_provider from a server that is to be alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wsrep_sync_wait lacks the bit 1, so a query may miss what other nodes have committed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set wsrep_sync_wait = 1 on every node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text column has a character set that lacks letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert the column to utf8mb4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column has another kind of type than the plugin writes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column that the plugin uses does not exist, or the account has no rights on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the definition in reference-db/schema.sql. An account cannot see what it has no rights on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column does not allow NULL, which the plugin writes into it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow NULL in the column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column cannot hold everything that the plugin writes into it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column that the plugin leaves out has no default value, so new rows are refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the column a default value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account sees only some columns of a table, so this check may miss others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check again with an account that reads whole tables, such as mirovahrctl, and --other-account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection&apos;s character set is not UTF-8: accented letters are stored wrongly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the server&apos;s init_connect for SET NAMES.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column of the department cannot hold that of the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql, or write a smaller departmentId.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connect options contain CLIENT_FOUND_ROWS, so the plugin miscounts changed rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the option out, here and in the attendance server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server reserves the word groups, so a statement of the plugin fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use MariaDB, or MySQL up to 5.7.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table has no unique key where the plugin expects one row for each value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the duplicate rows and add the key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A unique key is missing: the plugin inserts a second row instead of updating the first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A unique key is missing that another component of the attendance server needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A further unique key can make the plugin change another row than it means.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the key non-unique.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table or column is missing that only other components of the attendance server use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connect options set no time limit: a silent server freezes the plugin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the attendance server&apos;s connection the connect options MYSQL_OPT_CONNECT_TIMEOUT=30, MYSQL_OPT_READ_TIMEOUT=120 and MYSQL_OPT_WRITE_TIMEOUT=120, and this check the same with --connect-options. yavhost sets them by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column is not AUTO_INCREMENT, but the plugin leaves its value to the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make it AUTO_INCREMENT.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table does not support transactions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use a transactional engine, such as InnoDB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no payroll export, so the plugin adds new people to none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore this if nobody should be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several payroll exports, so the plugin adds new people to none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pid and pamId of an active person disagree.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pamId is the personal number, a dot and the number of the relationship; pid is the digits of both joined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cluster refuses writes to tables without a primary key, and there is such a table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account has more rights than the plugin needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run the plugin with an account as in reference-db/grants.sql; see docs/security.md.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account lacks a right that the plugin needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load reference-db/grants.sql, with the account&apos;s name in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A routine takes a different number of arguments from what the plugin passes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare it with reference-db/routines.sql.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A routine fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A function fails for days beyond the server&apos;s range.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create the function again in an SQL mode that is not strict, as reference-db/routines.sql does, and grant EXECUTE on it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A routine does not exist, or the account may not call it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See reference-db/routines.sql and reference-db/grants.sql.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account cannot see a routine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check with the plugin&apos;s account as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A function returns a wrong result.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column of the payroll export&apos;s selection cannot name every active person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the column a MEDIUMTEXT.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is read-only, so every write of the plugin fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the server that accepts writes, not a replica.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection refuses several statements in one text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for a proxy between this machine and the server that splits the statements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SQL mode NO_BACKSLASH_ESCAPES is on, so a backslash is stored literally.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run the gate with --texts no-backslash-escapes: otherwise it doubles backslashes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SQL mode EMPTY_STRING_IS_NULL is on, so people with empty texts cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the mode from the server&apos;s sql_mode, or from that of the plugin&apos;s connections.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SQL mode ONLY_FULL_GROUP_BY is on, so some statements fail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No strict SQL mode is on, so values that do not fit are altered silently.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add STRICT_TRANS_TABLES to the server&apos;s sql_mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column of the relationship state lacks letters of a text in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column of the relationship state is shorter than a text in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorten the text in the group MES, or widen the column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a key, statements that the plugin sends for each person walk a large table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the key of reference-db/schema.sql.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default of people.status is not 1, so new people are inactive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make 1 the default of the column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several administrators have the same personal number; any of them gets the requests.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the number to one administrator only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table that the plugin uses does not exist, or the account has no rights on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refuses temporary tables without a primary key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the setting of the server that the finding names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server and this program disagree about when days begin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run this check with the TZ of the attendance server. If the error remains, give both the same zone by name: an offset such as +01:00 has no daylight saving time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no vacation fund, so vacation balances are not synchronised.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore this if they should not be.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of the vacation fund exceeds 16 bits; the plugin would write to another fund.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the fund a number up to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several vacation funds; the plugin uses any of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep only one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
