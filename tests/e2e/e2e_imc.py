"""The real program under Xvfb: it opens on IMC, takes typed digits, ends when closed."""

import subprocess
import sys
import time

from xsession import XSession


def settle():
    time.sleep(0.4)


def main(binary):
    session = XSession()
    program = subprocess.Popen([binary], env=session.env)
    try:
        window = session.wait_for_window("IMC")
        settle()
        x, y, _, _ = session.geometry(window)
        # imct, the index, as the layout places it.
        index_area = (x + 264, y + 12, 75, 25)
        before = session.pixels(*index_area)

        session.xdotool("windowfocus", "--sync", str(window))
        session.xdotool("key", "ctrl+a")
        session.xdotool("type", "--delay", "30", "150")
        session.xdotool("key", "Tab", "ctrl+a")
        session.xdotool("type", "--delay", "30", "90")
        settle()
        changed = session.pixels(*index_area)
        assert changed != before, "typed digits did not change the index"

        session.xdotool("key", "ctrl+a")
        session.xdotool("type", "--delay", "30", "70")
        session.xdotool("key", "shift+Tab", "ctrl+a")
        session.xdotool("type", "--delay", "30", "170")
        settle()
        assert session.pixels(*index_area) == before, "typing the defaults back did not restore 24.2"

        session.close_window(window)
        status = program.wait(timeout=10)
        assert status == 0, f"the program ended with status {status}"
        print("e2e_imc: 1 passed, 0 failed")
    finally:
        if program.poll() is None:
            program.kill()
        session.close()


if __name__ == "__main__":
    main(sys.argv[1])
