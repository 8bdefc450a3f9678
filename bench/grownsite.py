"""A made-up site with years of attendance: SQL for an empty database, and an HR export for it.

    grownsite.py --people N --years Y [--today DATE] --sql FILE --export FILE

The same arguments make the same files. Days are midnights of the session's time zone in the SQL and of
this program's in the export: both must be the same.

HR has N people, who all have attendance up to yesterday. In the export 1 % of them are changed, and
0.4 % are in another branch and calendar since the beginning of the year: each of these has all months
since then written anew, which costs the plugin more than any other change.
"""

import argparse
import datetime

import data

#: One of so many.
CHANGED = 100
MOVED = 250
LEFT = 20  #: people who have left, beside those in the export

QUEUED = 4  #: changes that terminals have to fetch, for each person
MANUAL = 50  #: of so many days one is edited by hand
OPEN = 200  #: of so many people one has a day that is to be calculated


def first_of_month(date, months_back=0):
    months = date.year * 12 + date.month - 1 - months_back
    return datetime.date(months // 12, months % 12 + 1, 1)


def years_before(date, years):
    return first_of_month(date, 12 * years)


# ---- The database ------------------------------------------------------------------------------

# Tables are filled in the order of their primary keys, which is how InnoDB takes rows fastest.
ATTENDANCE = """
INSERT INTO atten (uid, `date`, ok, `lock`, man)
    SELECT p.uid, d.day, 1, d.day < UNIX_TIMESTAMP('{closed}'), (p.uid + d.nth) % {manual} = 0
      FROM people p STRAIGHT_JOIN grown_days d
     WHERE d.day < IFNULL(p.`end`, d.day + 1);
UPDATE atten SET ok = -1
    WHERE uid % {open} = 0 AND `date` = UNIX_TIMESTAMP('{today}' - INTERVAL 1 DAY);
INSERT INTO groups_month (gid, uid, month)
    SELECT IFNULL(getCurrentGid(p.uid, m.month, p.gid), p.calendarID), p.uid, m.month
      FROM people p STRAIGHT_JOIN grown_months m
     WHERE m.day < IFNULL(p.`end`, m.day + 1);
"""

# What a month grants it takes as well, so that the balance stays what it was on the first day: what
# the export has for everybody.
FUNDS = """
INSERT INTO funds (fid, iid, unit) VALUES (1, 3, 1), (2, 3, 2);
INSERT INTO funds_move (uid, fid, day, type, month, value)
    SELECT p.uid, 2, IF(k.seq = 2, m.day + 86400 * 14, m.day), k.seq, m.month,
           CASE k.seq WHEN 1 THEN 100 + p.uid % 5 * 50 WHEN 2 THEN -(100 + p.uid % 5 * 50) ELSE 1250 END
      FROM people p STRAIGHT_JOIN grown_months m STRAIGHT_JOIN seq_1_to_3 k
     WHERE m.day < IFNULL(p.`end`, m.day + 1) AND m.day < UNIX_TIMESTAMP('{month}')
       AND IF(k.seq = 3, m.nth = 0, m.nth % 2 = 1);
"""

DAYS = """
CREATE TEMPORARY TABLE grown_days (nth INT, day BIGINT PRIMARY KEY)
    SELECT seq nth, UNIX_TIMESTAMP('{first}' + INTERVAL seq DAY) day FROM seq_0_to_{last_day};
CREATE TEMPORARY TABLE grown_months (nth INT, day BIGINT PRIMARY KEY, month INT)
    SELECT seq nth, UNIX_TIMESTAMP('{first}' + INTERVAL seq MONTH) day,
           EXTRACT(YEAR_MONTH FROM '{first}' + INTERVAL seq MONTH) month FROM seq_0_to_{last_month};
"""

RELATIONS = """
UPDATE people SET lastCalc = UNIX_TIMESTAMP('{today}' - INTERVAL 1 DAY),
    calc = UNIX_TIMESTAMP('{today}' - INTERVAL 1 DAY);
UPDATE people SET status = 0, `end` = UNIX_TIMESTAMP('{middle}') WHERE uid > {people};
INSERT INTO brape (bid, uid, since) SELECT bid, uid, begin FROM people WHERE status = 1;
INSERT INTO people_term (tid, uid) SELECT bid, uid FROM people WHERE status = 1;
INSERT INTO admins_people (aid, uid, request) SELECT bid, uid, 1 FROM people WHERE status = 1;
INSERT INTO people_pam (uid, id) SELECT uid, 1 FROM people;
INSERT INTO vars (name, value) SELECT 'exportPam.1.selPeople', GROUP_CONCAT(pid ORDER BY uid)
    FROM people WHERE status = 1;
INSERT INTO vars (name, value) VALUES ('exportPam.1.active', '1');
INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags)
    SELECT bid, 'U', 'people', 'uid', uid, UNIX_TIMESTAMP('{today}') - seq, 2
      FROM people, seq_1_to_{queued} WHERE status = 1;
"""

# Earlier calendar groups of a person, one in two years.
PLANS = """
INSERT IGNORE INTO groups_plan (gid, uid, since)
    SELECT 1 + (p.uid + m.nth) % {calendars}, p.uid, m.month
      FROM people p STRAIGHT_JOIN grown_months m WHERE m.nth % 24 = 0
       AND m.month < (SELECT g.since FROM groups_plan g WHERE g.uid = p.uid ORDER BY since LIMIT 1);
"""


def write_sql(file, people, years, today):
    first = years_before(today, years)
    values = {
        "people": people, "first": first, "today": today, "month": first_of_month(today),
        "closed": first_of_month(today, 2), "middle": years_before(today, years // 2),
        "last_day": (today - first).days - 1, "last_month": 12 * years,
        "manual": MANUAL, "open": OPEN, "queued": QUEUED, "calendars": data.CALENDARS,
    }
    everybody = data.people(people + people // LEFT)
    file.write("SET unique_checks = 0, foreign_key_checks = 0, group_concat_max_len = 16777216;\n")
    file.write(data.frame_sql() + "\n" + data.rows_sql(everybody))
    for part in (DAYS, RELATIONS, PLANS, ATTENDANCE, FUNDS):
        file.write(part.format(**values))


# ---- The export --------------------------------------------------------------------------------

def change(person, nth):
    if nth % 4 == 0:
        person.surname = "Zmenená-" + person.surname
    elif nth % 4 == 1:
        person.phone = "0900000000"
    elif nth % 4 == 2:
        person.supervisor = 1001 + person.supervisor % data.BRANCHES
    else:
        person.balance = 13
    return person


def move(person, today):
    person.branch = person.branch % data.BRANCHES + 1
    person.cost_centre = 100 + person.branch
    person.calendar = person.calendar % data.CALENDARS + 1
    person.calendar_since = datetime.date(today.year, 1, 1)
    return person


def is_moved(uid):
    return uid % MOVED == 1


def moved_uids(people):
    return [uid for uid in range(1, people + 1) if is_moved(uid)]


def write_export(file, people, today):
    for person in data.people(people):
        if person.uid % CHANGED == 0:
            change(person, person.uid // CHANGED)
        elif is_moved(person.uid):
            move(person, today)
        file.write(person.line() + "\n")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--people", type=int, required=True)
    parser.add_argument("--years", type=int, required=True)
    parser.add_argument("--today", type=datetime.date.fromisoformat, default=datetime.date.today())
    parser.add_argument("--sql", required=True)
    parser.add_argument("--export", required=True)
    arguments = parser.parse_args()
    with open(arguments.sql, "w", encoding="utf-8") as file:
        write_sql(file, arguments.people, arguments.years, arguments.today)
    with open(arguments.export, "w", encoding="utf-8") as file:
        write_export(file, arguments.people, arguments.today)


if __name__ == "__main__":
    main()
