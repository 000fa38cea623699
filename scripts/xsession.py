"""A private X display for driving the real program as a user does: the end-to-end
tests, the start-up benchmark and the README's pictures share it."""

import os
import subprocess
import time

from Xlib import X, display, protocol


class XSession:

    def __init__(self, width=1280, height=800):
        read_fd, write_fd = os.pipe()
        self.xvfb = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_fd), "-screen", "0", f"{width}x{height}x24",
             "-nolisten", "tcp"],
            pass_fds=(write_fd,), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_fd)
        with os.fdopen(read_fd) as pipe:
            self.name = ":" + pipe.readline().strip()
        self.env = dict(os.environ, DISPLAY=self.name, QT_QPA_PLATFORM="xcb")
        self.env.pop("WAYLAND_DISPLAY", None)
        self.dpy = display.Display(self.name)
        self.root = self.dpy.screen().root
        self.programs = []

    def start(self, binary, *args, env=None):
        program = subprocess.Popen([binary, *args], env=env or self.env)
        self.programs.append(program)
        return program

    def close_programs(self):
        for program in self.programs:
            if program.poll() is None:
                program.kill()
                program.wait()
        time.sleep(0.5)

    def close(self):
        self.close_programs()
        self.dpy.close()
        self.xvfb.terminate()
        self.xvfb.wait()

    def xdotool(self, *args, timeout=None):
        return subprocess.run(["xdotool", *args], env=dict(self.env, LC_ALL="C.UTF-8"),
                              check=True, capture_output=True, text=True, timeout=timeout).stdout

    def wait_for_window(self, title, timeout=20):
        try:
            found = self.xdotool("search", "--sync", "--onlyvisible", "--name", f"^{title}$",
                                 timeout=timeout)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"no window titled {title!r} was mapped") from None
        return int(found.split()[0])

    def geometry(self, window):
        shell = dict(line.split("=") for line in self.xdotool("getwindowgeometry", "--shell",
                                                                str(window)).split())
        return tuple(int(shell[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))

    def client_origin(self, window, client_height):
        x, y, _, height = self.geometry(window)
        return x, y + height - client_height

    def click(self, window, client_height, at):
        x, y = self.client_origin(window, client_height)
        self.xdotool("mousemove", "--sync", str(x + at[0]), str(y + at[1]), "click", "1")
        settle()

    def keys(self, window, *keys):
        self.xdotool("windowfocus", "--sync", str(window))
        self.xdotool("key", "--delay", "50", *keys)
        settle()

    def pixels(self, x, y, width, height):
        return self.root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF).data

    def close_window(self, window):
        # As a window manager does.
        win = self.dpy.create_resource_object("window", window)
        delete = self.dpy.intern_atom("WM_DELETE_WINDOW")
        win.send_event(protocol.event.ClientMessage(
            window=win, client_type=self.dpy.intern_atom("WM_PROTOCOLS"),
            data=(32, [delete, X.CurrentTime, 0, 0, 0])))
        self.dpy.flush()


def settle():
    time.sleep(0.4)
