-- Attendance database: a small company for trials and tests. Load after schema.sql and routines.sql.
-- The same content every time; days are midnights of the session's time zone.

SET NAMES utf8mb4;

-- Branches and calendars -------------------------------------------------------------------------

INSERT INTO mastergroups (mgid) VALUES (1), (2);

-- Calendars 1 and 3 exist in both families, 2 only in the first.
INSERT INTO `groups` (gid, parent, calendarID) VALUES
    (11, 1, 1),
    (12, 1, 2),
    (13, 1, 3),
    (21, 2, 1),
    (23, 2, 3);

-- Working hours in minutes of the day.
INSERT INTO branches (bid, number, name, address, note, wh1b, wh1e, wh2b, wh2e, wh3b, wh3e,
                      wh4b, wh4e, wh5b, wh5e, wh6b, wh6e, wh7b, wh7e, mgid) VALUES
    (1, 120, 'Sklad',          'Prístavná 12, Bratislava', '',
     360, 840, 360, 840, 360, 840, 360, 840, 360, 840, NULL, NULL, NULL, NULL, 1),
    (2, 130, 'Predajňa',       'Hlavná 7, Košice',         'aj v sobotu',
     480, 1080, 480, 1080, 480, 1080, 480, 1080, 480, 1080, 480, 720, NULL, NULL, 2),
    (3, 140, 'Administratíva', 'Prístavná 14, Bratislava', '',
     480, 960, 480, 960, 480, 960, 480, 960, 480, 900, NULL, NULL, NULL, NULL, 1),
    (4, NULL, 'Brigádnici',    '',                         'mimo strediska',
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);

INSERT INTO sections (secid) VALUES (1), (2), (3);
INSERT INTO sec_branch (secid, bid) VALUES (1, 1), (2, 2);
INSERT INTO bas (bid, attrid, secid) VALUES (1, 1, 1), (2, 1, 2);

-- People -----------------------------------------------------------------------------------------

INSERT INTO people (uid, pid, pamId, title, name, surname, title2, phone, begin, `end`, created,
                    type, did, calendarID, bid, status, lastCalc, gid) VALUES
    (1, 10011, '1001.1', 'Ing.', 'Mária',  'Kováčová',  '',    '0905000001',
     UNIX_TIMESTAMP('2015-02-01'), NULL, UNIX_TIMESTAMP('2015-01-20'), 1, 1, 1, 1, 1,
     UNIX_TIMESTAMP('2025-03-31'), 11),
    (2, 10021, '1002.1', '',     'Peter',  'Horváth',   'MBA', '0905000002',
     UNIX_TIMESTAMP('2016-09-01'), NULL, UNIX_TIMESTAMP('2016-08-15'), 1, 1, 1, 2, 1,
     UNIX_TIMESTAMP('2025-03-31'), 21),
    (3, 10031, '1003.1', 'Mgr.', 'Zuzana', 'Tóthová',   '',    '0905000003',
     UNIX_TIMESTAMP('2018-01-01'), NULL, UNIX_TIMESTAMP('2017-12-18'), 1, 1, 1, 3, 1,
     UNIX_TIMESTAMP('2025-03-31'), 11),
    (4, 12341, '1234.1', 'Ing.', 'Jana',   'Nováková',  '',    '555123456',
     UNIX_TIMESTAMP('2019-04-01'), NULL, UNIX_TIMESTAMP('2019-03-25'), 1, 1, 3, 1, 1,
     UNIX_TIMESTAMP('2025-03-31'), 13),
    (5, 12351, '1235.1', '',     'Ján',    'Szabó',     '',    '',
     UNIX_TIMESTAMP('2020-06-15'), NULL, UNIX_TIMESTAMP('2020-06-01'), 1, 1, 2, 1, 1,
     UNIX_TIMESTAMP('2025-03-31'), 12),
    (6, 12361, '1236.1', '',     'Ľubica', 'Ďuricová',  '',    '0905000006',
     UNIX_TIMESTAMP('2021-11-01'), NULL, UNIX_TIMESTAMP('2021-10-20'), 1, 1, 3, 2, 1,
     UNIX_TIMESTAMP('2025-03-31'), NULL),
    (7, 12371, '1237.1', '',     'Štefan', 'Žiak',      '',    '',
     UNIX_TIMESTAMP('2017-05-01'), UNIX_TIMESTAMP('2023-12-31 23:59:59'),
     UNIX_TIMESTAMP('2017-04-24'), 1, 1, 1, 1, 0, 0, 11),
    (8, 20012, '2001.2', '',     'Tomáš',  'Baláž',     '',    '',
     UNIX_TIMESTAMP('2024-07-01'), NULL, UNIX_TIMESTAMP('2024-06-28'), 4, 1, 0, NULL, 1, 0, NULL);

INSERT INTO people_pam (uid, id) VALUES (1, 1), (2, 1), (3, 1), (4, 1), (5, 1), (6, 1), (8, 2);

