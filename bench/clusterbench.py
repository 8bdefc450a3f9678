"""What a cluster of three nodes behind a proxy costs the plugin, compared with one server."""

import os
import subprocess
import time

import data

#: What is compared: where the plugin works, and the settings of the servers there.
SETTINGS = {"innodb_flush_log_at_trx_commit": 1, "wsrep_sync_wait": 1}
PLACES = {
    "server": ("server", {}),
    "cluster": ("cluster", {}),
    "cluster, no waiting": ("cluster", {"wsrep_sync_wait": 0}),
    "cluster, flush 2": ("cluster", {"innodb_flush_log_at_trx_commit": 2}),
    "server, flush 2": ("server", {"innodb_flush_log_at_trx_commit": 2}),
}

FORCE_SQL = "UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'"

#: Of the node that the plugin works on: what it counts, and averages since FLUSH STATUS.
COUNTED = ["wsrep_replicated", "wsrep_replicated_bytes", "wsrep_local_bf_aborts",
           "wsrep_local_cert_failures", "wsrep_flow_control_paused_ns"]
AVERAGES = ["wsrep_commit_window", "wsrep_cert_deps_distance"]
#: Of another node.
APPLIED = ["wsrep_apply_window"]


class ClusterBench:
    def __init__(self, bench):
        self.bench = bench
        self.export = bench.scratch / "export"
        self.sockets = {"server": [os.environ["MIROVAHR_DB_SOCKET"]],
                        "cluster": os.environ["MIROVAHR_CLUSTER_NODES"].split(":")}
        self.plugin_sockets = {"server": os.environ["MIROVAHR_DB_SOCKET"],
                               "cluster": os.environ["MIROVAHR_CLUSTER_SOCKET"]}
        self.passwords = {"server": os.environ["MIROVAHR_DB_PASSWORD_FILE"],
                          "cluster": os.environ["MIROVAHR_CLUSTER_PASSWORD_FILE"]}
        self.administer(self.sockets["cluster"][0], data.frame_sql())

    def measure(self, people, rounds, seconds):
        data.write_export(self.export, people)
        begin = time.monotonic()
        for nth in range(rounds):
            if nth > 0 and time.monotonic() - begin > seconds:
                break
            # Back and forth, because the machine changes from one run to the next.
            for place in list(PLACES)[::1 if nth % 2 == 0 else -1]:
                self.measure_place(people, place)

    def measure_place(self, people, place):
        kind, changed = PLACES[place]
        self.configure(kind, {**SETTINGS, **changed})
        for what, preparation in (("payroll", data.NOBODY_SQL + data.PAYROLL_SQL),
                                  ("load", data.NOBODY_SQL), ("forced", FORCE_SQL)):
            self.administer(self.sockets[kind][0], preparation)
            self.settle(kind)
            self.forget_averages(kind)
            before = self.status(kind)
            wall, cpu = self.synchronise(kind, what)
            self.settle(kind)
            self.bench.runs.append(["cluster", people, what, place, wall, cpu])
            self.note(people, what, place, before, self.status(kind))

    def configure(self, kind, settings):
        text = "".join(f"SET GLOBAL {name} = {value};" for name, value in settings.items())
        for socket in self.sockets[kind]:
            self.administer(socket, text)

    def settle(self, kind):
        """Waits until each node has what the others have."""
        for socket in self.sockets[kind]:
            self.administer(socket, "SET SESSION wsrep_sync_wait = 1; SELECT 1;")

    def forget_averages(self, kind):
        for socket in self.sockets[kind]:
            self.administer(socket, "FLUSH LOCAL STATUS")

    def synchronise(self, kind, what):
        """By a plugin that has just been started; seconds on the clock and of its processor time."""
        environment = {**os.environ, "MIROVAHR_DB_SOCKET": self.plugin_sockets[kind],
                       "MIROVAHR_DB_PASSWORD_FILE": self.passwords[kind]}
        output = subprocess.run(
            [self.bench.programs / "bench_load", "plugin", what, self.export, os.devnull],
            check=True, stdout=subprocess.PIPE, text=True, env=environment).stdout
        return tuple(map(float, output.strip().split(",")[3:]))

    # ---- the servers -----------------------------------------------------------------------

    @staticmethod
    def administer(socket, text):
        return subprocess.run(
            ["mariadb", "--no-defaults", "--user=root", "--default-character-set=utf8mb4",
             "--skip-column-names", "--batch", "--socket=" + socket, os.environ["MIROVAHR_DB_NAME"]],
            input=text, check=True, stdout=subprocess.PIPE, text=True).stdout

    def status(self, kind):
        sockets = self.sockets[kind]
        found = self.status_of(sockets[0], COUNTED + AVERAGES)
        return {**found, **self.status_of(sockets[-1], APPLIED)}

    def status_of(self, socket, names):
        listed = ",".join(f"'{name}'" for name in names)
        rows = self.administer(socket, f"SHOW GLOBAL STATUS WHERE Variable_name IN ({listed})")
        return {name: float(value) for name, value in map(str.split, rows.splitlines())}

    def note(self, people, what, place, before, after):
        """The last round's figures, those that are counted for each person."""
        figures = {name: (after[name] - before[name]) / people for name in COUNTED if name in after}
        figures.update((name, after[name]) for name in AVERAGES + APPLIED if name in after)
        self.bench.facts.setdefault("cluster", {})[f"{what} {place}"] = figures
