"""A Wine prefix of the build's own, on the session's X display."""

import subprocess


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


def windows_path(path):
    """The path as Windows programs in the prefix see it, through the drive Z: for /."""
    return "Z:" + str(path).replace("/", "\\")


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
