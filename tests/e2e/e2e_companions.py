"""The main window's two companion buttons start lumetra.app and pendulo.app from its folder."""

import os
import signal
import sys
import tempfile
import time

from xsession import XSession

MAIN_HEIGHT = 202  # the main window's client area, below its menu bar
LUMETRA_TITLE = "Échelle visuelle 3 m"
PENDULO_TITLE = "Chrono"


def settle():
    time.sleep(0.4)


def click_button(session, main, left, top):
    x, y, _, height = session.geometry(main)
    y += height - MAIN_HEIGHT
    session.xdotool("mousemove", "--sync", str(x + left + 63), str(y + top + 15), "click", "1")
    settle()


def window_pid(session, window):
    return int(session.xdotool("getwindowpid", str(window)))


def ends(pid, timeout=10):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        try:
            with open(f"/proc/{pid}/stat") as stat:
                if stat.read().split(") ")[1].startswith("Z"):
                    return True
        except FileNotFoundError:
            return True
        time.sleep(0.1)
    return False


def chart_covers_the_screen_and_escape_quits(session, main, started):
    click_button(session, main, 307, 35)  # "Echelle Visuelle"
    chart = session.wait_for_window(LUMETRA_TITLE)
    started.append(window_pid(session, chart))
    settle()
    screen = session.dpy.screen()
    _, _, width, height = session.geometry(chart)
    assert (width, height) == (screen.width_in_pixels, screen.height_in_pixels), \
        f"the chart is {width}x{height}, not full screen"
    session.xdotool("windowfocus", "--sync", str(chart))
    # The first run measures the screen: accept the guess, then quit from the chart.
    session.xdotool("key", "Return")
    settle()
    session.xdotool("key", "Escape")
    assert ends(started[-1]), "Escape did not end lumetra.app"


def stopwatch_runs_on_the_space_bar(session, main, started):
    click_button(session, main, 307, 78)  # "Chrono"
    watch = session.wait_for_window(PENDULO_TITLE)
    started.append(window_pid(session, watch))
    settle()
    x, y, width, _ = session.geometry(watch)
    digits = (x, y, width, 100)
    before = session.pixels(*digits)
    session.xdotool("windowfocus", "--sync", str(watch))
    session.xdotool("key", "space")
    time.sleep(0.6)
    assert session.pixels(*digits) != before, "the digits did not move after the space bar"


def main(binary):
    cases = [chart_covers_the_screen_and_escape_quits, stopwatch_runs_on_the_space_bar]
    failed = 0
    with tempfile.TemporaryDirectory() as config:
        for case in cases:
            session = XSession()
            # lumetra keeps its calibration there; the user's own stays untouched.
            session.env["XDG_CONFIG_HOME"] = config
            started = []
            try:
                session.start(binary)
                main_window = session.wait_for_window("Vorkan MAC")
                settle()
                case(session, main_window, started)
                print(f"PASS {case.__name__}")
            except AssertionError as error:
                failed += 1
                print(f"FAIL {case.__name__}: {error}")
            finally:
                # Started detached by the main window, they are not the session's children.
                for pid in started:
                    try:
                        os.kill(pid, signal.SIGTERM)
                    except ProcessLookupError:
                        pass
                session.close()
    print(f"{len(cases) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
