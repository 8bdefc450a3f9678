"""How long a program runs, and what it and the programs that it starts need."""

import collections
import os
import pathlib
import re
import subprocess
import time

#: Seconds, seconds, bytes, bytes.
Usage = collections.namedtuple("Usage", "wall cpu memory room")

#: The longest time between two looks at memory and room, in seconds and as a part of the time so far:
#: a program that ends within milliseconds is looked at more often.
INTERVAL = 0.02
PART = 0.1

#: What mirovahrctl ends with when it did its work: without findings and with some.
DONE = (0, 1)


def run_measured(command, folder):
    """Runs a program with TMPDIR in \\a folder.

    The memory is that of the program and the programs that it starts: of those that run at one time, the
    sum of the largest sizes that each has had. The room is the largest that was taken in the folder."""
    begin = time.monotonic()
    with open(os.devnull, "w", encoding="utf-8") as nowhere:
        process = subprocess.Popen([*map(str, command)], stdout=nowhere, stderr=subprocess.PIPE,
                                   env={**os.environ, "TMPDIR": str(folder)})
    memory = room = 0
    while True:
        memory = max(memory, sum(largest_sizes(process.pid)))
        room = max(room, bytes_in(folder))
        ended, status, own = os.wait4(process.pid, os.WNOHANG)
        if ended:
            break
        time.sleep(min(INTERVAL, PART * (time.monotonic() - begin)))
    wall = time.monotonic() - begin
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode not in DONE:
        raise SystemExit(f"{command}: {process.stderr.read().decode()}")
    process.stderr.close()
    return Usage(wall, own.ru_utime + own.ru_stime, memory, room)


def largest_sizes(process):
    """The largest resident sizes (bytes) that a process and those below it have had so far."""
    sizes = []
    folder = pathlib.Path("/proc", str(process))
    try:
        size = re.search(r"^VmHWM:\s+(\d+) kB", (folder / "status").read_text(), re.MULTILINE)
        sizes.append(int(size.group(1)) * 1024 if size else 0)
        for children in folder.glob("task/*/children"):
            for child in children.read_text().split():
                sizes.extend(largest_sizes(int(child)))
    except OSError:
        pass  # it has ended meanwhile
    return sizes


def bytes_in(folder):
    total = 0
    for path, _, files in os.walk(folder):
        for name in files:
            try:
                total += os.lstat(os.path.join(path, name)).st_blocks * 512
            except OSError:
                continue  # it was removed meanwhile
    return total
