"""The MSI as a user meets it under Wine: installed for all users, the program started from
its Start-menu shortcut, its two companions started from its buttons, then removed. The
cases run in this order, each on what the one before left."""

import getpass
import time

from wineprefix import windows_path

MAIN_HEIGHT = 202  # the main window's client area, below its menu bar
COMPANIONS = [((307, 35), "Échelle visuelle 3 m"), ((307, 78), "Chrono")]


def program_folder(wine):
    return wine.drive_c() / "Program Files" / "Vorkan MAC"


def shortcut(wine):
    """The Start-menu shortcut: everyone's on Windows; Wine's installer puts an
    all-users package's shortcuts in the installing user's menu."""
    menus = [wine.drive_c() / "ProgramData", wine.drive_c() / "users" / getpass.getuser()
             / "AppData" / "Roaming"]
    found = [menu / "Microsoft" / "Windows" / "Start Menu" / "Programs" / "Vorkan MAC.lnk"
             for menu in menus]
    return next((path for path in found if path.is_file()), found[0])


def msiexec(wine, action, msi):
    status = wine.run("msiexec", "/qn", action, windows_path(msi), timeout=300).returncode
    assert status == 0, f"msiexec {action} ended with status {status}"


def opens_no_console(program):
    """Whether the program's header names the Windows GUI subsystem, not the console."""
    header = program.read_bytes()[:4096]
    pe = int.from_bytes(header[0x3C:0x40], "little")
    return int.from_bytes(header[pe + 0x5C:pe + 0x5E], "little") == 2


def installs_into_program_files_with_a_shortcut(wine, session, msi):
    msiexec(wine, "/i", msi)
    for name in ("vorkan-mac.exe", "lumetra.app.exe", "pendulo.app.exe",
                 "platforms/qwindows.dll"):
        assert (program_folder(wine) / name).is_file(), f"{name} is not installed"
        assert not name.endswith(".exe") or opens_no_console(program_folder(wine) / name), \
            f"{name} opens a console beside its window"
    assert shortcut(wine).is_file(), "no shortcut in the Start menu"


def shortcut_starts_the_program_and_its_companions(wine, session, msi):
    wine.start("start", "/unix", str(shortcut(wine)))
    main = session.wait_for_window("Vorkan MAC", timeout=60)
    time.sleep(1)
    for (left, top), title in COMPANIONS:
        session.click(main, MAIN_HEIGHT, (left + 63, top + 15))
        session.wait_for_window(title, timeout=60)
        session.xdotool("windowraise", str(main))  # the chart covers the screen


def uninstalls_without_a_trace(wine, session, msi):
    wine.stop()
    msiexec(wine, "/x", msi)
    assert not program_folder(wine).exists(), "the program folder is left after removal"
    assert not shortcut(wine).exists(), "the shortcut is left after removal"


CASES = [installs_into_program_files_with_a_shortcut,
         shortcut_starts_the_program_and_its_companions, uninstalls_without_a_trace]
