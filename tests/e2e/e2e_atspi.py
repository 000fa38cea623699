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


# After 180 cm typed in IMC at 70 kg, each figure by its label (and group), as shown; after
# Down and Tab through Norton's lists, each list by its criterion, with its first row.
FIGURES = {
    "IMC": {"Dénutrition": "<53", "Maigreur": "53-60", "Corpulence normale": "60-81",
            "Surpoids": "81-97", "Obéité modérée": "97-113", "Obésité sévère": "113-130",
            "Obésité morbide": ">130", "Poids idéal (kg), Homme": "73.7",
            "Poids idéal (kg), Femme": "69.2", "Poids maigre (kg), Homme": "57.6",
            "Poids maigre (kg), Femme": "52.5"},
    "Surface corporelle": {f"Surface (m²), {name}": shown for name, shown in
                           [("Dubois", "1.89"), ("Gehan & Gorge", "1.88"), ("Mosteller", "1.87")]},
    "Poids idéal": {f"Poids idéal (kg), {name}": shown for name, shown in
                    [("Broca", "80"), ("Lorentz", "72.5"), ("Perrault", "81.8"),
                     ("Huet et Godelsk", "74"), ("Lorentz II", "72.5")]},
    "Echelle de Norton": {"Condition physique": "Bonne", "Etat mental": "Bon alerte",
                          "Activité": "Ambulant", "Mobilité": "Totale", "Incontinence": "Aucune"},
}


def reads(session, pyatspi, binary, lang, index, after):
    session.start(binary, env=dict(session.env, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                                   QT_ACCESSIBILITY="1", LANG=lang, LC_ALL=lang))

    named = lambda root, name: pyatspi.findDescendant(root, lambda n: n and n.name == name)  # noqa
    frame = lambda title: next(w for app in pyatspi.Registry.getDesktop(0) if app  # noqa: E731
                               for w in app if w and w.name == title)

    def text(title, name):  # of what is so named and shows a text: a field, figure or list
        shows = lambda node: node and node.name == name and "Text" in node.get_interfaces()  # noqa
        return pyatspi.findDescendant(frame(title), shows).queryText().getText(0, -1)

    def open_window(button, title):
        poll(button, lambda: named(frame("Vorkan MAC"), button)).queryAction().doAction(0)
        poll(title, lambda: frame(title))

    open_window("IMC", "IMC")
    assert poll("the index", lambda: text("IMC", "IMC (kg/m²)")) == index, f"{lang}: {index}"
    session.keys(session.wait_for_window("IMC"), "ctrl+a", "1", "8", "0")
    poll(f"{lang}: the index {after}", lambda: text("IMC", "IMC (kg/m²)") == after, timeout=10)
    for title, figures in FIGURES.items():  # each window opens from the button of its title
        open_window(title, title)
        if title == "Echelle de Norton":
            session.keys(session.wait_for_window(title), *["Down", "Tab"] * len(figures))
        for name, shown in figures.items():
            shown = shown.replace(".", index[2])
            poll(f"{title}: {name} {shown}", lambda: text(title, name) == shown, timeout=10)
    # A control is named by its label as it reads now (the height the IMC left).
    open_window("Clé insee", "Cle insee")
    found = poll("Copier", lambda: named(frame("Cle insee"), "Copier"))
    assert found.description == "Copier dans le presse papier", found.description
    assert named(frame("Poids idéal"), "Taille (cm) : 180"), "the height slider is unnamed"


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
