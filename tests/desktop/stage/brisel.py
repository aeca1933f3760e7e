# The program under test, its preferences and its alerts.
# SPDX-License-Identifier: MIT
import configparser
import os

from . import bus
from .tray import Tray
from .waiting import NeverHappened, wait_for

NAME = "org.brisel.Brisel"
SANITIZER_REPORTS = ("ERROR: AddressSanitizer", "ERROR: LeakSanitizer", "runtime error:")


class Brisel:
    """One run of the program in a session."""

    def __init__(self, session, programs, cleanup):
        self._session = session
        self._seen = 0
        start = len([name for name in os.listdir(session.folder) if name.startswith("brisel-")])
        self.program = session.start([os.path.join(programs, "brisel")], f"brisel-{start}")
        cleanup.callback(self.program.stop)
        self.tray = Tray(session.connection, self.pid)

    @property
    def pid(self):
        return self.program.pid

    def wait_for_log(self, text):
        """Waits for `text` in the system log, after the last match."""
        try:
            self._seen = self.program.wait_for_text(text, self._seen)
        except NeverHappened:
            if self.program.runs():
                raise
            raise NeverHappened(f"the program has ended with {self.program.process.returncode}:\n"
                                f"{self.program.text()}") from None

    def has_logged(self, text):
        return text in self.program.text()

    def wait_until_ready(self):
        """Waits for the tray icon."""
        wait_for(lambda: bus.has_owner(self._session.connection, NAME) or
                 not self.program.runs(), "the program is on the bus")
        self.tray.wait_until_shown()

    def quit(self):
        """Chooses "Quit Brisel"; returns the exit status."""
        self.tray.choose("Quit Brisel")
        return self.program.wait_for_end()

    def has_complaints(self):
        """True if a sanitizer reported something."""
        text = self.program.text()
        return any(report in text for report in SANITIZER_REPORTS)


class Preferences:
    """The program's preferences file."""

    GROUP = "Brisel"

    def __init__(self, account):
        self._account = account
        self.file = f"{account.home}/.config/brisel/preferences.conf"

    def write(self, **values):
        """Replaces the file by one with these values."""
        os.makedirs(os.path.dirname(self.file), exist_ok=True)
        self._account.owns(os.path.dirname(self.file))
        with open(self.file, "w", encoding="utf-8") as file:
            file.write(f"[{self.GROUP}]\n")
            file.writelines(f"{key}={value}\n" for key, value in values.items())
        self._account.owns(self.file)

    def forget(self):
        """Removes the file, as before the program's first run."""
        if os.path.exists(self.file):
            os.remove(self.file)

    def read(self, key):
        """The value as text; None if it is absent."""
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(self.file)
        return parser.get(self.GROUP, key, fallback=None)


class Alerts:
    """The alert windows of the program."""

    TITLE = "^Brisel$"

    def __init__(self, session):
        self._session = session

    def windows(self):
        return self._session.windows("--name", self.TITLE)

    def wait_for(self, text):
        """Waits for an alert with `text`; returns its window."""
        return wait_for(lambda: next((window for window in self.windows()
                                      if text in self.text(window)), None),
                        f'an alert says "{text}"')

    def text(self, window):
        """The command line of the window's process, which holds its texts."""
        try:
            pid = self._session.run("xdotool", "getwindowpid", window)
            with open(f"/proc/{pid}/cmdline", encoding="utf-8") as file:
                return file.read()
        except (RuntimeError, OSError):
            return ""

    def answer(self, window, key):
        """Presses a key: Return for the default button, Escape to refuse."""
        self._session.run("xdotool", "windowfocus", "--sync", window)
        self._session.press(key)
        wait_for(lambda: window not in self.windows(), "the alert goes")
