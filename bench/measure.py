"""Runs the programs of this folder beside a private database server and writes what they measured.

    measure.py [--quick] BUILD FOLDER [SECTION...] [--people N --years Y]

BUILD is the build folder, FOLDER where runs.csv and facts.json are kept. Sections that are not named
keep what an earlier run has measured, and so do the other sites when one is named by its people and
years. See scripts/bench.
"""

import argparse
import csv
import json
import os
import pathlib
import platform
import re
import subprocess
import sys
import tempfile
import time

import data
from clusterbench import ClusterBench
from sitebench import SiteBench

#: What is measured how often and for how long at most (rounds, seconds), by size.
FULL = {
    "reading": {1_000: (51, 10), 10_000: (21, 10), 100_000: (9, 20), 1_000_000: (5, 40)},
    "idle": {0: (301, 20)},
    "serve": {1_000: (51, 20), 10_000: (15, 40), 100_000: (7, 60)},
    "load": {1_000: (9, 90), 3_000: (7, 210), 10_000: (7, 900)},
    "start": {0: (31, 30)},
    # Years, rounds and seconds by people; rounds by lines of an export or of a log.
    "site": {500: (5, 5, 300), 5_000: (10, 3, 900)},
    "files": {5_000: 9, 1_000_000: 3},
    "logs": {1_000_000: 5},
    "cluster": {500: (7, 1500)},
}
QUICK = {
    "reading": {10_000: (5, 5)},
    "idle": {0: (51, 5)},
    "serve": {1_000: (5, 5)},
    "load": {200: (1, 10)},
    "start": {0: (5, 5)},
    "site": {100: (1, 1, 5)},
    "files": {1_000: 1},
    "logs": {1_000: 1},
    "cluster": {50: (1, 60)},
}
#: Small, and the same in both forms: the counts are compared with those kept.
COUNTED = {"reading": 10_000, "serve": 1_000, "load": 200}

RUN_FIELDS = ["section", "size", "what", "who", "wall_s", "cpu_s"]


