"""What the operator's tools and a synchronisation cost at a site with years of attendance."""

import datetime
import os
import subprocess
import time

import data
import grownsite
import serverlog
from usage import run_measured

#: Whom explain is asked about: somebody who is moved.
PERSON = "10001.1"

#: In a file: the gate refuses one in which much more changes.
MOST_CHANGES = 300

#: The rows that a synchronisation may change, of those tables of which it changes few.
CHANGEABLE = {
    "atten": "`lock` = 0",
    "groups_month": "uid IN ({moved})",
    "funds_move": "day >= UNIX_TIMESTAMP(CURDATE())",
}


def with_another_phone(person, _):
    person.phone = "0900000000"
    return person


class SiteBench:
    def __init__(self, bench):
        self.bench = bench
        self.folder = bench.scratch / "tmp"
        self.folder.mkdir()
        self.configuration = bench.scratch / "MirovaHR.ini"
        self.configuration.touch()
        self.export = bench.scratch / "export"
        self.statements = bench.scratch / "statements"
        self.size = 0
        self.facts = {}
        # For preview, which reads the texts of routines.
        bench.sql(f"GRANT SELECT ON mysql.proc TO '{os.environ['MIROVAHR_DB_USER']}'@'localhost'")

    # ---- a site --------------------------------------------------------------------------------

    def measure_site(self, people, years, rounds, seconds):
        self.size = people
        self.facts = {"years": years}
        self.make_site(people, years)
        for command in (["status"], ["check-db", "--config", self.configuration],
                        ["explain", PERSON, self.export, "--config", self.configuration]):
            for _ in range(rounds):
                self.run_tool(*command, *self.database())
        self.synchronise("record")
        begin = time.monotonic()
        for nth in range(rounds):
            if nth > 0 and time.monotonic() - begin > seconds:
                break
            self.preview()
            self.run_program("server", self.bench.server, "--", "true")
            self.dump()
            for who in ("plugin", "qt", "c")[::1 if nth % 2 == 0 else -1]:
                self.synchronise(who)
        self.bench.note("site", str(people), self.facts)
        self.empty()

    def make_site(self, people, years):
        begin = time.monotonic()
        self.empty()
        script = self.bench.scratch / "site.sql"
        today = datetime.date.today()
        with open(script, "w", encoding="utf-8") as file:
            grownsite.write_sql(file, people, years, today)
        self.bench.sql_file(script)
        script.unlink()
        with open(self.export, "w", encoding="utf-8") as file:
            grownsite.write_export(file, people, today)
        self.keep_rows()
        self.facts["days"] = int(self.bench.value("SELECT COUNT(*) FROM atten"))
        print(f"site: {people} people, {years} years made in {time.monotonic() - begin:.0f} s",
              flush=True)

    def tables(self):
        return self.bench.value(
            "SELECT GROUP_CONCAT(table_name) FROM information_schema.tables"
            " WHERE table_schema = DATABASE() AND table_type = 'BASE TABLE'").split(",")

    def empty(self):
        self.bench.sql("".join(f"TRUNCATE TABLE `{table}`;\n" for table in self.tables()))

    def changeable_rows(self, table):
        moved = ",".join(map(str, grownsite.moved_uids(self.size)))
        return CHANGEABLE.get(table, "TRUE").format(moved=moved)

    def keep_rows(self):
        """Keeps what a synchronisation may change, for restore_rows()."""
        self.bench.sql("CREATE OR REPLACE DATABASE kept;\n" + "".join(
            f"CREATE TABLE kept.`{table}` LIKE `{table}`;\n"
            f"INSERT INTO kept.`{table}` SELECT * FROM `{table}`"
            f" WHERE {self.changeable_rows(table)};\n" for table in self.tables()))

    def restore_rows(self):
        self.bench.sql("SET unique_checks = 0, foreign_key_checks = 0;\n" + "".join(
            f"DELETE FROM `{table}` WHERE {self.changeable_rows(table)};\n"
            f"INSERT INTO `{table}` SELECT * FROM kept.`{table}`;\n" for table in self.tables()))

    # ---- what is measured ----------------------------------------------------------------------

    def database(self):
        return ["--socket", os.environ["MIROVAHR_DB_SOCKET"],
                "--database", os.environ["MIROVAHR_DB_NAME"],
                "--user", os.environ["MIROVAHR_DB_USER"],
                "--password-file", os.environ["MIROVAHR_DB_PASSWORD_FILE"]]

    def run_tool(self, what, *arguments):
        self.run_program(what, self.bench.tool, what, *arguments)

    def run_program(self, what, *command):
        used = run_measured(command, self.folder)
        self.bench.runs.append(["site", self.size, what, "tool", used.wall, used.cpu])
        for name in ("memory", "room"):
            known = self.facts.setdefault(name, {})
            known[what] = max(getattr(used, name), known.get(what, 0))

    def preview(self):
        self.bench.sql("SET GLOBAL userstat = 1; FLUSH TABLE_STATISTICS; FLUSH USER_STATISTICS;")
        self.run_tool("preview", self.export, "--config", self.configuration, *self.database())
        self.bench.sql("SET GLOBAL userstat = 0")
        read = self.bench.value(
            "SELECT rows_read FROM information_schema.table_statistics"
            " WHERE table_schema = DATABASE() AND table_name = 'atten'")
        self.facts["scans"] = int(read or 0) / self.facts["days"]
        connected, busy = self.bench.value(
            "SELECT connected_time, busy_time FROM information_schema.user_statistics"
            f" WHERE user = '{os.environ['MIROVAHR_DB_USER']}'").split()
        self.facts["connected"], self.facts["busy"] = int(connected), float(busy)

    def dump(self):
        self.run_program(
            "dump", "mariadb-dump", "--no-defaults", "--single-transaction", "--user=root",
            "--socket=" + os.environ["MIROVAHR_DB_SOCKET"], os.environ["MIROVAHR_DB_NAME"])

    def synchronise(self, who):
        """A forced synchronisation by the plugin, or its statements by another program."""
        self.bench.sql("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'")
        self.bench.run("site", self.size, "bench_load", who, "site", self.export, self.statements)
        self.restore_rows()

    # ---- files ---------------------------------------------------------------------------------

    def measure_files(self, lines, rounds):
        """check-file, diff and gate with an export of so many lines, in some of which the phone changes."""
        self.size = lines
        self.facts = {}
        files = [self.bench.scratch / name for name in ("before", "now")]
        data.write_export(files[0], lines)
        data.write_export(files[1], lines, max(100, lines // MOST_CHANGES), with_another_phone)
        self.facts["bytes"] = files[1].stat().st_size
        state = self.bench.scratch / "gate"
        gate = ["--to", self.bench.scratch / "published", "--state", state]
        run_measured([self.bench.tool, "gate", "--from", files[0], *gate, "--accept"], self.folder)
        for nth in range(rounds):
            self.run_tool("check-file", files[1])
            self.run_tool("diff", *files)
            self.run_tool("gate", "--from", files[(nth + 1) % 2], *gate)
        self.bench.note("files", str(lines), self.facts)
        subprocess.run(["rm", "-r", state, *files], check=True)

    def measure_log(self, lines, rounds):
        """log with so many lines, beside awk, which only counts the plugin's by their first words."""
        self.size = lines
        self.facts = {}
        log = self.bench.scratch / "log"
        serverlog.write(log, lines)
        self.facts["bytes"] = log.stat().st_size
        for _ in range(rounds):
            self.run_tool("log", log)
            self.run_program("awk", "awk", '/MHRWorker/ { count[$6 " " $7]++ }', log)
        self.bench.note("logs", str(lines), self.facts)
        log.unlink()
