"""Puts the figures of a cluster, which measure.py has written, into a page.

    clusterreport.py FOLDER PAGE

FOLDER holds runs.csv and facts.json. In the Markdown file PAGE, what stands between BEGIN and END is
replaced.
"""

import pathlib
import statistics
import sys

from report import Measured, duration, table

BEGIN = "<!-- bench cluster -->\n"
END = "<!-- /bench cluster -->\n"

PLACES = {
    "server": "one server",
    "cluster": "cluster, as in `galera.cnf`",
    "cluster, no waiting": "the same with `wsrep_sync_wait = 0`",
    "cluster, flush 2": "cluster with `innodb_flush_log_at_trx_commit = 2`",
    "server, flush 2": "one server with that",
}
COURSES = {
    "load": "first load",
    "payroll": "first load with a payroll export",
    "forced": "forced",
}

#: Counted for each person, but the last three.
FIGURES = {
    "wsrep_replicated": "write sets",
    "wsrep_replicated_bytes": "their bytes",
    "wsrep_local_bf_aborts": "statements taken back",
    "wsrep_local_cert_failures": "write sets not certified",
    "wsrep_flow_control_paused_ns": "ns paused by flow control",
    "wsrep_commit_window": "`wsrep_commit_window`",
    "wsrep_apply_window": "`wsrep_apply_window` of another node",
    "wsrep_cert_deps_distance": "`wsrep_cert_deps_distance`",
}

HALF_AN_HOUR = 1800


class ClusterReport:
    def __init__(self, measured):
        self.measured = measured
        self.size = max(measured.sizes("cluster", "load"))

    def times(self, what, place):
        return [run[0] for run in self.measured.runs["cluster", self.size, what, place]]

    def person(self, what, place):
        """The median time of a person, in seconds."""
        return statistics.median(self.times(what, place)) / self.size

    def rate(self, what, place):
        """People a second, and the time to that of one server in the same round."""
        text = f"{1 / self.person(what, place):.3g}"
        if place == "server":
            return text
        ratios = [a / b for a, b in zip(self.times(what, place), self.times(what, "server"))]
        return f"{text}; **{statistics.median(ratios):.2f}** ({min(ratios):.2f}–{max(ratios):.2f})"

    def rates(self):
        rows = [[name, *(self.rate(what, place) for what in COURSES)]
                for place, name in PLACES.items()]
        return table(["people a second; time, to one server's", *COURSES.values()], rows)

    def size_of_a_site(self):
        load, forced = (HALF_AN_HOUR / self.person(what, "cluster") for what in ("load", "forced"))
        return (f"In half an hour this cluster takes in {load:,.0f} people at a first load, or"
                f" {forced:,.0f} in a forced synchronisation.")

    def shares(self):
        """Where the time goes: by what each setting saves."""
        rows = [["a person on the cluster"], ["of that, the statements on one server"],
                ["the log's way to the disk at each commit"], ["reads wait for the cluster"],
                ["replication, certification, proxy, and the other nodes' work"]]
        for what in COURSES:
            whole = self.person(what, "cluster")
            parts = [self.person(what, "server, flush 2"),
                     whole - self.person(what, "cluster, flush 2"),
                     whole - self.person(what, "cluster, no waiting")]
            rows[0].append(duration(whole))
            for row, part in zip(rows[1:], [*parts, whole - sum(parts)]):
                row.append(f"{duration(part)}, {100 * part / whole:.0f} %")
        return table(["", *COURSES.values()], rows)

    def figures(self):
        facts = self.measured.facts["cluster"]
        rows = [[name, *(f"{facts[f'{what} cluster'][key]:,.4g}" for what in COURSES)]
                for key, name in FIGURES.items()]
        return table(["a person on the cluster", *COURSES.values()], rows)

    def text(self):
        machine = self.measured.facts["machine"]["cluster"]
        rounds = len(self.times("load", "server"))
        return "\n\n".join([
            f"{self.size} people, medians of {rounds} rounds (lowest–highest), {machine['date']},"
            f" {machine['cpu']}, MariaDB {machine['mariadb']}.",
            self.rates(), self.shares(), self.figures(), self.size_of_a_site()]) + "\n"


def main():
    folder, page = map(pathlib.Path, sys.argv[1:])
    before, _, rest = page.read_text(encoding="utf-8").partition(BEGIN)
    _, _, after = rest.partition(END)
    text = ClusterReport(Measured(folder)).text()
    print(text)
    page.write_text(before + BEGIN + text + END + after, encoding="utf-8")


main()