class Bench:
    def __init__(self, build, scratch, plan):
        self.programs = build / "bench"
        self.plugin = build / "lib/libmirovahr.so"
        self.tool = build / "bin/mirovahrctl"
        self.server = build / "bin/private-mariadb"
        self.scratch = scratch
        self.plan = plan
        self.runs = []
        self.facts = {}

    # ---- the database ----------------------------------------------------------------------

    @staticmethod
    def client(*options):
        return ["mariadb", "--no-defaults", "--user=root", "--default-character-set=utf8mb4",
                "--socket=" + os.environ["MIROVAHR_DB_SOCKET"], *options,
                os.environ["MIROVAHR_DB_NAME"]]

    def sql(self, text):
        subprocess.run(self.client(), input=text.encode(), check=True)

    def sql_file(self, path):
        with open(path, "rb") as file:
            subprocess.run(self.client(), stdin=file, check=True)

    def value(self, query):
        return output_of(*self.client("--skip-column-names", "--batch", "--execute", query)).strip()

    # ---- the programs ----------------------------------------------------------------------

    def run(self, section, size, *arguments, under=()):
        """Runs a program and takes in what it prints."""
        command = [*under, str(self.programs / arguments[0]), *map(str, arguments[1:])]
        output = subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout
        for line in output.splitlines():
            kind, *values = line.split(",")
            if kind == "run" and not under:
                what, who, wall, cpu = values
                self.runs.append([section, size, what, who, float(wall), float(cpu)])
            elif kind == "statements" and not under:
                self.note("statements", f"{values[0]} {size}", int(values[1]))
            elif kind == "memory" and not under:
                self.note("memory", str(size),
                          dict(zip(["kept", "resident", "peak"], map(int, values))))

    def note(self, group, key, value):
        self.facts.setdefault(group, {})[key] = value

    def exports(self, size):
        """An export, one with people whose branch is unknown, and one with 1 % changed."""
        plain, waiting, changed = (self.scratch / name for name in ("plain", "waiting", "changed"))
        data.write_export(plain, size)
        data.write_export(waiting, size, 10, data.without_branch)
        data.write_export(changed, size, 100, data.changed)
        self.note("bytes", str(size), plain.stat().st_size)
        return plain, waiting, changed

    # ---- sections --------------------------------------------------------------------------

    def reading(self):
        for size, limits in self.plan["reading"].items():
            export = self.scratch / "plain"
            data.write_export(export, size)
            self.run("reading", size, "bench_reading", export, *limits)

    def idle(self):
        for size, limits in self.plan["idle"].items():
            self.sql(data.NOBODY_SQL)
            self.run("idle", size, "bench_cycle", "idle", *limits)

    def serve(self):
        for size, limits in self.plan["serve"].items():
            files = self.exports(size)
            self.sql(data.people_sql(size))
            self.run("serve", size, "bench_cycle", "serve", *limits, *files)

    def load(self):
        for payroll in (False, True):
            for size, (rounds, seconds) in self.plan["load"].items():
                self.load_one(payroll, size, rounds, seconds)

    def load_one(self, payroll, size, rounds, seconds):
        what = "payroll" if payroll else "load"
        export = self.scratch / "plain"
        data.write_export(export, size)
        begin = time.monotonic()
        self.load_once(payroll, what, size, "record", export)
        for nth in range(rounds):
            if nth > 0 and time.monotonic() - begin > seconds:
                break
            # Back and forth: these runs are long enough for the machine to change from one to the
            # next, and whoever always came first would meet more of the slow times, or fewer.
            for who in ("plugin", "qt", "c")[::1 if nth % 2 == 0 else -1]:
                self.load_once(payroll, what, size, who, export)

    def load_once(self, payroll, what, size, who, export, under=()):
        self.sql(data.NOBODY_SQL + (data.PAYROLL_SQL if payroll else ""))
        self.run("load", size, "bench_load", who, what, export, self.scratch / "statements",
                 under=under)

    def start(self):
        rounds, seconds = self.plan["start"][0]
        libraries = {"plugin": self.plugin, "qt": self.programs / "libplainplugin.so",
                     "c": self.programs / "libbarelibrary.so"}
        begin = time.monotonic()
        for nth in range(rounds):
            if nth > 0 and time.monotonic() - begin > seconds:
                break
            for who, library in libraries.items():
                self.run("start", 0, "bench_start", who, library)
        for who, library in libraries.items():
            self.note("library", who, self.library_facts(library))

    def library_facts(self, library):
        stripped = self.scratch / "stripped.so"
        subprocess.run(["strip", "-o", stripped, library], check=True)
        relocations = output_of("readelf", "--relocs", "--wide", library)
        needed = output_of("readelf", "--dynamic", "--wide", library)
        return {
            "stripped": stripped.stat().st_size,
            "relocations": len(re.findall(r"R_X86_64_|R_AARCH64_", relocations)),
            "needed": re.findall(r"\(NEEDED\).*\[(.*)\]", needed),
            "all": len(output_of("ldd", library).splitlines()),
        }

    def site(self):
        site = SiteBench(self)
        for people, limits in self.plan["site"].items():
            site.measure_site(people, *limits)
        for lines, rounds in self.plan["files"].items():
            site.measure_files(lines, rounds)
        for lines, rounds in self.plan["logs"].items():
            site.measure_log(lines, rounds)
        self.sql(data.frame_sql())

    def cluster(self):
        cluster = ClusterBench(self)
        for people, limits in self.plan["cluster"].items():
            cluster.measure(people, *limits)

    def instructions(self):
        export = self.scratch / "plain"
        data.write_export(export, COUNTED["reading"])
        self.count("reading", "bench_reading", export, 1, 1)

        size = COUNTED["serve"]
        files = self.exports(size)
        self.sql(data.people_sql(size))
        self.count("serve", "bench_cycle", "serve", 1, 1, *files)

        data.write_export(export, COUNTED["load"])
        self.load_once(True, "payroll", COUNTED["load"], "record", export)
        for who in ("plugin", "qt", "c"):
            self.sql(data.NOBODY_SQL + data.PAYROLL_SQL)
            self.count("load", "bench_load", who, "payroll", export, self.scratch / "statements")

    def count(self, section, *arguments):
        """Counts the instructions of each run under callgrind."""
        counts = self.scratch / "callgrind"
        counts.mkdir()
        self.run(section, 0, *arguments, under=[
            "valgrind", "--quiet", "--tool=callgrind", "--collect-atstart=no",
            f"--callgrind-out-file={counts}/out"])
        for file in counts.iterdir():
            text = file.read_text()
            trigger = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE)
            if trigger:
                total = int(re.search(r"^totals: (\d+)$", text, re.MULTILINE).group(1))
                self.note("instructions", trigger.group(1), total)
            file.unlink()
        counts.rmdir()