INSERT INTO brape (bid, uid, since) VALUES
    (1, 1, UNIX_TIMESTAMP('2015-02-01')),
    (1, 4, UNIX_TIMESTAMP('2019-04-01')),
    (1, 5, UNIX_TIMESTAMP('2020-06-15')),
    (2, 2, UNIX_TIMESTAMP('2016-09-01')),
    (2, 6, UNIX_TIMESTAMP('2021-11-01')),
    (3, 3, UNIX_TIMESTAMP('2018-01-01'));

INSERT INTO groups_plan (gid, uid, since) VALUES
    (11, 1, 201502),
    (21, 2, 201609),
    (11, 3, 201801),
    (11, 4, 201904),
    (13, 4, 202301),
    (12, 5, 202006);

INSERT INTO groups_month (gid, uid, month) VALUES (11, 1, 202503), (13, 4, 202503), (12, 5, 202503);

-- Three calculated days each; one is closed, one was edited by hand.
INSERT INTO atten (uid, `date`, ok, `lock`, man) VALUES
    (1, UNIX_TIMESTAMP('2025-03-03'), 1, 0, 0),
    (1, UNIX_TIMESTAMP('2025-03-04'), 1, 0, 0),
    (1, UNIX_TIMESTAMP('2025-03-05'), 1, 0, 0),
    (4, UNIX_TIMESTAMP('2025-03-03'), 1, 1, 0),
    (4, UNIX_TIMESTAMP('2025-03-04'), 1, 0, 1),
    (4, UNIX_TIMESTAMP('2025-03-05'), 1, 0, 0),
    (5, UNIX_TIMESTAMP('2025-03-03'), 1, 0, 0),
    (5, UNIX_TIMESTAMP('2025-03-04'), 1, 0, 0),
    (5, UNIX_TIMESTAMP('2025-03-05'), 1, 0, 0);

-- Funds ------------------------------------------------------------------------------------------

INSERT INTO inters (iid) VALUES (1), (2), (3), (4), (5);

-- Fund 2 is the vacation.
INSERT INTO funds (fid, iid, unit) VALUES (1, 3, 1), (2, 3, 2), (3, 5, 2);

INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES
    (1, UNIX_TIMESTAMP('2025-01-01'), 202501, 2500, 2, 1),
    (2, UNIX_TIMESTAMP('2025-02-10'), 202502, -500, 2, 1),
    (1, UNIX_TIMESTAMP('2025-01-01'), 202501, 2000, 2, 4),
    (2, UNIX_TIMESTAMP('2025-02-17'), 202502, -300, 2, 4),
    (3, UNIX_TIMESTAMP('2025-03-01'), 202503,   50, 2, 4),
    (1, UNIX_TIMESTAMP('2025-01-01'), 202501,  800, 3, 4);

-- Administrators ---------------------------------------------------------------------------------

-- The first three are the supervisors Kováčová, Horváth and Tóthová.
INSERT INTO admins (aid, personalNumber) VALUES (1, 1001), (2, 1002), (3, 1003), (4, NULL);

INSERT INTO bradm (bid, aid) VALUES (1, 1), (1, 4), (2, 2), (3, 3), (3, 4);

INSERT INTO admins_people (aid, uid, request) VALUES
    (1, 4, 1),
    (1, 5, 1),
    (4, 1, 0),
    (4, 4, 0),
    (4, 5, 0),
    (2, 6, 1),
    (4, 3, 0);

-- Terminals --------------------------------------------------------------------------------------

INSERT INTO term (tid, bid, status, flags, syn) VALUES
    (1, 1,    1, 1 | 2 | 64 | 256, 0),   -- warehouse, gate
    (2, 1,    1, 1 | 64,           0),   -- warehouse, an old one that holds no people
    (3, 1,    0, 1 | 2 | 64 | 256, 0),   -- warehouse, switched off
    (4, 2,    1, 1 | 2,            0),   -- shop
    (5, 2,    2, 1 | 2 | 64 | 256, 0),   -- shop, under test
    (6, NULL, 1, 2 | 256,          0),   -- in stock
    (7, 3,    1, 2 | 64,           64);  -- office

INSERT INTO people_term (tid, uid) VALUES
    (1, 1), (1, 4), (1, 5),
    (3, 1), (3, 4),
    (4, 2), (4, 6),
    (5, 2),
    (7, 3);

INSERT INTO inters_term (iid, tid) VALUES (1, 1), (2, 1), (3, 1), (1, 2), (1, 3), (1, 4), (2, 5);
INSERT INTO pzt (zid, tid) VALUES (1, 1), (1, 1), (1, 3), (1, 4), (1, 5), (2, 7);

-- Settings ---------------------------------------------------------------------------------------

INSERT INTO vars (name, value) VALUES
    ('YAV.MHRWorker.forceSync', '0'),
    ('exportPam.1.active', '1'),
    ('exportPam.1.selPeople', '10011,10021,10031,12341,12351,12361');
