"""The MSI as a user meets it under Wine: installed for all users, replaced in place by a
later build, the program started from its Start-menu shortcut, its two companions
started from its buttons, then removed. The cases run in this order, each on what the
one before left."""

import getpass
import subprocess
import time
import uuid

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


def windows_path(path):
    """The path as Windows programs in the prefix see it, through the drive Z: for /."""
    return "Z:" + str(path).replace("/", "\\")


UNINSTALL = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall"


def installed_versions(wine):
    """The versions of Vorkan MAC in the installed programs list, one for each entry."""
    text = wine.run("reg", "query", UNINSTALL, "/s", timeout=120, output=True).stdout
    keys = [[line.strip().split("    ") for line in key.splitlines()[1:]]
            for key in text.split("\nHKEY_")]
    entries = [{value[0]: value[2] for value in key if len(value) == 3} for key in keys]
    return [entry.get("DisplayVersion") for entry in entries
            if entry.get("DisplayName") == "Vorkan MAC"]


def msiinfo(*args):
    return subprocess.run(["msiinfo", *map(str, args)], check=True, capture_output=True,
                          text=True).stdout


def msi_version(package):
    lines = msiinfo("export", package, "Property").splitlines()[3:]
    return dict(line.split("\t") for line in lines)["ProductVersion"]


def later_build(wine, package=None):
    """The installer of the next build, made from the given one: a build number up, with
    product and package codes of its own."""
    later = wine.prefix / "later-build.msi"
    if package:
        later.write_bytes(package.read_bytes())
        major, minor, build = msi_version(package).split(".")
        summary = dict(line.split(": ", 1) for line in msiinfo("suminfo", later).splitlines())
        product, code = ("{%s}" % str(uuid.uuid4()).upper() for _ in range(2))
        subprocess.run(["msibuild", str(later), "-q", f"UPDATE `Property` SET `Value` = "
                        f"'{major}.{minor}.{int(build) + 1}' WHERE `Property` = 'ProductVersion'",
                        "-q", f"UPDATE `Property` SET `Value` = '{product}' "
                        "WHERE `Property` = 'ProductCode'", "-s", summary["Subject"],
                        summary["Author"], summary["Template"], code], check=True)
    return later


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
    assert installed_versions(wine) == [msi_version(msi)], installed_versions(wine)


def a_later_build_replaces_it_in_place(wine, session, msi):
    later = later_build(wine, msi)
    msiexec(wine, "/i", later)
    assert installed_versions(wine) == [msi_version(later)], installed_versions(wine)


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
    msiexec(wine, "/x", later_build(wine))
    assert not program_folder(wine).exists(), "the program folder is left after removal"
    assert not shortcut(wine).exists(), "the shortcut is left after removal"
    assert not installed_versions(wine), "the installed programs list keeps an entry"


CASES = [installs_into_program_files_with_a_shortcut, a_later_build_replaces_it_in_place,
         shortcut_starts_the_program_and_its_companions, uninstalls_without_a_trace]
