#!/usr/bin/python3
"""Instructions from exec to the main window's first flush to the screen, counted by
Valgrind's callgrind on the offscreen platform: a figure that stays the same whatever
else the machine is doing, unlike a time.

Usage: bench/instructions.py VORKAN_BINARY MINIMAL_BINARY PLAIN_BINARY [RUNS]
The minimal program is the floor of any Qt Widgets program (one titled window); the
plain one is the same main window as vorkan-mac, written directly against Qt.
Each program runs RUNS times (5 by default) and the median is kept: fontconfig reads its
settings with a hash that differs at each run, which moves a count by up to 0.2 M.
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time

FIRST_FLUSH = "QBackingStore::flush*"


def count(binary):
    with tempfile.TemporaryDirectory() as work:
        out = os.path.join(work, "callgrind.out")
        env = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_HASH_SEED="0",
                   LC_ALL="C.UTF-8", QT_LOGGING_RULES="qt.qpa.*=false")
        program = subprocess.Popen(
            ["valgrind", "--tool=callgrind", f"--dump-before={FIRST_FLUSH}",
             f"--callgrind-out-file={out}", binary],
            env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        dump = out + ".1"
        try:
            deadline = time.monotonic() + 120
            while not os.path.exists(dump) or "\ntotals:" not in open(dump).read():
                if time.monotonic() > deadline or program.poll() is not None:
                    raise RuntimeError(f"{binary} flushed no window under callgrind")
                time.sleep(0.1)
        finally:
            program.kill()
            program.wait()
        for line in open(dump):
            if line.startswith("totals:"):
                return int(line.split()[1])
    raise RuntimeError(f"no totals in the dump of {binary}")


def main(vorkan, minimal, plain, runs=5):
    programs = {"vorkan-mac": vorkan, "minimal Qt": minimal, "plain Qt": plain}
    medians = {}
    print(f"instructions from exec to the first flush, median of {runs} (offscreen)")
    for name, binary in programs.items():
        counts = [count(binary) for _ in range(int(runs))]
        medians[name] = statistics.median(counts)
        print(f"{name:<12} {medians[name] / 1e6:8.2f} M  ({min(counts) / 1e6:.2f}"
              f"-{max(counts) / 1e6:.2f})")
    ours = medians["vorkan-mac"]
    print(f"ratio to the floor {ours / medians['minimal Qt']:.3f}, "
          f"to the plain Qt window {ours / medians['plain Qt']:.3f}")


if __name__ == "__main__":
    main(*sys.argv[1:])
