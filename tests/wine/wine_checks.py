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

import installed  # noqa: E402


def french_locale(folder):
    """Wine takes the Windows user locale from the C library's, which must exist: a
    compiled fr_FR.UTF-8 of the build's own, so the machine's locales stay as they are."""
    compiled = folder / "fr_FR.UTF-8"
    if not compiled.is_dir():
        folder.mkdir(parents=True, exist_ok=True)
        # localedef exits 1 on mere warnings; the compiled locale is what counts.
        subprocess.run(["localedef", "-i", "fr_FR", "-f", "UTF-8", str(compiled)],
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    assert (compiled / "LC_NUMERIC").exists(), "localedef could not compile fr_FR.UTF-8"
    return folder


class Wine:
    def __init__(self, build, session):
        self.prefix = build / "wine"
        env = {k: v for k, v in session.env.items()
               if not k.startswith("LC_") and k != "LANGUAGE"}
        env.update(
            WINEPREFIX=str(self.prefix), WINEARCH="win64", WINEDEBUG="-all",
            # No .NET or HTML engine to install, no menu entries on this machine's desktop.
            WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d", LANG="C.UTF-8")
        self.env = env

    def drive_c(self):
        return self.prefix / "drive_c"

    def boot(self):
        self.run("wineboot", "--init", timeout=300)
        # Qt 6 is made for Windows 10 and later; a new prefix claims Windows 7.
        self.run("winecfg", "-v", "win10", timeout=120)
        # No window manager runs on the test display, and Wine waits two seconds for
        # one each time a window it leaves to the manager is hidden.
        self.run("reg", "add", r"HKCU\Software\Wine\X11 Driver", "/v", "Managed", "/d", "N",
                 "/f", timeout=120)
        subprocess.run(["wineserver", "-w"], env=self.env, timeout=300, check=True)

    def run(self, *args, timeout, cwd=None, extra_env=None, output=False):
        """Runs a program of the prefix; with output, its standard output is kept."""
        env = dict(self.env, **(extra_env or {}))
        return subprocess.run(["wine", *args], env=env, cwd=cwd, timeout=timeout,
                              stdout=subprocess.PIPE if output else subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, text=output, errors="replace")

    def start(self, *args):
        return subprocess.Popen(["wine", *args], env=self.env, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def stop(self):
        """Ends every program of this prefix, and its server."""
        subprocess.run(["wineserver", "-k"], env=self.env, timeout=60)
        subprocess.run(["wineserver", "-w"], env=self.env, timeout=60)


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
