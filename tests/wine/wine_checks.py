"""The Windows build under Wine, on a private X display and in a private Wine prefix:
every QtTest suite, the system's French locale, then the installer, the installed
program and its two companions, and the removal, for a French user.

wine_checks.py BUILD MSI, with BUILD the Windows build folder."""

import json
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "e2e"))
from Xlib import Xatom  # noqa: E402
from xsession import XSession  # noqa: E402

from wineprefix import Wine  # noqa: E402
import installed  # noqa: E402


def free_area_below_a_panel(session):
    """Gives the display the free area of the launcher tests' screen, below and beside
    panels, which Wine passes on to Windows programs as the work area."""
    config = pathlib.Path(__file__).resolve().parent.parent / "data" / "screen-below-panel.json"
    screen = json.loads(config.read_text())["screens"][0]
    area = [screen["x"], screen["y"], screen["width"], screen["height"]]
    session.root.change_property(session.dpy.intern_atom("_NET_WORKAREA"), Xatom.CARDINAL,
                                 32, area)
    session.dpy.flush()


def qttest_suites(build):
    """Each QtTest executable that the build registers with CTest, with its arguments
    and time limit, read from CTest so that a new suite is run without being named."""
    listing = subprocess.run(["ctest", "--show-only=json-v1"], cwd=build, check=True,
                             capture_output=True, text=True).stdout
    suites = []
    for test in json.loads(listing)["tests"]:
        command = test.get("command", [])
        if command and command[0].endswith(".exe"):
            limits = [p["value"] for p in test.get("properties", []) if p["name"] == "TIMEOUT"]
            suites.append((pathlib.Path(command[0]), command[1:], limits[0] if limits else 120))
    return suites


def run_suite(wine, exe, args, limit, results):
    """Runs one suite as QtTest writes it to a file; ctest driving Wine can hang."""
    log = results / f"{exe.stem}.txt"
    log.unlink(missing_ok=True)
    started = time.monotonic()
    try:
        status = wine.run(str(exe), *args, "-o", f"{log.name},txt",
                          cwd=results, timeout=3 * limit,
                          # QtTest's own limit of 5 minutes a function is too short for
                          # the long random session under Wine.
                          extra_env={"QTEST_FUNCTION_TIMEOUT": str(3 * limit * 1000)}
                          ).returncode
    except subprocess.TimeoutExpired:
        wine.stop()
        status = "timed out"
    text = log.read_text(errors="replace") if log.exists() else ""
    totals = [line for line in text.splitlines() if line.startswith("Totals:")]
    summary = totals[-1] if totals else "no totals"
    print(f"{'PASS' if status == 0 and totals else 'FAIL'} {exe.stem}: {summary} "
          f"({time.monotonic() - started:.0f} s)", flush=True)
    if status != 0 or not totals:
        print("\n".join(line for line in text.splitlines()
                        if line.startswith(("FAIL!", "   Loc:", "   Actual", "   Expected"))))
        return False
    return True


def main(build, msi):
    build = pathlib.Path(build).resolve()
    results = build / "wine-results"
    results.mkdir(exist_ok=True)
    session = XSession()
    free_area_below_a_panel(session)
    wine = Wine(build, session)
    failed = []
    try:
        started = time.monotonic()
        wine.boot()
        print(f"Wine prefix ready ({time.monotonic() - started:.0f} s)", flush=True)
        suites = qttest_suites(build)
        for exe, args, limit in suites:
            if not run_suite(wine, exe, args, limit, results):
                failed.append(exe.stem)
        # The date and decimal mark of a French Windows, then the installer as a French
        # user meets it.
        wine.as_french_user()
        launcher = next(exe for exe, _, _ in suites if exe.stem == "tst_launcher")
        if not run_suite(wine, launcher, ["followsTheSystemsFrenchLocale"], 120, results):
            failed.append("tst_launcher (French)")
        for case in installed.CASES:
            try:
                case(wine, session, pathlib.Path(msi).resolve())
                print(f"PASS {case.__name__}", flush=True)
            except AssertionError as error:
                failed.append(case.__name__)
                print(f"FAIL {case.__name__}: {error}", flush=True)
    finally:
        wine.stop()
        session.close()
    total = len(qttest_suites(build)) + 1 + len(installed.CASES)
    print(f"{total - len(failed)} passed, {len(failed)} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
