#!/usr/bin/python3
"""Pictures of the Windows program under Wine, as a Windows 10 and a Windows 11 user with
the apps' light or dark theme sees it: the main window, each calculator opened from it,
and the two companions, taken from the screen of a private X display, with the windows
in Wine's own desktop window so that they carry Windows' frames.

Usage: scripts/windows/wine-screenshots.py BUILD OUT_FOLDER
BUILD is the Windows build folder that scripts/windows.sh left (its programs in src/).
Needs imagemagick's import. Text in fields shows under Wine only with FreeType's engine."""

import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests" / "wine"))
from wine_checks import Wine, XSession  # noqa: E402

# The main window's client area, below its menu bar, centred on a 1280 x 800 desktop.
MAIN_ORIGIN = ((1280 - 445) // 2, (800 - 202) // 2)
BUTTONS = {"imc": (76, 50), "surf": (76, 136), "pideal": (76, 93), "norton": (223, 93),
           "cleinsee": (223, 50), "lumetra": (370, 50), "pendulo": (370, 93)}
PERSONALIZE = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize"


def set_look(wine, version, dark):
    wine.run("winecfg", "-v", version, timeout=120)
    for value in ("AppsUseLightTheme", "SystemUsesLightTheme"):
        wine.run("reg", "add", PERSONALIZE, "/v", value, "/t", "REG_DWORD", "/d",
                 "0" if dark else "1", "/f", timeout=120)
    wine.stop()


def shoot(session, out):
    time.sleep(1.5)
    subprocess.run(["import", "-window", "root", str(out)], env=session.env, check=True)


def pictures(wine, session, program, out, look):
    wine.start("explorer", "/desktop=shots,1280x800", str(program),
               "-platform", "windows:fontengine=freetype")
    time.sleep(8)
    shoot(session, out / f"{look}-main.png")
    for name, (x, y) in BUTTONS.items():
        # Inside Wine's desktop the windows are not the X server's: the pointer and
        # keys go where a user's would, to the main window centred on the desktop.
        session.xdotool("mousemove", "--sync", str(MAIN_ORIGIN[0] + x),
                        str(MAIN_ORIGIN[1] + y), "click", "1")
        time.sleep(4)
        shoot(session, out / f"{look}-{name}.png")
        session.xdotool("key", "Escape" if name == "lumetra" else "ctrl+w")
        time.sleep(1)
    wine.stop()


def main(build, out):
    build, out = pathlib.Path(build).resolve(), pathlib.Path(out).resolve()
    out.mkdir(parents=True, exist_ok=True)
    session = XSession()
    wine = Wine(build, session)
    try:
        wine.boot()
        for version in ("win10", "win11"):
            for dark in (False, True):
                set_look(wine, version, dark)
                look = f"{version}-{'dark' if dark else 'light'}"
                pictures(wine, session, build / "src" / "vorkan-mac.exe", out, look)
                print(f"{look}: {out}/{look}-*.png", flush=True)
    finally:
        wine.stop()
        session.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
