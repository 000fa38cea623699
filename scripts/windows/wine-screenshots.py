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

MAIN_HEIGHT = 202  # the main window's client area, below its menu bar
BUTTONS = {"imc": (76, 50), "surf": (76, 136), "pideal": (76, 93), "norton": (223, 93),
           "cleinsee": (223, 50), "lumetra": (370, 50), "pendulo": (370, 93)}
TITLES = {"imc": "IMC", "surf": "Surface corporelle", "pideal": "Poids idéal",
          "norton": "Echelle de Norton", "cleinsee": "Cle insee",
          "lumetra": "Échelle visuelle 3 m", "pendulo": "Chrono"}
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
    main = session.wait_for_window("Vorkan MAC", timeout=60)
    shoot(session, out / f"{look}-main.png")
    for name, at in BUTTONS.items():
        session.xdotool("windowactivate", "--sync", str(main))
        session.click(main, MAIN_HEIGHT, at)
        window = session.wait_for_window(TITLES[name], timeout=60)
        shoot(session, out / f"{look}-{name}.png")
        session.keys(window, "Escape" if name == "lumetra" else "ctrl+w")
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
