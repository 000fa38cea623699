"""The real program and the companions its buttons start, under Xvfb, driven with the
mouse and keyboard: windows, clipboard, keys and ends as the user sees them."""

import os
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "scripts"))
from xsession import XSession, settle  # noqa: E402

MAIN_HEIGHT, CLEINSEE_HEIGHT = 202, 117  # client areas, below the menus


def open_from_main(session, button_at, title):
    main = session.wait_for_window("Vorkan MAC")
    settle()
    session.xdotool("windowraise", str(main))  # what it opens may cover it
    session.click(main, MAIN_HEIGHT, button_at)
    return session.wait_for_window(title)


def opens_centred_and_ends_on_quit(session, program):
    centred = ((1280 - 445) // 2, (800 - MAIN_HEIGHT) // 2)  # on the session's screen
    imc = open_from_main(session, (76, 50), "IMC")
    main = session.wait_for_window("Vorkan MAC")
    assert session.client_origin(main, MAIN_HEIGHT) == centred, "the main window is not centred"
    session.keys(imc, "ctrl+q")  # what typing shows, the accessibility test reads
    assert program.wait(timeout=10) == 0, "Ctrl+Q did not end the program cleanly"


def copies_for_other_programs(session, program):
    cle = open_from_main(session, (223, 50), "Cle insee")
    session.click(cle, CLEINSEE_HEIGHT, (80, 47))
    session.keys(cle, *"1234567890123", "Return")
    session.click(cle, CLEINSEE_HEIGHT, (120, 83))  # "Copier"
    copied = subprocess.run(["xclip", "-o", "-selection", "clipboard"], env=session.env,
                            capture_output=True, text=True, timeout=10).stdout
    assert copied == "1234567890123 11", f"the clipboard holds {copied!r}"


def lives_on_until_the_last_window_closes(session, program):
    imc = open_from_main(session, (76, 50), "IMC")
    session.close_window(session.wait_for_window("Vorkan MAC"))
    settle()
    assert program.poll() is None, "closing the main window ended the program"
    session.close_window(imc)
    assert program.wait(timeout=10) == 0, "the last window closed, the program did not end"


def started_companion(session, button_at, title):
    window = open_from_main(session, button_at, title)
    session.companions.append(int(session.xdotool("getwindowpid", str(window))))
    settle()
    return window


def chart_covers_the_screen_and_escape_quits(session, program):
    chart = started_companion(session, (370, 50), "Échelle visuelle 3 m")
    assert session.geometry(chart)[2:] == (1280, 800), "the chart does not cover the screen"
    session.keys(chart, "Return")  # the first run measures the screen: accept the guess
    session.keys(chart, "Escape")
    for _ in range(100):
        state = subprocess.run(["ps", "-o", "stat=", "-p", str(session.companions[-1])],
                               capture_output=True, text=True).stdout
        if not state.strip() or state.startswith("Z"):
            return
        time.sleep(0.1)
    raise AssertionError("Escape did not end lumetra.app")


def stopwatch_runs_on_the_space_bar(session, program):
    watch = started_companion(session, (370, 93), "Chrono")
    digits = session.geometry(watch)[:3] + (100,)
    before = session.pixels(*digits)
    session.keys(watch, "space")
    time.sleep(0.6)
    assert session.pixels(*digits) != before, "the digits did not move after the space bar"


COMPANIONS = [chart_covers_the_screen_and_escape_quits, stopwatch_runs_on_the_space_bar]


def main(binary, cases=(opens_centred_and_ends_on_quit, copies_for_other_programs,
                        lives_on_until_the_last_window_closes, *COMPANIONS)):
    failed = 0
    with tempfile.TemporaryDirectory() as config:
        for case in cases:
            session = XSession()
            session.env["XDG_CONFIG_HOME"] = config  # lumetra keeps its calibration there
            session.companions = []  # started detached, they are not the session's children
            try:
                case(session, session.start(binary))
                print(f"PASS {case.__name__}")
            except AssertionError as error:
                failed += 1
                print(f"FAIL {case.__name__}: {error}")
            finally:
                for pid in session.companions:
                    subprocess.run(["kill", str(pid)], stderr=subprocess.DEVNULL)
                session.close()
    print(f"{len(cases) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
