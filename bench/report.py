"""Makes the page and the plots from what measure.py has written.

    report.py FOLDER            README.md and *.svg, from runs.csv and facts.json
    report.py --show FOLDER     the ratios on standard output
    report.py --check FOLDER KEPT
        as --show; the exit status is 1 when a count of instructions in FOLDER is more than twice that
        of the folder KEPT, or the memory between cycles more than a quarter above its
"""

import argparse
import collections
import csv
import json
import pathlib
import statistics
import string
import subprocess
import sys

Figures = collections.namedtuple(
    "Figures", "rounds wall wall_qt wall_c cpu ratio_qt ratio_c cpu_qt cpu_c spread")


class Measured:
    def __init__(self, folder):
        self.facts = json.loads((folder / "facts.json").read_text(encoding="utf-8"))
        self.runs = collections.defaultdict(list)
        with open(folder / "runs.csv", encoding="utf-8") as file:
            for run in csv.DictReader(file):
                key = run["section"], int(run["size"]), run["what"], run["who"]
                self.runs[key].append((float(run["wall_s"]), float(run["cpu_s"])))

    def sizes(self, section, what):
        return sorted({key[1] for key in self.runs if key[0] == section and key[2] == what})

    def figures(self, section, size, what):
        """Medians, and medians of the ratios of runs that followed each other."""
        plugin, qt, c = (self.runs[section, size, what, who] for who in ("plugin", "qt", "c"))

        def ratios(other, which):
            return [a[which] / b[which] for a, b in zip(plugin, other)]

        wall = ratios(qt, 0)
        return Figures(
            len(plugin), *(statistics.median(run[0] for run in runs) for runs in (plugin, qt, c)),
            statistics.median(run[1] for run in plugin),
            statistics.median(wall), statistics.median(ratios(c, 0)),
            statistics.median(ratios(qt, 1)), statistics.median(ratios(c, 1)),
            f"{min(wall):.2f}–{max(wall):.2f}")

    def comparisons(self):
        for section, what in (("reading", "reading"), ("idle", "idle"), ("serve", "unchanged"),
                              ("serve", "waiting"), ("serve", "funds"), ("serve", "changed"),
                              ("load", "load"), ("load", "payroll"), ("site", "site"),
                              ("start", "start")):
            for size in self.sizes(section, what):
                yield section, size, what


    def tool(self, what, size):
        """The median of the wall times of an operator's tool, or of the dump."""
        return statistics.median(run[0] for run in self.runs["site", size, what, "tool"])

    def preview_ratio(self, people):
        """The times of preview to those of the dump and the synchronisation that followed it."""
        preview, dump, plugin = (self.runs["site", people, *who] for who in (
            ("preview", "tool"), ("dump", "tool"), ("site", "plugin")))
        return statistics.median(a[0] / (b[0] + c[0]) for a, b, c in zip(preview, dump, plugin))

    def sites(self):
        """What was noted of each site, by its people."""
        return {int(people): facts for people, facts in self.facts.get("site", {}).items()}

    def files(self):
        """What was noted of each export, by its lines."""
        return {int(lines): facts for lines, facts in self.facts.get("files", {}).items()}

    def logs(self):
        """What was noted of each log, by its lines."""
        return {int(lines): facts for lines, facts in self.facts.get("logs", {}).items()}

    def log_ratio(self, lines):
        """The times of log to those of awk, which followed it."""
        log, awk = (self.runs["site", lines, what, "tool"] for what in ("log", "awk"))
        return statistics.median(a[0] / b[0] for a, b in zip(log, awk))


# ---- Texts -----------------------------------------------------------------------------------

def duration(seconds):
    if seconds < 0:
        return "−" + duration(-seconds)
    for unit, scale in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= scale:
            return f"{seconds / scale:.3g} {unit}"
    return f"{seconds * 1e9:.0f} ns"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(map(str, row)) + " |" for row in rows])


