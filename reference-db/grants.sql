-- Attendance database: the accounts of the MirovaHR plugin and of mirovahrctl, with exactly the
-- rights that they need. docs/security.md says why that matters.
--
-- As administrator, after the tables and routines are there, on the database that is to be used:
--
--     mariadb tepdb < grants.sql
--
-- New accounts are locked. Give each its password, from a prompt that keeps no history:
--
--     ALTER USER 'yav'@'localhost' IDENTIFIED BY '...' ACCOUNT UNLOCK;
--
-- The plugin uses the connection that the attendance server passes to it, so `yav` stands for the
-- server's account. An existing account keeps its password and its other rights: check them with
-- SHOW GRANTS. A server that is another machine needs its own host instead of 'localhost'.

SET NAMES utf8mb4;

-- The plugin -------------------------------------------------------------------------------------
-- It deletes nothing and creates no tables. For a column that an upsert inserts, MariaDB also
-- requires the right to update it.

CREATE USER IF NOT EXISTS 'yav'@'localhost' ACCOUNT LOCK;

-- MariaDB 10.11 does not require SELECT (bid) and UPDATE (status) here; other servers do.
GRANT SELECT (uid, pid, pamId, title, name, surname, title2, phone, begin, `end`, created, edited,
              rsBegin, rsEnd, rsText, type, did, calendarID, bid, status, lastCalc, calc, gid),
      INSERT (pid, pamId, title, name, surname, title2, phone, begin, `end`, created, rsBegin, rsEnd,
              rsText, type, did, calendarID, bid),
      UPDATE (pid, pamId, title, name, surname, title2, phone, begin, `end`, created, edited, editor,
              rsBegin, rsEnd, rsText, type, did, calendarID, bid, status, lastCalc, calc)
    ON people TO 'yav'@'localhost';
GRANT SELECT (id), INSERT (uid, id), UPDATE (uid, id) ON people_pam TO 'yav'@'localhost';
GRANT SELECT (uid, `date`, ok, `lock`, man), UPDATE (ok) ON atten TO 'yav'@'localhost';

GRANT SELECT (bid, number, mgid) ON branches TO 'yav'@'localhost';
GRANT SELECT (bid, uid, since), INSERT (bid, uid, since), UPDATE (bid, uid, since)
    ON brape TO 'yav'@'localhost';
GRANT SELECT (bid, aid) ON bradm TO 'yav'@'localhost';

GRANT SELECT (mgid) ON mastergroups TO 'yav'@'localhost';
GRANT SELECT (gid, parent, calendarID) ON `groups` TO 'yav'@'localhost';
GRANT SELECT (gid, uid, since), INSERT (gid, uid, since), UPDATE (gid, uid, since)
    ON groups_plan TO 'yav'@'localhost';
GRANT SELECT (gid, uid, month), INSERT (gid, uid, month), UPDATE (gid, uid, month)
    ON groups_month TO 'yav'@'localhost';

GRANT SELECT (fid, iid, unit) ON funds TO 'yav'@'localhost';
GRANT SELECT (type, day, value, fid, uid), INSERT (type, day, month, value, fid, uid),
      UPDATE (type, day, month, value, fid, uid)
    ON funds_move TO 'yav'@'localhost';

GRANT SELECT (aid, personalNumber) ON admins TO 'yav'@'localhost';
GRANT SELECT (aid, uid, request), INSERT (aid, uid, request), UPDATE (aid, uid, request)
    ON admins_people TO 'yav'@'localhost';

GRANT SELECT (tid, bid, status, flags, syn), UPDATE (syn) ON term TO 'yav'@'localhost';
GRANT INSERT (tid, type, ref, ref_col, ref_id, created, flags) ON term_sync TO 'yav'@'localhost';
GRANT SELECT (tid, uid), INSERT (tid, uid), UPDATE (tid, uid) ON people_term TO 'yav'@'localhost';

GRANT SELECT (name, value), INSERT (name, value), UPDATE (name, value) ON vars TO 'yav'@'localhost';

GRANT EXECUTE ON FUNCTION midnightFromTs TO 'yav'@'localhost';
GRANT EXECUTE ON FUNCTION monthFromTimestamp TO 'yav'@'localhost';
GRANT EXECUTE ON FUNCTION getCurrentGid TO 'yav'@'localhost';
GRANT EXECUTE ON PROCEDURE updateTermsSync TO 'yav'@'localhost';

-- mirovahrctl ------------------------------------------------------------------------------------
-- It only reads: whole tables, because `preview` copies them and `check-db` uses it to find columns
-- that the plugin's account cannot see. `force`, which sets a key in vars, and the first run of
-- `check-db`, which checks the rights of the plugin's account, need the plugin's account instead.
-- EXECUTE on updateTermsSync is left out on purpose: that routine writes.

CREATE USER IF NOT EXISTS 'mirovahrctl'@'localhost' ACCOUNT LOCK;

GRANT SELECT ON people TO 'mirovahrctl'@'localhost';
GRANT SELECT ON people_pam TO 'mirovahrctl'@'localhost';
GRANT SELECT ON atten TO 'mirovahrctl'@'localhost';
GRANT SELECT ON branches TO 'mirovahrctl'@'localhost';
GRANT SELECT ON brape TO 'mirovahrctl'@'localhost';
GRANT SELECT ON bradm TO 'mirovahrctl'@'localhost';
GRANT SELECT ON sections TO 'mirovahrctl'@'localhost';
GRANT SELECT ON sec_branch TO 'mirovahrctl'@'localhost';
GRANT SELECT ON bas TO 'mirovahrctl'@'localhost';
GRANT SELECT ON mastergroups TO 'mirovahrctl'@'localhost';
GRANT SELECT ON `groups` TO 'mirovahrctl'@'localhost';
GRANT SELECT ON groups_plan TO 'mirovahrctl'@'localhost';
GRANT SELECT ON groups_month TO 'mirovahrctl'@'localhost';
GRANT SELECT ON funds TO 'mirovahrctl'@'localhost';
GRANT SELECT ON funds_move TO 'mirovahrctl'@'localhost';
GRANT SELECT ON admins TO 'mirovahrctl'@'localhost';
GRANT SELECT ON admins_people TO 'mirovahrctl'@'localhost';
GRANT SELECT ON term TO 'mirovahrctl'@'localhost';
GRANT SELECT ON term_sync TO 'mirovahrctl'@'localhost';
GRANT SELECT ON people_term TO 'mirovahrctl'@'localhost';
GRANT SELECT ON inters TO 'mirovahrctl'@'localhost';
GRANT SELECT ON inters_term TO 'mirovahrctl'@'localhost';
GRANT SELECT ON pzt TO 'mirovahrctl'@'localhost';
GRANT SELECT ON vars TO 'mirovahrctl'@'localhost';

GRANT EXECUTE ON FUNCTION midnightFromTs TO 'mirovahrctl'@'localhost';
GRANT EXECUTE ON FUNCTION monthFromTimestamp TO 'mirovahrctl'@'localhost';
GRANT EXECUTE ON FUNCTION getCurrentGid TO 'mirovahrctl'@'localhost';

-- The texts of the routines, which `preview` copies. Otherwise MariaDB shows them only to their
-- definers. TRIGGER, without which nobody sees triggers, is left out on purpose: it also allows
-- creating triggers, and so blocking every change of a table. `preview` says that it cannot see them;
-- use another account for it where tables of the plugin have triggers.
GRANT SELECT ON mysql.proc TO 'mirovahrctl'@'localhost';