SECTIONS = ["reading", "idle", "serve", "load", "start", "site", "instructions"]
#: Only measured when it is named: it needs a cluster besides (private-cluster).
NAMED_SECTIONS = ["cluster"]


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def machine():
    cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    return {
        "cpu": f"{os.cpu_count()} x {cpu.group(1) if cpu else platform.machine()}",
        "qt": output_of("dpkg-query", "--show", "--showformat=${Version}", "libqt5core5a"),
        "mariadb": output_of("dpkg-query", "--show", "--showformat=${Version}",
                             "mariadb-server-core"),
        "compiler": output_of("g++", "--version").splitlines()[0],
        "load": f"{os.getloadavg()[0]:.1f}",
        "date": time.strftime("%Y-%m-%d"),
    }


class Results:
    """runs.csv and facts.json of a folder."""

    def __init__(self, folder):
        self.runs_file = folder / "runs.csv"
        self.facts_file = folder / "facts.json"
        self.runs = []
        self.facts = {}
        if self.runs_file.exists():
            with open(self.runs_file, encoding="utf-8") as file:
                self.runs = list(csv.reader(file))[1:]
        if self.facts_file.exists():
            self.facts = json.loads(self.facts_file.read_text(encoding="utf-8"))

    def replace(self, section, bench):
        measured = {(run[0], str(run[1])) for run in bench.runs}
        self.runs = [run for run in self.runs if (run[0], str(run[1])) not in measured] + bench.runs
        for group, facts in bench.facts.items():
            self.facts.setdefault(group, {}).update(facts)
        self.facts.setdefault("machine", {})[section] = machine()
        self.save()

    def save(self):
        self.runs_file.parent.mkdir(parents=True, exist_ok=True)
        with open(self.runs_file, "w", encoding="utf-8", newline="") as file:
            writer = csv.writer(file, lineterminator="\n")
            writer.writerow(RUN_FIELDS)
            writer.writerows(self.runs)
        self.facts_file.write_text(
            json.dumps(self.facts, indent=1, ensure_ascii=False, sort_keys=True) + "\n",
            encoding="utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("sections", nargs="*")
    parser.add_argument("--people", type=int)
    parser.add_argument("--years", type=int)
    arguments = parser.parse_intermixed_args()
    if not set(arguments.sections) <= set(SECTIONS + NAMED_SECTIONS):
        sys.exit("sections: " + " ".join(SECTIONS + NAMED_SECTIONS))
    if (arguments.people is None) != (arguments.years is None):
        sys.exit("--people and --years go together")

    results = Results(arguments.folder)
    # In the server's own folder, which goes away with the server in any case.
    folder = os.path.dirname(os.environ["MIROVAHR_DB_SOCKET"])
    with tempfile.TemporaryDirectory(prefix="bench-", dir=folder) as scratch:
        plan = QUICK if arguments.quick else FULL
        if arguments.people:
            plan = {**plan, "site": {arguments.people: (arguments.years, 1, 1)}, "files": {}, "logs": {}}
        Bench(arguments.build.resolve(), pathlib.Path(scratch), plan).sql(data.frame_sql())
        for section in arguments.sections or SECTIONS:
            begin = time.monotonic()
            bench = Bench(arguments.build.resolve(), pathlib.Path(scratch), plan)
            getattr(bench, section)()
            results.replace(section, bench)
            print(f"{section}: {time.monotonic() - begin:.0f} s", flush=True)


main()
