"""A screen reader's view of the real program: under Xvfb and a private D-Bus session,
the IMC result is read through the AT-SPI bus after typing a height, under a French and
a C locale: the decimal mark and the date follow the locale.

Run inside its own session bus: dbus-run-session -- python3 e2e_atspi.py BINARY
"""

import os
import re
import subprocess
import sys
import time

from xsession import XSession


def poll(what, find, timeout=20):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        try:
            found = find()
        except Exception:  # the tree changes while we walk it
            found = None
        if found is not None:
            return found
        time.sleep(0.1)
    raise AssertionError(f"{what} never appeared on the accessibility bus")


LOCALES = [
    # LANG, index at 170 cm and 70 kg, index at 180 cm, the date's short form
    ("fr_FR.UTF-8", "24,2", "21,6", r"^\d\d/\d\d/\d{4}$"),
    ("C", "24.2", "21.6", r"^\d{1,2} \w{3} \d{4}$"),
]


def main(binary):
    session = XSession()
    os.environ["DISPLAY"] = session.name
    bus = subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                           env=session.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        time.sleep(0.5)
        import pyatspi  # after the display and bus exist: it finds the bus through them

        for lang, before, after, date in LOCALES:
            run(session, pyatspi, binary, lang, before, after, date)
    finally:
        bus.terminate()
        bus.wait()
        session.close()
    print(f"e2e_atspi: {len(LOCALES)} passed, 0 failed")


def run(session, pyatspi, binary, lang, before, after, date):
    env = dict(session.env, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1",
               LANG=lang, LC_ALL=lang)
    program = subprocess.Popen([binary], env=env)
    try:
        session.wait_for_window("Vorkan MAC")
        desktop = pyatspi.Registry.getDesktop(0)

        def frame(title):
            for app in desktop:
                if app is None:
                    continue
                for window in app:
                    if window is not None and window.name == title:
                        return window
            return None

        def named(root, name):
            return pyatspi.findDescendant(root, lambda node: node is not None and node.name == name)

        main_window = poll("the main window", lambda: frame("Vorkan MAC"))
        poll(f"{lang}: the date", lambda: pyatspi.findDescendant(
            main_window, lambda node: node is not None and re.match(date, node.name or "")))
        imc_button = poll("the IMC button", lambda: named(main_window, "IMC"))
        imc_button.queryAction().doAction(0)
        imc = poll("the IMC window", lambda: frame("IMC"))

        def index():
            return named(imc, "IMC (kg/m²)").queryText().getText(0, -1)

        assert poll("the index", index) == before, f"{lang}: the index reads {index()!r}"

        window = session.wait_for_window("IMC")
        session.xdotool("windowfocus", "--sync", str(window))
        session.xdotool("key", "ctrl+a")
        session.xdotool("type", "--delay", "30", "180")
        poll(f"{lang}: the index {after}", lambda: index() if index() == after else None,
             timeout=10)
        height = named(imc, "Taille (cm)").queryText().getText(0, -1)
        assert height == "180", f"the height reads {height!r}"
    finally:
        program.kill()
        program.wait()
        time.sleep(0.5)


if __name__ == "__main__":
    main(sys.argv[1])
