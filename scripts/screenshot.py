#!/usr/bin/python3
"""Takes a picture of one window of the real program under a private Xvfb.

Usage: scripts/screenshot.py [--pad N] BINARY TITLE OUT.png [xdotool-args ...]
Each extra argument is one xdotool command line, run before the picture, with
{window} standing for the window id, for example "key ctrl+a" or "type 180".
With --pad N the picture is taken from the screen, N pixels around the window, so
that open menus and tips show too. Needs imagemagick's import.
"""

import os
import subprocess
import sys
import time

from xsession import XSession


def main(*args):
    pad = None
    if args[0] == "--pad":
        pad, args = int(args[1]), args[2:]
    binary, title, out, *actions = args
    session = XSession()
    session.start(binary)
    try:
        window = session.wait_for_window(title)
        time.sleep(0.5)
        for action in actions:
            session.xdotool(*action.format(window=window).split())
            time.sleep(0.2)
        time.sleep(0.5)
        if pad is None:
            subprocess.run(["import", "-window", str(window), out], env=session.env, check=True)
        else:
            x, y, width, height = session.geometry(window)
            crop = f"{width + 2 * pad}x{height + 2 * pad}+{max(0, x - pad)}+{max(0, y - pad)}"
            subprocess.run(["import", "-window", "root", "-crop", crop, out], env=session.env,
                           check=True)
    finally:
        session.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
