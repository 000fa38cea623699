"""A screen reader's view of the real program: under Xvfb and a private D-Bus session,
the IMC result is read through the AT-SPI bus after typing a height.

Run inside its own session bus: dbus-run-session -- python3 e2e_atspi.py BINARY
"""

import os
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


def main(binary):
    session = XSession()
    os.environ["DISPLAY"] = session.name
    bus = subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                           env=session.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        time.sleep(0.5)
        import pyatspi  # after the display and bus exist: it finds the bus through them

        session.env.update(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
        session.start(binary)
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
        imc_button = poll("the IMC button", lambda: named(main_window, "IMC"))
        imc_button.queryAction().doAction(0)
        imc = poll("the IMC window", lambda: frame("IMC"))

        def index():
            return named(imc, "IMC (kg/m²)").queryText().getText(0, -1)

        assert poll("the index", index) == "24.2", f"the index reads {index()!r}"

        window = session.wait_for_window("IMC")
        session.xdotool("windowfocus", "--sync", str(window))
        session.xdotool("key", "ctrl+a")
        session.xdotool("type", "--delay", "30", "180")
        poll("the new index", lambda: index() if index() == "21.6" else None, timeout=10)
        height = named(imc, "Taille (cm)").queryText().getText(0, -1)
        assert height == "180", f"the height reads {height!r}"
        print("e2e_atspi: 1 passed, 0 failed")
    finally:
        bus.terminate()
        session.close()


if __name__ == "__main__":
    main(sys.argv[1])
