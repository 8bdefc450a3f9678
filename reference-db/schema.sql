-- Attendance database: the tables and columns that the MirovaHR plugin reads or writes.
-- A site's own tables hold more; names, units and unique keys are as here.
--
-- Units:  timestamp = Unix time in seconds, 64 bits, signed
--         day       = timestamp of a local midnight
--         month     = year * 100 + month, as in 202403
-- Local time is the time zone of the server's sessions.
--
-- Ids of branches and administrators have 16 bits, because operations of the plugin and of the
-- repositories (db/) keep no more: in wider columns they would confuse 65537 with 1. Here the server
-- refuses such an id. Only `bas` takes 32 bits, as its operations do.
--
-- term_sync and pzt have a column `id` only to have a primary key: their rows may repeat. Servers can be
-- configured to refuse tables without one, and on a cluster two inserts into such a table conflict though
-- their rows differ. The column is invisible, so that statements without a list of columns still see the
-- others only. A site may do without it.
--
-- Load into an empty database, then routines.sql.

SET NAMES utf8mb4;

-- People -----------------------------------------------------------------------------------------

CREATE TABLE people (
    uid        INT UNSIGNED      NOT NULL AUTO_INCREMENT,
    pid        INT UNSIGNED      NOT NULL,               -- HR: personal number and relationship, joined
    pamId      VARCHAR(24)       NOT NULL DEFAULT '',    -- HR: the same two, as in 1234.1
    title      VARCHAR(40)       NOT NULL DEFAULT '',    -- before the name
    name       VARCHAR(60)       NOT NULL DEFAULT '',
    surname    VARCHAR(80)       NOT NULL DEFAULT '',
    title2     VARCHAR(40)       NOT NULL DEFAULT '',    -- after the name
    phone      VARCHAR(40)       NOT NULL DEFAULT '',
    begin      BIGINT            NOT NULL DEFAULT 0,     -- employed from (timestamp)
    `end`      BIGINT            NULL,                   -- employed to (timestamp), NULL = open
    created    BIGINT            NOT NULL DEFAULT 0,     -- timestamp
    edited     BIGINT            NOT NULL DEFAULT 0,     -- timestamp
    editor     INT UNSIGNED      NOT NULL DEFAULT 0,     -- administrator of the last edit, 0 = HR
    rsBegin    BIGINT            NULL,                   -- employment state: from (timestamp)
    rsEnd      BIGINT            NULL,                   -- employment state: to (timestamp)
    rsText     VARCHAR(120)      NOT NULL DEFAULT '',    -- employment state: its name
    type       TINYINT UNSIGNED  NOT NULL DEFAULT 0,     -- employment type
    did        INT UNSIGNED      NULL,                   -- department
    calendarID INT UNSIGNED      NOT NULL DEFAULT 0,     -- HR calendar code
    bid        SMALLINT UNSIGNED NULL,                   -- home branch
    status     TINYINT UNSIGNED  NOT NULL DEFAULT 1,     -- 1 active, 0 inactive
    lastCalc   BIGINT            NOT NULL DEFAULT 0,     -- attendance is to be calculated from here (timestamp)
    calc       BIGINT            NOT NULL DEFAULT 0,     -- last calculation (timestamp), 0 = one is due
    gid        INT UNSIGNED      NULL,                   -- calendar group where groups_plan has none
    PRIMARY KEY (uid),
    UNIQUE KEY (pid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Payroll export of a person.
CREATE TABLE people_pam (
    uid INT UNSIGNED NOT NULL,
    id  INT UNSIGNED NOT NULL,                           -- settings of the payroll export
    PRIMARY KEY (uid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- One row a person and day.
CREATE TABLE atten (
    uid    INT UNSIGNED     NOT NULL,
    `date` BIGINT           NOT NULL,                    -- day
    ok     TINYINT          NOT NULL DEFAULT -1,         -- below 0: to be calculated
    `lock` TINYINT UNSIGNED NOT NULL DEFAULT 0,          -- 1 = closed, never recalculated
    man    TINYINT UNSIGNED NOT NULL DEFAULT 0,          -- 1 = edited by hand, never recalculated
    PRIMARY KEY (uid, `date`)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Branches and what belongs to them --------------------------------------------------------------

CREATE TABLE branches (
    bid     SMALLINT UNSIGNED NOT NULL AUTO_INCREMENT,
    number  INT UNSIGNED      NULL,                      -- HR: cost centre, NULL = none
    name    VARCHAR(120)      NOT NULL DEFAULT '',
    address VARCHAR(255)      NOT NULL DEFAULT '',
    note    VARCHAR(1000)     NOT NULL DEFAULT '',
    wh1b    SMALLINT UNSIGNED NULL,                      -- working hours: Monday from
    wh1e    SMALLINT UNSIGNED NULL,                      --                Monday to, and so on
    wh2b    SMALLINT UNSIGNED NULL,
    wh2e    SMALLINT UNSIGNED NULL,
    wh3b    SMALLINT UNSIGNED NULL,
    wh3e    SMALLINT UNSIGNED NULL,
    wh4b    SMALLINT UNSIGNED NULL,
    wh4e    SMALLINT UNSIGNED NULL,
    wh5b    SMALLINT UNSIGNED NULL,
    wh5e    SMALLINT UNSIGNED NULL,
    wh6b    SMALLINT UNSIGNED NULL,
    wh6e    SMALLINT UNSIGNED NULL,
    wh7b    SMALLINT UNSIGNED NULL,
    wh7e    SMALLINT UNSIGNED NULL,
    mgid    INT UNSIGNED      NULL,                      -- master group, NULL = none
    PRIMARY KEY (bid),
    KEY (number)                                         -- all that the plugin loads of the branches
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- People of a branch.
CREATE TABLE brape (
    bid   SMALLINT UNSIGNED NOT NULL,
    uid   INT UNSIGNED      NOT NULL,
    since BIGINT            NOT NULL DEFAULT 0,          -- timestamp
    PRIMARY KEY (bid, uid),
    KEY (uid)                                            -- administrators of a person
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Administrators of a branch.
CREATE TABLE bradm (
    bid SMALLINT UNSIGNED NOT NULL,
    aid SMALLINT UNSIGNED NOT NULL,
    PRIMARY KEY (bid, aid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

CREATE TABLE sections (
    secid INT UNSIGNED NOT NULL AUTO_INCREMENT,
    PRIMARY KEY (secid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- A section is in one branch at a time.
CREATE TABLE sec_branch (
    secid INT UNSIGNED      NOT NULL,
    bid   SMALLINT UNSIGNED NOT NULL,
    PRIMARY KEY (secid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Attributes of a branch's sections.
CREATE TABLE bas (
    bid    INT UNSIGNED NOT NULL,
    attrid INT UNSIGNED NOT NULL,
    secid  INT UNSIGNED NOT NULL,
    PRIMARY KEY (bid, attrid, secid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Calendars --------------------------------------------------------------------------------------

CREATE TABLE mastergroups (
    mgid INT UNSIGNED NOT NULL AUTO_INCREMENT,
    PRIMARY KEY (mgid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- `groups` is a reserved word in MySQL 8; the plugin writes it without quotes.
CREATE TABLE `groups` (
    gid        INT UNSIGNED NOT NULL AUTO_INCREMENT,
    parent     INT UNSIGNED NULL,                        -- master group
    calendarID INT UNSIGNED NOT NULL DEFAULT 0,          -- HR calendar code
    PRIMARY KEY (gid),
    KEY (parent, calendarID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Calendar group of a person from a month on; a new group for the same month replaces the old one.
CREATE TABLE groups_plan (
    gid   INT UNSIGNED NOT NULL,
    uid   INT UNSIGNED NOT NULL,
    since INT UNSIGNED NOT NULL,                         -- month
    PRIMARY KEY (uid, since)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Calendar group of a person in each month with attendance.
CREATE TABLE groups_month (
    gid   INT UNSIGNED NOT NULL,
    uid   INT UNSIGNED NOT NULL,
    month INT UNSIGNED NOT NULL,                         -- month
    PRIMARY KEY (uid, month)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Funds ------------------------------------------------------------------------------------------

CREATE TABLE funds (
    fid  INT UNSIGNED     NOT NULL AUTO_INCREMENT,
    iid  INT UNSIGNED     NOT NULL,                      -- interval type that draws on the fund
    unit TINYINT UNSIGNED NOT NULL DEFAULT 0,            -- the vacation fund: iid 3, unit 2
    PRIMARY KEY (fid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

CREATE TABLE funds_move (
    type  TINYINT UNSIGNED NOT NULL,                     -- 3 = correction to the balance that HR keeps
    day   BIGINT           NOT NULL,                     -- day
    month INT UNSIGNED     NOT NULL,                     -- month of the day
    value INT              NOT NULL DEFAULT 0,           -- hundredths of the fund's unit
    fid   INT UNSIGNED     NOT NULL,
    uid   INT UNSIGNED     NOT NULL,
    PRIMARY KEY (uid, fid, day, type)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Administrators ---------------------------------------------------------------------------------

CREATE TABLE admins (
    aid            SMALLINT UNSIGNED NOT NULL AUTO_INCREMENT,
    personalNumber INT UNSIGNED      NULL,               -- HR: personal number of the supervisor
    PRIMARY KEY (aid),
    KEY (personalNumber)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

CREATE TABLE admins_people (
    aid     SMALLINT UNSIGNED NOT NULL,
    uid     INT UNSIGNED      NOT NULL,
    request TINYINT UNSIGNED  NOT NULL DEFAULT 0,        -- 1 = receives the person's requests
    PRIMARY KEY (aid, uid),
    KEY (uid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Terminals --------------------------------------------------------------------------------------

-- Bits of flags (what the terminal supports) and syn (what it has to fetch):
-- 1 interval types, 2 people, 64 time zones, 256 colour groups.
CREATE TABLE term (
    tid    INT UNSIGNED      NOT NULL AUTO_INCREMENT,
    bid    SMALLINT UNSIGNED NULL,                       -- branch, NULL = none
    status TINYINT UNSIGNED  NOT NULL DEFAULT 1,         -- 0 switched off, 1 active
    flags  INT UNSIGNED      NOT NULL DEFAULT 0,
    syn    INT UNSIGNED      NOT NULL DEFAULT 0,
    PRIMARY KEY (tid),
    KEY (bid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- One row for each change that a terminal has to fetch.
CREATE TABLE term_sync (
    tid      INT UNSIGNED NOT NULL,
    type     CHAR(1)      NOT NULL,                      -- I inserted, U updated, D deleted
    ref      VARCHAR(64)  NOT NULL,                      -- table whose row changed
    ref_col  VARCHAR(64)  NOT NULL,                      -- its key column and value
    ref_id   INT UNSIGNED NOT NULL,
    ref_col2 VARCHAR(64)  NULL,                          -- second key column and value (time zones)
    ref_id2  INT UNSIGNED NULL,
    created  BIGINT       NOT NULL,                      -- timestamp
    flags    INT UNSIGNED NOT NULL,                      -- the bit of the kind of data
    id       BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT,
    PRIMARY KEY (id),
    KEY (tid, created)                                   -- what a terminal fetches, in its order
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

CREATE TABLE people_term (
    tid INT UNSIGNED NOT NULL,
    uid INT UNSIGNED NOT NULL,
    PRIMARY KEY (tid, uid),
    KEY (uid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

CREATE TABLE inters (
    iid INT UNSIGNED NOT NULL AUTO_INCREMENT,
    PRIMARY KEY (iid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

CREATE TABLE inters_term (
    iid INT UNSIGNED NOT NULL,
    tid INT UNSIGNED NOT NULL,
    PRIMARY KEY (iid, tid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Time zones held by a terminal, one row for each person who uses one: rows may repeat.
CREATE TABLE pzt (
    zid INT UNSIGNED NOT NULL,
    tid INT UNSIGNED NOT NULL,
    id  BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT,
    PRIMARY KEY (id),
    KEY (zid, tid)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;

-- Settings ---------------------------------------------------------------------------------------

-- Names are equal only when all characters are equal, trailing blanks included.
CREATE TABLE vars (
    name  VARCHAR(160) COLLATE utf8mb4_nopad_bin NOT NULL,
    value MEDIUMTEXT   NULL,
    PRIMARY KEY (name)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_slovak_ci;