def comparison_table(measured, section, whats, per=None):
    """Rows of one section; \a whats maps what was measured to how the table calls it."""
    head = ["", "runs", "plugin", "(q) Qt", "(c) C", "to (q)", "lowest–highest", "to (c)",
            "CPU", "CPU to (q)", "CPU to (c)"]
    if per:
        head.insert(3, per)
    rows = []
    for what, name in whats.items():
        for size in measured.sizes(section, what):
            f = measured.figures(section, size, what)
            row = [f"{name} {size:,}".strip() if size else name, f.rounds, duration(f.wall),
                   duration(f.wall_qt), duration(f.wall_c), f"**{f.ratio_qt:.2f}**", f.spread,
                   f"{f.ratio_c:.2f}", duration(f.cpu), f"{f.cpu_qt:.2f}", f"{f.cpu_c:.2f}"]
            if per:
                row.insert(3, duration(f.wall / size))
            rows.append(row)
    return table(head, rows)


def aims_table(measured):
    """Each aim and the largest ratio that was measured for it."""
    def worst(ratio, *cases):
        found = [(getattr(measured.figures(section, size, what), ratio), size)
                 for section, what in cases for size in measured.sizes(section, what)]
        return max(found) if found else None

    kept = [(facts["kept"] / measured.facts["bytes"][size], int(size))
            for size, facts in measured.facts.get("memory", {}).items()]
    loads = ("load", "load"), ("load", "payroll")
    changed = (("serve", "changed"),)
    aims = [
        ("reading, wall time to (q)", 2, worst("ratio_qt", ("reading", "reading"))),
        ("nothing changed, funds off, wall time to (q)", 1.3,
         worst("ratio_qt", ("serve", "unchanged"))),
        ("nothing changed, funds on, wall time to (q)", 1.3, worst("ratio_qt", ("serve", "funds"))),
        ("nothing changed, a tenth waits, wall time to (q)", 1.3,
         worst("ratio_qt", ("serve", "waiting"))),
        ("first load, wall time to (q)", 1.05, worst("ratio_qt", *loads)),
        ("first load, wall time to (c)", 1.1, worst("ratio_c", *loads)),
        ("first load, CPU time to (q)", 1.3, worst("cpu_qt", *loads)),
        ("1 % changed, wall time to (q)", 1.05, worst("ratio_qt", *changed)),
        ("1 % changed, wall time to (c)", 1.1, worst("ratio_c", *changed)),
        ("1 % changed, CPU time to (q)", 1.3, worst("cpu_qt", *changed)),
        ("idle tick, wall time to (q)", 1.05, worst("ratio_qt", ("idle", "idle"))),
        ("memory between cycles to the size of the file", 3, max(kept) if kept else None),
        *site_aims(measured),
    ]
    rows = [(name, aim, f"{value[0]:.2f}", f"{value[1]:,}" if value[1] else "",
             "yes" if round(value[0], 2) <= aim else "**no**")
            for name, aim, value in aims if value]
    return table(["", "aim, at most", "measured, largest", "at size", "reached"], rows)


def site_aims(measured):
    """Those for a site with years of attendance: seconds, and millions of bytes."""
    sites, files = measured.sites(), measured.files()

    def longest(what, sizes):
        return max(((measured.tool(what, size), size) for size in sizes), default=None)

    def largest(find):
        return max(((find(facts), people) for people, facts in sites.items()), default=None)

    return [
        ("preview, time to one dump and one synchronisation", 2,
         max(((measured.preview_ratio(people), people) for people in sites), default=None)),
        *((f"preview of {people:,} people, seconds", aim, (measured.tool("preview", people), people))
          for people, aim in ((500, 8), (5000, 60)) if people in sites),
        *((f"preview of 5,000 people, {what}", aim, (find(sites[5000]), 5000))
          for what, aim, find in (
              ("memory with its server, MB", 300, lambda facts: facts["memory"]["preview"] / 1e6),
              ("room below TMPDIR, MB", 500, lambda facts: facts["room"]["preview"] / 1e6),
              ("seconds of a connection to the site's server", 20, lambda facts: facts["connected"]))
          if 5000 in sites),
        ("preview, how often all of `atten` is read", 1, largest(lambda facts: facts["scans"])),
        ("explain, seconds", 1, longest("explain", sites)),
        ("check-db, seconds", 3, longest("check-db", sites)),
        ("status, seconds", 0.5, longest("status", sites)),
        *((f"{what} of {lines:,} lines, seconds", 1 if lines <= 5000 else 20,
           (measured.tool(what, lines), lines))
          for what in ("check-file", "gate") for lines in files),
        *((f"{what}, memory to the size of the file", 3,
           max((facts["memory"][what] / facts["bytes"], lines)
               for lines, facts in files.items() if lines > 5000))
          for what in ("check-file", "gate") if any(lines > 5000 for lines in files)),
        ("log, seconds", 5, longest("log", measured.logs())),
        ("log, time to awk, which only counts", 1,
         max(((measured.log_ratio(lines), lines) for lines in measured.logs()), default=None)),
    ]


