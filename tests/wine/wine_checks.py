"""The Windows build under Wine, on a private X display and in a private Wine prefix:
every QtTest suite, the system's French locale, then the installer, the installed
program and its two companions, and the removal, for a French user.

wine_checks.py BUILD MSI, with BUILD the Windows build folder."""

import pathlib
import re
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from Xlib import Xatom  # noqa: E402
from xsession import XSession  # noqa: E402

from wineprefix import Wine  # noqa: E402
import installed  # noqa: E402


def free_area_below_a_panel(session):
    """Gives the display the free area of the launcher tests' screen (data/
    screen-below-panel.json), which Wine passes on to Windows programs as the work area."""
    session.root.change_property(session.dpy.intern_atom("_NET_WORKAREA"), Xatom.CARDINAL,
                                 32, [200, 30, 1000, 400])
    session.dpy.flush()


def run_suite(wine, exe, args, results, limit=900):
    """Runs one suite as QtTest writes it to a file (ctest driving Wine can hang), with
    QtTest's own limit a function raised to the suite's for the long random session. That
    session is a quarter of the Linux one: an action costs ten times as much under Wine,
    and the Linux run, under the sanitizers, covers the program's own code."""
    log = results / f"{exe.stem}.txt"
    log.unlink(missing_ok=True)
    started = time.monotonic()
    env = {"QTEST_FUNCTION_TIMEOUT": str(limit * 1000), "VORKAN_ACTIONS": "5000"}
    try:
        status = wine.run(str(exe), *args, "-o", f"{log.name},txt", cwd=results, timeout=limit,
                          extra_env=env).returncode
    except subprocess.TimeoutExpired:
        wine.stop()
        status = "timed out"
    text = log.read_text(errors="replace") if log.exists() else ""
    totals = [line for line in text.splitlines() if line.startswith("Totals:")] or ["no totals"]
    passed = status == 0 and totals[0] != "no totals"
    print(f"{'PASS' if passed else 'FAIL'} {exe.stem}: {totals[-1]} "
          f"({time.monotonic() - started:.0f} s)", flush=True)
    if not passed:
        print("\n".join(line for line in text.splitlines()
                        if line.startswith(("FAIL!", "   Loc:", "   Actual", "   Expected"))))
    return passed


def main(build, msi):
    build = pathlib.Path(build).resolve()
    results = build / "wine-results"
    results.mkdir(exist_ok=True)
    session = XSession()
    free_area_below_a_panel(session)
    wine = Wine(build, session)
    failed = []
    try:
        wine.boot()
        # The suites CTest lists: a suite since removed may have left its program behind.
        listed = subprocess.run(["ctest", "-N"], cwd=build, capture_output=True, text=True).stdout
        suites = [build / f"{name}.exe" for name in re.findall(r"#\d+: (tst_\w+)", listed)]
        failed += [exe.stem for exe in suites if not run_suite(wine, exe, [], results)]
        # The date and decimal mark of a French Windows, then the installer as a French
        # user meets it.
        wine.as_french_user()
        if not run_suite(wine, build / "tst_launcher.exe", ["showsTodaysDateAndFiguresInFrench"],
                         results):
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
    print(f"{len(suites) + 1 + len(installed.CASES) - len(failed)} passed, "
          f"{len(failed)} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
