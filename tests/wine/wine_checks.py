"""The Windows build under Wine, on a private X display and in a private Wine prefix:
the suites as CTest lists them, with Wine as the cross build's emulator, then the
installer, the installed program and its two companions, and the removal, for a French
user.

wine_checks.py BUILD MSI, with BUILD the Windows build folder."""

import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from Xlib import Xatom  # noqa: E402
from xsession import XSession  # noqa: E402

from wineprefix import Wine, french_locale  # noqa: E402
import installed  # noqa: E402


def free_area_below_a_panel(session):
    """Gives the display the free area of the launcher tests' screen (data/
    screen-below-panel.json), which Wine passes on to Windows programs as the work area."""
    session.root.change_property(session.dpy.intern_atom("_NET_WORKAREA"), Xatom.CARDINAL,
                                 32, [200, 30, 1000, 400])
    session.dpy.flush()


def main(build, msi):
    build = pathlib.Path(build).resolve()
    session = XSession()
    free_area_below_a_panel(session)
    wine = Wine(build, session)
    failed = []
    try:
        wine.boot()
        french_locale(build / "locale")
        if subprocess.run(["ctest", "--output-on-failure"], cwd=build, env=wine.env).returncode:
            failed.append("the suites")
        # The installer as a French user meets it.
        wine.stop()
        wine.env.update(LANG="fr_FR.UTF-8", LOCPATH=str(build / "locale"))
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
    print(f"failed: {', '.join(failed) or 'none'}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
