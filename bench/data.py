"""People of a made-up company: lines of the HR export and rows of the attendance database."""

import datetime
import random
import time

BRANCHES = 200
CALENDARS = 5
UNKNOWN_COST_CENTRE = 9999

FIRST_NAMES = (
    "Jana Peter Mária Ján Zuzana Tomáš Katarína Jozef Anna Michal Eva Martin Lucia Marek Monika "
    "Milan Ivana Juraj Veronika Ľubomír Alžbeta Štefan Soňa Radoslav Daniela Vladimír Viera Igor "
    "Barbora Ondrej Ľudmila Andrej Petra Pavol Silvia Róbert Gabriela Dušan Renáta Miroslav"
).split()

STEMS = (
    "Novák Kováč Horváth Varga Tóth Nagy Baláž Molnár Szabó Balog Lukáč Krajčír Polák Hudák "
    "Urban Kollár Oravec Šimko Gajdoš Mráz Hruška Bielik Sloboda Zeman Dudáš Vrabec Jurík "
    "Pavlík Ďurica Ondruš Malý Hrnčiar Kučera Vlček Sedlák Blaho Čech Mikuš Rusnák Bartoš"
).split()

ENDINGS = ["", "ová", "ík", "čík", "iak", "ec", "enko", "ský", "inský", "ovič"]


class Person:
    def __init__(self, number):
        choose = random.Random(number)
        self.uid = number
        self.personal_number = 10000 + number
        self.title = choose.choices(["", "Ing.", "Mgr."], [80, 12, 8])[0]
        self.name = choose.choice(FIRST_NAMES)
        self.surname = choose.choice(STEMS) + choose.choice(ENDINGS)
        self.phone = f"09{choose.randrange(10**8):08}" if choose.random() < 0.8 else ""
        self.begin = datetime.date(2000, 1, 1) + datetime.timedelta(choose.randrange(8000))
        self.end = datetime.date(2035, 12, 31) if choose.random() < 0.05 else None
        self.branch = choose.randrange(1, BRANCHES + 1)
        self.calendar = choose.randrange(1, CALENDARS + 1)
        self.calendar_since = datetime.date(2024, choose.randrange(1, 13), 1)
        self.cost_centre = 100 + self.branch
        self.supervisor = 1000 + self.branch
        self.balance = 12.5

    @property
    def pid(self):
        return f"{self.personal_number}1"

    def line(self):
        return "|".join([
            str(self.personal_number), "1", self.title, self.name, self.surname, "", self.phone,
            export_date(self.begin), export_date(self.end), str(self.cost_centre),
            f"Predajňa {self.branch}", str(self.calendar), export_date(self.calendar_since),
            "11", "1", "0", str(self.balance), str(self.supervisor)])

    def row(self):
        end = "NULL" if self.end is None else midnight(self.end + datetime.timedelta(1)) - 1
        return (f"({self.uid},{self.pid},'{self.personal_number}.1','{self.title}','{self.name}',"
                f"'{self.surname}','{self.phone}',{midnight(self.begin)},{end},1,1,"
                f"{self.calendar},{self.branch})")


def export_date(date):
    return f"{date} 00:00:00.000" if date else ""


def midnight(date):
    return int(time.mktime(date.timetuple()))


def people(count):
    return [Person(number) for number in range(1, count + 1)]


def changed(person, nth):
    """The person after HR has changed something, one thing after the other in turn."""
    if nth % 4 == 0:
        person.surname = "Zmenená-" + person.surname
    elif nth % 4 == 1:
        person.phone = "0900000000"
    elif nth % 4 == 2:
        person.branch = person.branch % BRANCHES + 1
        person.cost_centre = 100 + person.branch
    else:
        person.calendar = person.calendar % CALENDARS + 1
    return person


def without_branch(person, _):
    person.cost_centre = UNKNOWN_COST_CENTRE
    return person


def write_export(path, count, every=0, change=lambda person, nth: person):
    """Writes an export; every so manieth person as \a change has it."""
    with open(path, "w", encoding="utf-8") as file:
        for index, person in enumerate(people(count)):
            if every and index % every == 0:
                person = change(person, index // every)
            file.write(person.line() + "\n")


def frame_sql():
    """Branches, calendars, terminals and administrators, and nobody."""
    numbers = range(1, BRANCHES + 1)
    return "\n".join([
        "INSERT INTO mastergroups VALUES (1);",
        "INSERT INTO `groups` VALUES "
        + ",".join(f"({gid},1,{gid})" for gid in range(1, CALENDARS + 1)) + ";",
        "INSERT INTO branches (bid, number, name, mgid) VALUES "
        + ",".join(f"({bid},{100 + bid},'Predajňa {bid}',1)" for bid in numbers) + ";",
        "INSERT INTO admins VALUES " + ",".join(f"({aid},{1000 + aid})" for aid in numbers) + ";",
        "INSERT INTO bradm VALUES " + ",".join(f"({bid},{bid})" for bid in numbers) + ";",
        "INSERT INTO term (tid, bid, flags) VALUES "
        + ",".join(f"({bid},{bid},2)" for bid in numbers) + ";",
        "INSERT INTO vars VALUES ('YAV.MHRWorker.forceSync', '0');",
    ])


NOBODY_SQL = "\n".join(
    f"TRUNCATE TABLE {table};" for table in (
        "people", "people_pam", "atten", "brape", "groups_plan", "groups_month", "funds",
        "funds_move", "admins_people", "term_sync", "people_term")
) + "\nUPDATE term SET syn = 0;\nDELETE FROM vars WHERE name LIKE 'exportPam.%';\n"

PAYROLL_SQL = "INSERT INTO vars VALUES ('exportPam.1.active', '1'), ('exportPam.1.selPeople', '');\n"


def rows_sql(everybody):
    """People and their calendar groups."""
    parts = []
    for first in range(0, len(everybody), 5000):
        some = everybody[first:first + 5000]
        parts.append(
            "INSERT INTO people (uid, pid, pamId, title, name, surname, phone, begin, `end`, type,"
            " did, calendarID, bid) VALUES " + ",".join(person.row() for person in some) + ";")
        parts.append("INSERT INTO groups_plan VALUES " + ",".join(
            f"({p.calendar},{p.uid},{p.calendar_since:%Y%m})" for p in some) + ";")
    return "\n".join(parts)


def people_sql(count):
    """People who are in their branches and calendar groups already, with attendance."""
    return "\n".join([
        NOBODY_SQL,
        rows_sql(people(count)),
        "INSERT INTO brape SELECT bid, uid, 0 FROM people;",
        "INSERT INTO people_term SELECT bid, uid FROM people;",
        f"INSERT INTO admins_people SELECT bid, uid, 1 FROM people;",
        "INSERT INTO atten (uid, `date`, ok) SELECT uid, 1704063600 + 86400 * seq, 1"
        " FROM people, seq_1_to_5;",
    ])