def preview_table(measured):
    return table(
        ["people", "years", "days of attendance", "preview", "of that its own server", "one dump",
         "one synchronisation", "preview to both", "connected to the site", "of that its server is busy",
         "`atten` is read", "memory", "below TMPDIR"],
        [(f"{people:,}", facts["years"], f"{facts['days']:,}",
          duration(measured.tool("preview", people)), duration(measured.tool("server", people)),
          duration(measured.tool("dump", people)),
          duration(measured.figures("site", people, "site").wall),
          f"**{measured.preview_ratio(people):.2f}**", f"{facts['connected']} s",
          duration(facts["busy"]), f"{facts['scans']:.2f} times",
          megabytes(facts["memory"]["preview"]), megabytes(facts["room"]["preview"]))
         for people, facts in sorted(measured.sites().items())])


def tools_table(measured):
    rows = [(what, f"{people:,} people", duration(measured.tool(what, people)),
             megabytes(facts["memory"][what]))
            for what in ("explain", "check-db", "status")
            for people, facts in sorted(measured.sites().items())]
    rows += [(what, f"{lines:,} lines, {megabytes(facts['bytes'])}",
              duration(measured.tool(what, lines)), megabytes(facts["memory"][what]))
             for what in ("check-file", "gate", "diff")
             for lines, facts in sorted(measured.files().items())]
    rows += [(what, f"{lines:,} lines, {megabytes(facts['bytes'])}",
              duration(measured.tool(what, lines)), megabytes(facts["memory"][what]))
             for what in ("log", "awk")
             for lines, facts in sorted(measured.logs().items())]
    return table(["", "", "time", "memory"], rows)


def megabytes(count):
    return f"{count / 1e6:.3g} MB"


def memory_table(measured):
    rows = []
    for size, facts in sorted(measured.facts["memory"].items(), key=lambda item: int(item[0])):
        file = measured.facts["bytes"][size]
        rows.append((f"{int(size):,}", f"{file:,}", f"{facts['kept']:,}",
                     f"{facts['kept'] / int(size):.0f}", f"**{facts['kept'] / file:.2f}**",
                     f"{facts['resident']:,}", f"{facts['peak']:,}",
                     f"{facts['peak'] / int(size):.0f}", f"{facts['peak'] / file:.2f}"))
    return table(["employees", "file", "kept on the heap", "an employee", "to the file",
                  "resident", "peak resident", "an employee", "to the file"], rows)


def statements_table(measured):
    names = {"unchanged": "nothing changed", "waiting": "a tenth waits", "funds": "funds on",
             "changed": "1 % changed", "load": "first load", "payroll": "first load, payroll export",
             "site": "a site of years, forced"}
    rows = []
    for key, count in measured.facts["statements"].items():
        what, size = key.rsplit(" ", 1)
        if what in names:
            rows.append((names[what], int(size), f"{count:,}", f"{count / int(size):.2f}"))
    rows.sort(key=lambda row: (list(names.values()).index(row[0]), row[1]))
    rows = [(name, f"{size:,}", *more) for name, size, *more in rows]
    return table(["", "employees", "sent", "an employee"], rows)


def instructions_table(measured):
    counts = measured.facts["instructions"]
    names = {"reading": "reading 10,000 lines", "unchanged": "nothing changed, 1,000 employees",
             "waiting": "the same, 100 wait", "changed": "1 % of 1,000 changed",
             "funds": "nothing changed, funds on, 1,000",
             "payroll": "first load of 200, payroll export"}
    rows = [(name, *(f"{counts[f'{what} {who}']:,}" for who in ("plugin", "qt", "c")),
             f"**{counts[what + ' plugin'] / counts[what + ' qt']:.2f}**")
            for what, name in names.items()]
    return table(["", "plugin", "(q) Qt", "(c) C", "to (q)"], rows)


