-- Attendance database: the routines that the MirovaHR plugin calls.
-- They run with the rights of the caller. Days and months are those of the session's time zone.
--
-- A routine keeps the SQL mode in which it was created, so this file sets it. It is not strict because
-- FROM_UNIXTIME up to MariaDB 11.4 knows the time from 1970 to 19 January 2038 only, later to 2106. For
-- other times the results are NULL; a strict mode would make that an error, and one day of attendance with a
-- mistyped year would keep all months of the person from being filled.

SET NAMES utf8mb4;
SET @old_sql_mode = @@SESSION.sql_mode, SESSION sql_mode = '';

DELIMITER //

-- Timestamp of the local midnight that begins the day of a timestamp.
CREATE FUNCTION midnightFromTs(p_ts BIGINT) RETURNS BIGINT
    NO SQL
    SQL SECURITY INVOKER
    RETURN UNIX_TIMESTAMP(DATE(FROM_UNIXTIME(p_ts)))
//

-- Month (year * 100 + month) of a timestamp.
CREATE FUNCTION monthFromTimestamp(p_ts BIGINT) RETURNS INT UNSIGNED
    NO SQL
    SQL SECURITY INVOKER
    RETURN EXTRACT(YEAR_MONTH FROM FROM_UNIXTIME(p_ts))
//

-- Calendar group in force for a person in a month: the latest planned one that has begun by then,
-- else p_default, which may be NULL.
CREATE FUNCTION getCurrentGid(p_uid INT UNSIGNED, p_month INT UNSIGNED, p_default INT UNSIGNED)
    RETURNS INT UNSIGNED
    READS SQL DATA
    SQL SECURITY INVOKER
    RETURN COALESCE((SELECT gid
                       FROM groups_plan
                      WHERE uid = p_uid AND since <= p_month
                      ORDER BY since DESC
                      LIMIT 1),
                    p_default)
//

-- Marks the active terminals that hold a person and support a kind of data (p_flag, a bit of
-- term.flags) as having that kind to fetch.
CREATE PROCEDURE updateTermsSync(IN p_uid INT UNSIGNED, IN p_flag INT UNSIGNED)
    MODIFIES SQL DATA
    SQL SECURITY INVOKER
    UPDATE term
       SET syn = syn | p_flag
     WHERE status = 1
       AND (flags & p_flag)
       AND tid IN (SELECT tid FROM people_term WHERE uid = p_uid)
//

DELIMITER ;

SET SESSION sql_mode = @old_sql_mode;
