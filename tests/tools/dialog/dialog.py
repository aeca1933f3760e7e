# A running brisel-dialog, and the X display of its windows.
# SPDX-License-Identifier: MIT
import os
import re
import select
import subprocess

PATIENCE = 30
SCREEN_WIDTH, SCREEN_HEIGHT = 800, 600
# The leak sanitizer reports here too, with these suppressions.
LEAK_OPTIONS = (f"suppressions={os.path.dirname(os.path.abspath(__file__))}/leaks.supp:"
                "print_suppressions=0")


class Display:
    """An Xvfb server on a free display."""

    def __init__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp", "-noreset",
             "-screen", "0", f"{SCREEN_WIDTH}x{SCREEN_HEIGHT}x24"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            self.name = ":" + answer.readline().strip()

    def environment(self):
        environment = {key: value for key, value in os.environ.items()
                       if key != "WAYLAND_DISPLAY"}
        return environment | {
            "DISPLAY": self.name, "DBUS_SESSION_BUS_ADDRESS": "disabled:", "GDK_BACKEND": "x11",
            "NO_AT_BRIDGE": "1", "LC_ALL": "C.UTF-8", "LSAN_OPTIONS": LEAK_OPTIONS}

    def end(self):
        self.server.terminate()
        self.server.wait()


class Dialog:

    def __init__(self, program, *arguments, environment, entries=b""):
        self.environment = environment
        self.process = subprocess.Popen(
            [program, *arguments], env=environment, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.process.stdin.write(entries)
        self.process.stdin.close()
        self.process.stdin = None
        self.window = None

    def line(self):
        ready, _, _ = select.select([self.process.stdout], [], [], PATIENCE)
        if not ready:
            raise TimeoutError("the program says nothing")
        return self.process.stdout.readline()

    def xdotool(self, *words):
        return subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True,
                              capture_output=True, text=True, timeout=PATIENCE).stdout

    def xprop(self):
        return subprocess.run(["xprop", "-id", self.window], env=self.environment, check=True,
                              capture_output=True, text=True, timeout=PATIENCE).stdout

    def wait_until_shown(self):
        line = self.line()
        if line != b"shown\n":
            self.process.kill()
            raise AssertionError((line, self.process.stderr.read()))
        self.window = self.xdotool("search", "--all", "--onlyvisible", "--pid", self.process.pid,
                                   "--name", "").split()[-1]
        # Without a window manager, the window gets no keyboard focus by itself.
        self.xdotool("windowfocus", "--sync", self.window)

    def geometry(self):
        shown = self.xdotool("getwindowgeometry", "--shell", self.window)
        return {key: int(value) for key, value in re.findall(r"(\w+)=(-?\d+)", shown)}

    def click(self, from_right, from_bottom):
        place = self.geometry()
        self.xdotool("mousemove", place["X"] + place["WIDTH"] - from_right,
                     place["Y"] + place["HEIGHT"] - from_bottom, "click", 1)

    def press(self, *keys):
        self.xdotool("key", "--window", "0", *keys)

    def discard(self):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()
        self.process.stderr.close()

    def end(self):
        """Waits for the exit; returns the rest of stdout, the exit status and stderr."""
        try:
            said, complaints = self.process.communicate(timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            self.process.kill()
            raise
        return said.decode(), self.process.returncode, complaints.decode()