def library_table(measured):
    names = {"plugin": "libmirovahr.so", "qt": "(q) the simplest plugin",
             "c": "(c) a bare library in C"}
    libraries = measured.facts["library"]
    return table(
        ["", "stripped", "relocations", "needs", "with all that those need"],
        [(name, f"{libraries[who]['stripped']:,}", libraries[who]["relocations"],
          ", ".join(libraries[who]["needed"]), libraries[who]["all"])
         for who, name in names.items()])


def payroll_table(measured):
    rows = []
    for size in measured.sizes("load", "payroll"):
        without = measured.figures("load", size, "load")
        given = measured.figures("load", size, "payroll")
        rows.append((f"{size:,}", duration(without.wall / size), duration(given.wall / size),
                     duration((given.wall - without.wall) / size),
                     duration((given.wall_qt - without.wall_qt) / size),
                     duration((given.wall_c - without.wall_c) / size)))
    return table(["employees", "an employee, no payroll export", "with one", "difference",
                  "the same of (q)", "the same of (c)"], rows)


def machine_table(measured):
    names = {"cpu": "processors", "qt": "Qt", "mariadb": "MariaDB", "compiler": "compiler"}
    machines = measured.facts["machine"]
    newest = max(machines.values(), key=lambda machine: machine["date"])
    rows = [(name, newest[key]) for key, name in names.items()]
    rows += [(f"measured: {section}", f"{facts['date']}, load {facts['load']}")
             for section, facts in machines.items()]
    return table(["", ""], rows)


# ---- Plots -----------------------------------------------------------------------------------

def plot(folder, name, title, y_label, series, options=""):
    """series: name to a list of (x, y)."""
    sizes = [x for points in series.values() for x, _ in points]
    blocks, lines = [], []
    for nth, (label, points) in enumerate(series.items()):
        blocks.append("$d%d << EOD\n%s\nEOD" % (nth, "\n".join(f"{x} {y}" for x, y in points)))
        lines.append(f'$d{nth} with linespoints pointtype {nth + 5} linewidth 2 title "{label}"')
    script = f"""
set terminal svg size 720,400 font "sans-serif,13" background rgb "white"
set output "{folder / name}"
set encoding utf8
set title "{title}" noenhanced
set xlabel "employees"
set ylabel "{y_label}"
set logscale x
set xrange [{0.8 * min(sizes)}:{1.25 * max(sizes)}]
set format x "%.0f"
set yrange [0:*]
set key outside right top
set grid
{options}
{chr(10).join(blocks)}
plot {", ".join(lines)}
"""
    subprocess.run(["gnuplot"], input=script, text=True, check=True)


def per_employee(measured, section, what, field):
    return [(size, getattr(measured.figures(section, size, what), field) / size * 1e6)
            for size in measured.sizes(section, what)]


def plots(measured, folder):
    who = {"plugin": "wall", "(q) Qt": "wall_qt", "(c) C": "wall_c"}
    plot(folder, "reading.svg", "Reading the export", "µs a line",
         {name: per_employee(measured, "reading", "reading", field)
          for name, field in who.items()})
    plot(folder, "unchanged.svg", "Nothing changed, funds off", "µs an employee", {
        **{name: per_employee(measured, "serve", "unchanged", field)
           for name, field in who.items()},
        "plugin, a tenth waits": per_employee(measured, "serve", "waiting", "wall")})
    plot(folder, "funds.svg", "Nothing changed, funds on", "µs an employee",
         {name: per_employee(measured, "serve", "funds", field) for name, field in who.items()})
    plot(folder, "changed.svg", "1 % changed", "µs an employee",
         {name: per_employee(measured, "serve", "changed", field) for name, field in who.items()})
    plot(folder, "load.svg", "First load", "µs an employee", {
        f"{name}{more}": per_employee(measured, "load", what, field)
        for what, more in (("load", ""), ("payroll", ", payroll export"))
        for name, field in who.items()})
    ratios(measured, folder)


