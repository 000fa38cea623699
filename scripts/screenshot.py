#!/usr/bin/python3
"""Takes a picture of one window of the real program under a private Xvfb.

Usage: scripts/screenshot.py BINARY TITLE OUT.png [xdotool-args ...]
Each extra argument is one xdotool command line, run before the picture, with
{window} standing for the window id, for example "key ctrl+a" or "type 180".
Needs imagemagick's import.
"""

import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tests", "e2e"))
from xsession import XSession  # noqa: E402


def main(binary, title, out, *actions):
    session = XSession()
    program = subprocess.Popen([binary], env=session.env)
    try:
        window = session.wait_for_window(title)
        time.sleep(0.5)
        for action in actions:
            session.xdotool(*action.format(window=window).split())
            time.sleep(0.2)
        time.sleep(0.5)
        subprocess.run(["import", "-window", str(window), out], env=session.env, check=True)
    finally:
        program.kill()
        session.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
