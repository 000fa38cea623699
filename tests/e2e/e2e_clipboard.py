"""The clipboard lines of the Norton and INSEE key windows, read by another X client
while the real program still owns the clipboard."""

import subprocess
import sys
import time

from xsession import XSession, run_cases

MAIN_HEIGHT = 202  # client areas, below any menu bar
NORTON_HEIGHT = 448
CLEINSEE_HEIGHT = 117


def settle():
    time.sleep(0.4)


def click(session, window, client_height, at):
    x, y, _, height = session.geometry(window)
    top = y + height - client_height
    session.xdotool("mousemove", "--sync", str(x + at[0]), str(top + at[1]), "click", "1")
    settle()


def keys(session, window, *names):
    session.xdotool("windowfocus", "--sync", str(window))
    session.xdotool("key", "--delay", "50", *names)
    settle()


def clipboard(session):
    return subprocess.run(["xclip", "-o", "-selection", "clipboard"], env=session.env,
                          capture_output=True, text=True, timeout=10).stdout


def open_from_main(session, main_window, button_at, title):
    # Without a window manager the calculators open over the main window's middle.
    session.xdotool("windowraise", str(main_window))
    click(session, main_window, MAIN_HEIGHT, button_at)
    return session.wait_for_window(title)


def norton_copies_its_score(session, main_window):
    norton = open_from_main(session, main_window, (160 + 63, 78 + 15), "Echelle de Norton")
    settle()
    # A click opens the first popup's list; Escape closes it and leaves the focus there.
    click(session, norton, NORTON_HEIGHT, (31 + 77, 75 + 13))
    keys(session, norton, "Escape")
    # Moyenne, Apathique, Marche avec aide, Très limitée, Occasionelle: 3+3+3+2+3.
    keys(session, norton, "Down", "Down", "Tab", "Down", "Down", "Tab", "Down", "Down", "Tab",
         "Down", "Down", "Down", "Tab", "Down", "Down")
    keys(session, norton, "alt+e")
    keys(session, norton, "c")
    copied = clipboard(session)
    assert copied == "Score de Norton : Risque minimum - [14]", f"clipboard holds {copied!r}"


def cleinsee_copies_number_and_key(session, main_window):
    cle = open_from_main(session, main_window, (160 + 63, 35 + 15), "Cle insee")
    settle()
    click(session, cle, CLEINSEE_HEIGHT, (20 + 60, 36 + 11))
    session.xdotool("windowfocus", "--sync", str(cle))
    session.xdotool("type", "--delay", "30", "1234567890123")
    keys(session, cle, "Return")
    click(session, cle, CLEINSEE_HEIGHT, (95 + 25, 70 + 13))  # "Copier"
    copied = clipboard(session)
    assert copied == "1234567890123 11", f"clipboard holds {copied!r}"


def main(binary):
    session = XSession()
    try:
        program = session.start(binary)
        main_window = session.wait_for_window("Vorkan MAC")
        settle()
        status = run_cases([norton_copies_its_score, cleinsee_copies_number_and_key],
                           lambda case: case(session, main_window))
        assert program.poll() is None, "the program ended"
    finally:
        session.close()
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
