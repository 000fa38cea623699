"""What a screen reader reads of the real program through AT-SPI, under the locale of the
environment. Run as: dbus-run-session -- python3 e2e_atspi.py BINARY"""

import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "scripts"))
from xsession import XSession  # noqa: E402


def poll(what, find, timeout=20):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        try:
            found = find()
        except Exception:  # the tree changes while we walk it
            found = None
        if found:
            return found
        time.sleep(0.1)
    raise AssertionError(f"{what} never appeared on the accessibility bus")


def reads(session, pyatspi, binary, lang, index, after):
    session.start(binary, env=dict(session.env, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                                   QT_ACCESSIBILITY="1", LANG=lang, LC_ALL=lang))

    def named(root, name):
        return pyatspi.findDescendant(root, lambda node: node is not None and node.name == name)

    def frame(title):
        return next(w for app in pyatspi.Registry.getDesktop(0) if app for w in app
                    if w and w.name == title)

    poll("the IMC button", lambda: named(frame("Vorkan MAC"), "IMC")).queryAction().doAction(0)
    text = lambda name: named(frame("IMC"), name).queryText().getText(0, -1)  # noqa: E731
    assert poll("the index", lambda: text("IMC (kg/m²)")) == index, f"{lang}: {index} expected"
    session.keys(session.wait_for_window("IMC"), "ctrl+a", "1", "8", "0")
    poll(f"{lang}: the index {after}", lambda: text("IMC (kg/m²)") == after, timeout=10)
    assert text("Taille (cm)") == "180", f"the height reads {text('Taille (cm)')!r}"
    # A result in a group is named by the group and its own label; a label's ampersand
    # is one; a control is named by its label as it reads now (the height the IMC left).
    assert named(frame("IMC"), "Poids idéal (kg), Homme"), "no result named by its group"
    for button, title, name in [("Surface corporelle", "Surface corporelle",
                                 "Surface (m²), Gehan & Gorge"),
                                ("Poids idéal", "Poids idéal", "Taille (cm) : 180"),
                                ("Clé insee", "Cle insee", "Copier")]:
        named(frame("Vorkan MAC"), button).queryAction().doAction(0)
        found = poll(f"{title}: {name}", lambda: named(frame(title), name))
    assert found.description == "Copier dans le presse papier", found.description


def main(binary):
    session = XSession()
    os.environ["DISPLAY"] = session.name
    bus = subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                           env=session.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        time.sleep(0.5)
        import pyatspi  # after the display and bus exist: it finds the bus through them

        for locale in [("fr_FR.UTF-8", "24,2", "21,6"), ("C", "24.2", "21.6")]:
            reads(session, pyatspi, binary, *locale)
            session.close_programs()
    finally:
        bus.terminate()
        bus.wait()
        session.close()
    print("e2e_atspi: 2 passed, 0 failed")


if __name__ == "__main__":
    main(sys.argv[1])
