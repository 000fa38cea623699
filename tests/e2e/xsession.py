"""A private X display for driving the real program as a user does."""

import os
import subprocess
import time

from Xlib import X, display, protocol


class XSession:
    """Starts Xvfb on a free display and offers the few things the tests need."""

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

    def start(self, binary, *args):
        program = subprocess.Popen([binary, *args], env=self.env)
        self.programs.append(program)
        return program

    def close(self):
        for program in self.programs:
            if program.poll() is None:
                program.kill()
                program.wait()
        self.dpy.close()
        self.xvfb.terminate()
        self.xvfb.wait()

    def tool_env(self):
        """The display's environment in a locale every machine has, for the X tools."""
        return dict(self.env, LANG="C.UTF-8", LC_ALL="C.UTF-8")

    def xdotool(self, *args):
        return subprocess.run(["xdotool", *args], env=self.tool_env(), check=True,
                              capture_output=True, text=True).stdout

    def title(self, window):
        """The window's title as the program set it (UTF-8), whatever the locale."""
        prop = window.get_full_property(self.dpy.intern_atom("_NET_WM_NAME"), X.AnyPropertyType)
        if prop is None:
            return window.get_wm_name()
        value = prop.value
        return value.decode("utf-8") if isinstance(value, bytes) else value

    def windows_named(self, title):
        """The mapped top-level windows with that exact title, oldest first."""
        found = []
        for child in self.root.query_tree().children:
            try:
                if (child.get_attributes().map_state == X.IsViewable
                        and self.title(child) == title):
                    found.append(child.id)
            except Exception:  # a window that went away while we looked
                continue
        return found

    def wait_for_window(self, title, timeout=20):
        deadline = time.monotonic() + timeout
        while time.monotonic() < deadline:
            found = self.windows_named(title)
            if found:
                return found[0]
            time.sleep(0.05)
        raise AssertionError(f"no window titled {title!r} was mapped")

    def geometry(self, window):
        win = self.dpy.create_resource_object("window", window)
        geo = win.get_geometry()
        at = win.translate_coords(self.root, 0, 0)
        return -at.x, -at.y, geo.width, geo.height

    def pixels(self, x, y, width, height):
        image = self.root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF)
        return image.data

    def close_window(self, window):
        """Asks the window to close as a window manager does (WM_DELETE_WINDOW)."""
        win = self.dpy.create_resource_object("window", window)
        protocols = self.dpy.intern_atom("WM_PROTOCOLS")
        delete = self.dpy.intern_atom("WM_DELETE_WINDOW")
        event = protocol.event.ClientMessage(window=win, client_type=protocols,
                                             data=(32, [delete, X.CurrentTime, 0, 0, 0]))
        win.send_event(event)
        self.dpy.flush()


def run_cases(cases, run_one):
    """Runs each case through run_one, prints a line for each and the totals; returns the
    exit status of the whole run."""
    failed = 0
    for case in cases:
        try:
            run_one(case)
            print(f"PASS {case.__name__}")
        except AssertionError as error:
            failed += 1
            print(f"FAIL {case.__name__}: {error}")
    print(f"{len(cases) - failed} passed, {failed} failed")
    return 1 if failed else 0
