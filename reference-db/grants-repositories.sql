-- Attendance database: what the account `yav` needs on top of grants.sql when the attendance server
-- itself uses the repository classes (db/) over its connection: branches and their members, calendar
-- plans, the terminal queue, settings. The plugin needs none of this: do not load it for a server
-- that only runs the plugin.
--
-- Load as administrator, after grants.sql.

SET NAMES utf8mb4;

GRANT INSERT (number, name, address, note, wh1b, wh1e, wh2b, wh2e, wh3b, wh3e, wh4b, wh4e, wh5b, wh5e,
              wh6b, wh6e, wh7b, wh7e, mgid),
      UPDATE (number, name, address, note, wh1b, wh1e, wh2b, wh2e, wh3b, wh3e, wh4b, wh4e, wh5b, wh5e,
              wh6b, wh6e, wh7b, wh7e, mgid)
    ON branches TO 'yav'@'localhost';
GRANT DELETE ON brape TO 'yav'@'localhost';
GRANT INSERT (bid, aid), UPDATE (bid, aid), DELETE ON bradm TO 'yav'@'localhost';
GRANT SELECT (secid) ON sections TO 'yav'@'localhost';
GRANT SELECT (secid, bid), INSERT (secid, bid), UPDATE (secid, bid), DELETE
    ON sec_branch TO 'yav'@'localhost';
GRANT SELECT (bid, attrid, secid), INSERT (bid, attrid, secid), UPDATE (bid, attrid, secid), DELETE
    ON bas TO 'yav'@'localhost';

GRANT DELETE ON groups_plan TO 'yav'@'localhost';
GRANT DELETE ON admins_people TO 'yav'@'localhost';

GRANT UPDATE (bid) ON term TO 'yav'@'localhost';
GRANT INSERT (ref_col2, ref_id2) ON term_sync TO 'yav'@'localhost';
GRANT DELETE ON people_term TO 'yav'@'localhost';
GRANT SELECT (iid) ON inters TO 'yav'@'localhost';
GRANT SELECT (iid, tid) ON inters_term TO 'yav'@'localhost';
GRANT SELECT (zid, tid) ON pzt TO 'yav'@'localhost';

GRANT DELETE ON vars TO 'yav'@'localhost';

-- For the time zones of the terminals.
GRANT CREATE TEMPORARY TABLES ON * TO 'yav'@'localhost';