def ratios(measured, folder):
    """All ratios of wall times to (q) in one picture."""
    names = {"reading": "reading", "idle": "idle tick", "unchanged": "unchanged",
             "waiting": "a tenth waits", "funds": "unchanged, funds", "changed": "1 % changed",
             "load": "first load", "payroll": "with payroll"}
    rows = []
    for section, size, what in measured.comparisons():
        if what in names:
            f = measured.figures(section, size, what)
            rows.append((f"{names[what]} {size:,}" if size else names[what], f.ratio_qt))
    rows.reverse()
    block = "\n".join(f'"{name}" {nth} {ratio:.3f}' for nth, (name, ratio) in enumerate(rows))
    script = f"""
set terminal svg size 720,{60 + 22 * len(rows)} font "sans-serif,12" background rgb "white"
set output "{folder / 'ratios.svg'}"
set encoding utf8
set title "Wall time of the plugin to the simplest Qt program" noenhanced
set xrange [0:{1.15 * max(ratio for _, ratio in rows)}]
set yrange [-0.7:{len(rows) - 0.3}]
set grid xtics
set arrow from 1, graph 0 to 1, graph 1 nohead linewidth 2 linecolor rgb "black"
unset key
set style fill solid 0.6
$d << EOD
{block}
EOD
plot $d using (0):2:(0):3:($2-0.35):($2+0.35):ytic(1) with boxxyerror linecolor rgb "#4477aa", \\
     $d using 3:2:(sprintf("  %.2f", $3)) with labels left
"""
    subprocess.run(["gnuplot"], input=script, text=True, check=True)


# ---- What is done with it --------------------------------------------------------------------

def write_page(measured, folder):
    template = string.Template(
        (pathlib.Path(__file__).parent / "page.md").read_text(encoding="utf-8"))
    page = template.substitute(
        aims=aims_table(measured),
        reading=comparison_table(measured, "reading", {"reading": ""}, "a line"),
        unchanged=comparison_table(
            measured, "serve", {"unchanged": "funds off,", "waiting": "a tenth waits,",
                                "funds": "funds on,"}, "an employee"),
        changed=comparison_table(measured, "serve", {"changed": ""}, "an employee"),
        load=comparison_table(
            measured, "load", {"load": "", "payroll": "with a payroll export,"}, "an employee"),
        payroll=payroll_table(measured),
        preview=preview_table(measured),
        tools=tools_table(measured),
        site=comparison_table(measured, "site", {"site": ""}, "an employee"),
        idle=comparison_table(measured, "idle", {"idle": "idle tick"}),
        memory=memory_table(measured),
        start=comparison_table(measured, "start", {"start": "start"}),
        library=library_table(measured),
        statements=statements_table(measured),
        instructions=instructions_table(measured),
        machine=machine_table(measured))
    (folder / "README.md").write_text(page, encoding="utf-8")


def show(measured):
    print(f"{'':24}{'runs':>6}{'plugin':>10}{'to (q)':>8}{'to (c)':>8}{'CPU to (q)':>12}")
    for section, size, what in measured.comparisons():
        f = measured.figures(section, size, what)
        print(f"{what + (f' {size:,}' if size else ''):24}{f.rounds:6}{duration(f.wall):>10}"
              f"{f.ratio_qt:8.2f}{f.ratio_c:8.2f}{f.cpu_qt:12.2f}")
    for size, facts in measured.facts.get("memory", {}).items():
        print(f"memory {size}: {facts['kept'] / measured.facts['bytes'][size]:.2f} times the file")


def check(measured, kept):
    """Compares what repeats from run to run: the counts of instructions and the memory kept."""
    check_instructions(measured, kept)
    check_memory(measured, kept)


def check_instructions(measured, kept):
    grown = False
    for key, before in kept.facts.get("instructions", {}).items():
        now = measured.facts["instructions"].get(key, 0)
        print(f"{key + ':':24}{now:>14,} instructions ({before:,} kept)")
        if key.endswith(" plugin") and not 0 < now <= 2 * before:
            grown = True
    if grown:
        sys.exit("The plugin takes more than twice the instructions that are kept.")


def check_memory(measured, kept):
    for size, facts in measured.facts["memory"].items():
        now, before = facts["kept"], kept.facts["memory"][size]["kept"]
        print(f"{'memory ' + size + ':':24}{now:>14,} bytes ({before:,} kept)")
        if now > 1.25 * before:
            sys.exit("The plugin keeps more than a quarter more memory between cycles.")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--show", action="store_true")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("kept", nargs="?", type=pathlib.Path)
    arguments = parser.parse_args()
    measured = Measured(arguments.folder)
    if arguments.show or arguments.check:
        show(measured)
    if arguments.check:
        check(measured, Measured(arguments.kept))
    elif not arguments.show:
        plots(measured, arguments.folder)
        write_page(measured, arguments.folder)


if __name__ == "__main__":
    main()
