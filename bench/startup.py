#!/usr/bin/python3
"""Cold start and idle memory of vorkan-mac against a minimal Qt Widgets program and
the same main window written directly against Qt.

Usage: bench/startup.py VORKAN_BINARY MINIMAL_BINARY PLAIN_BINARY [RUNS]
The programs run under one private Xvfb, interleaved. A start is timed from just
before exec to the moment the window is mapped and its pixels are no longer one
colour, seen from outside through the X server, which is first left to finish what
the last program's end gave it to do (tearing down a client costs it up to a tenth of
a second). Resident memory is read from /proc once the program has been idle for a
second.
"""

import os
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "scripts"))
from xsession import XSession  # noqa: E402
from Xlib import X  # noqa: E402


def mapped_window(session, title):
    for child in session.root.query_tree().children:
        try:
            if child.get_wm_name() == title and child.get_attributes().map_state == X.IsViewable:
                return child
        except Exception:  # a window that went away while we looked
            continue
    return None


def painted(window):
    geometry = window.get_geometry()
    data = window.get_image(0, 0, geometry.width, geometry.height, X.ZPixmap, 0xFFFFFFFF).data
    return data.count(data[:4]) * 4 != len(data)


def memory_kib(pid):
    values = {}
    with open(f"/proc/{pid}/status") as status:
        for line in status:
            key, _, rest = line.partition(":")
            if key in ("VmRSS", "VmHWM"):
                values[key] = int(rest.split()[0])
    return values


def cpu_ticks(pid):
    with open(f"/proc/{pid}/stat") as stat:
        fields = stat.read().rsplit(")", 1)[1].split()
    return int(fields[11]) + int(fields[12])


def wait_until_idle(pid, quiet=0.2, limit=10):
    """Returns once the process has used no CPU time for `quiet` seconds."""
    deadline = time.monotonic() + limit
    ticks, since = cpu_ticks(pid), time.monotonic()
    while time.monotonic() < deadline:
        time.sleep(0.02)
        now = cpu_ticks(pid)
        if now != ticks:
            ticks, since = now, time.monotonic()
        elif time.monotonic() - since >= quiet:
            return


def one_start(session, binary, title):
    wait_until_idle(session.xvfb.pid)
    start = time.perf_counter()
    program = subprocess.Popen([binary], env=session.env, stderr=subprocess.DEVNULL)
    try:
        window = None
        while time.perf_counter() - start < 20:
            window = window or mapped_window(session, title)
            if window is not None and painted(window):
                elapsed = time.perf_counter() - start
                break
            time.sleep(0.0005)
        else:
            raise RuntimeError(f"{binary} showed no painted window")
        time.sleep(1.0)
        memory = memory_kib(program.pid)
        return elapsed * 1000, memory["VmRSS"], memory["VmHWM"]
    finally:
        program.kill()
        program.wait()


def summary(values):
    return statistics.median(values), min(values), max(values)


def main(vorkan, minimal, plain, runs=10):
    runs = int(runs)
    session = XSession()
    programs = {"vorkan-mac": (vorkan, "Vorkan MAC"), "minimal Qt": (minimal, "Minimal"),
                "plain Qt": (plain, "Vorkan MAC")}
    results = {name: [] for name in programs}
    try:
        for _ in range(runs):
            for name, (binary, title) in programs.items():
                results[name].append(one_start(session, binary, title))
    finally:
        session.close()

    print(f"{runs} interleaved runs under Xvfb (median / min / max)")
    print(f"{'program':<12} {'start (ms)':>24} {'VmRSS (MiB)':>22} {'VmHWM (MiB)':>22}")
    medians = {}
    for name, rows in results.items():
        columns = [summary([row[i] for row in rows]) for i in range(3)]
        medians[name] = [column[0] for column in columns]
        start, rss, hwm = columns
        print(f"{name:<12} {start[0]:8.1f} {start[1]:7.1f} {start[2]:7.1f}"
              f" {rss[0] / 1024:8.1f} {rss[1] / 1024:6.1f} {rss[2] / 1024:6.1f}"
              f" {hwm[0] / 1024:8.1f} {hwm[1] / 1024:6.1f} {hwm[2] / 1024:6.1f}")
    ours, floor, plain = medians["vorkan-mac"], medians["minimal Qt"], medians["plain Qt"]
    print(f"ratio to the floor: start {ours[0] / floor[0]:.2f}, VmRSS {ours[1] / floor[1]:.3f},"
          f" VmHWM {ours[2] / floor[2]:.3f}")
    print(f"ratio to plain Qt: start {ours[0] / plain[0]:.2f}, VmRSS {ours[1] / plain[1]:.2f}")


if __name__ == "__main__":
    main(*sys.argv[1:])
