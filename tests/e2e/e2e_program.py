"""The real program under Xvfb, driven as a user does with the mouse and keyboard."""

import sys
import time

from xsession import XSession, run_cases

MAIN_HEIGHT = 202  # the main window's client area, below its menu bar
IMC_HEIGHT = 313


def settle():
    time.sleep(0.4)


def client_origin(session, window, client_height):
    x, y, _, height = session.geometry(window)
    return x, y + height - client_height


def click(session, window, client_height, at):
    x, y = client_origin(session, window, client_height)
    session.xdotool("mousemove", "--sync", str(x + at[0]), str(y + at[1]), "click", "1")
    settle()


def open_imc(session, main):
    click(session, main, MAIN_HEIGHT, (13 + 63, 35 + 15))  # "IMC"
    return session.wait_for_window("IMC")


def opens_centred_and_ends_on_quit(session, binary):
    program = session.start(binary)
    main = session.wait_for_window("Vorkan MAC")
    settle()
    x, y = client_origin(session, main, MAIN_HEIGHT)
    screen = session.dpy.screen()
    assert x == (screen.width_in_pixels - 445) // 2, f"main window's client area at x={x}"
    assert y == (screen.height_in_pixels - MAIN_HEIGHT) // 2, f"client area at y={y}"

    imc = open_imc(session, main)
    types_into_imc(session, imc)
    open_imc(session, main)
    assert len(session.windows_named("IMC")) == 1, "a second click opened a second IMC window"

    session.xdotool("windowfocus", "--sync", str(imc))
    session.xdotool("key", "ctrl+q")
    status = program.wait(timeout=10)
    assert status == 0, f"Ctrl+Q ended the program with status {status}"


def types_into_imc(session, imc):
    x, y = client_origin(session, imc, IMC_HEIGHT)
    index_area = (x + 264, y + 12, 75, 25)
    before = session.pixels(*index_area)
    session.xdotool("windowfocus", "--sync", str(imc))
    session.xdotool("key", "ctrl+a")
    session.xdotool("type", "--delay", "30", "150")
    session.xdotool("key", "Tab", "ctrl+a")
    session.xdotool("type", "--delay", "30", "90")
    settle()
    assert session.pixels(*index_area) != before, "typed digits did not change the index"
    session.xdotool("key", "ctrl+a")
    session.xdotool("type", "--delay", "30", "70")
    session.xdotool("key", "shift+Tab", "ctrl+a")
    session.xdotool("type", "--delay", "30", "170")
    settle()
    assert session.pixels(*index_area) == before, "typing the defaults back did not restore them"


def lives_on_until_the_last_window_closes(session, binary):
    program = session.start(binary)
    main = session.wait_for_window("Vorkan MAC")
    settle()
    imc = open_imc(session, main)
    session.close_window(main)
    settle()
    assert program.poll() is None, "closing the main window ended the program"
    assert session.windows_named("IMC") == [imc]
    session.close_window(imc)
    status = program.wait(timeout=10)
    assert status == 0, f"closing the last window ended the program with status {status}"


def main(binary):
    def in_own_session(case):
        session = XSession()
        try:
            case(session, binary)
        finally:
            session.close()

    cases = [opens_centred_and_ends_on_quit, lives_on_until_the_last_window_closes]
    return run_cases(cases, in_own_session)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
