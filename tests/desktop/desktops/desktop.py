# A desktop of Debian's packages, started without a login.
# SPDX-License-Identifier: MIT
import glob
import os
import subprocess
import time

from gi.repository import GLib

from stage import bus
from stage.notifications import PATH as NOTIFICATIONS_PATH
from stage.session import NOTIFICATIONS, WATCHER, Session
from stage.waiting import PATIENCE, NeverHappened, wait_for

from .screen import Picture

SIZE = (1024, 768)
START_SECONDS = 60
STILL_SECONDS = 0.6
MOST_NOTIFICATIONS = 30
# A point where no desktop shows anything.
ASIDE = (200, 400)
LEFT, RIGHT = 1, 3


class Desktop(Session):
    """The session of one desktop."""

    # The values of XDG_CURRENT_DESKTOP and XDG_SESSION_TYPE.
    NAME = ""
    KIND = "x11"
    # The package whose version is the desktop's.
    PACKAGE = ""
    MORE_ENVIRONMENT = {}
    # Files below the home folder, with their content.
    FILES = {}
    FILE_MANAGER = ""
    # Where the prompt has its first button, as fractions of its width and height.
    BUTTON = (0.5, 0.8)

    def __init__(self, folder, account, path, cleanup, system_bus_address):
        super().__init__(folder, account, path, cleanup, system_bus_address)
        # Leaves the default to the desktop's own file manager.
        os.remove(f"{account.home}/.config/mimeapps.list")
        for name, text in self.FILES.items():
            self._write_person_file(name, text)

    def _make_environment(self, path, system_bus_address):
        environment = super()._make_environment(path, system_bus_address)
        for name in ("GDK_BACKEND", "NO_AT_BRIDGE"):
            del environment[name]
        return environment | {
            "XDG_CURRENT_DESKTOP": self.NAME, "XDG_SESSION_TYPE": self.KIND,
            "XDG_CONFIG_DIRS": "/etc/xdg", "XDG_DATA_DIRS": "/usr/local/share:/usr/share",
            "GSETTINGS_BACKEND": "keyfile"} | self.MORE_ENVIRONMENT

    def _offer_services(self):
        for file in glob.glob("/usr/share/dbus-1/services/*.service"):
            self.bus.offer(file)
        bus.driver(self.connection, "ReloadConfig")

    @classmethod
    def version(cls):
        """The version of the desktop, such as 5.27."""
        text = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", cls.PACKAGE], check=True,
                              capture_output=True, text=True).stdout
        return ".".join(text.rpartition(":")[2].partition("-")[0].split(".")[:2])

    def start_desktop(self):
        """Starts the desktop's programs."""
        raise NotImplementedError

    def arrange(self):
        """Prepares the started desktop for the play."""

    def bring_up(self):
        """Starts the desktop and waits for its tray and its notification server."""
        self.start_desktop()
        wait_for(lambda: bus.has_owner(self.connection, WATCHER), "there is a tray",
                 START_SECONDS)
        wait_for(self._has_notification_server, "there is a notification server", START_SECONDS)
        self.settle(PATIENCE)
        self.arrange()
        self.point(*ASIDE)
        self.settle(PATIENCE)

    def _has_notification_server(self):
        """True if one runs; otherwise activates one if the desktop has one for that."""
        if bus.has_owner(self.connection, NOTIFICATIONS):
            return True
        try:
            bus.driver(self.connection, "StartServiceByName", "(su)", NOTIFICATIONS, 0)
        except GLib.Error:
            pass
        return False

    def look(self):
        """A picture of the screen."""
        pixels = subprocess.run(
            ["import", "-window", "root", "-display", self.environment["DISPLAY"], "-depth", "8",
             "rgb:-"], check=True, capture_output=True).stdout
        return Picture(*SIZE, pixels)

    def settle(self, seconds=5):
        """Waits until the screen is still, for `seconds` at most; returns a picture of it."""
        picture, since = self.look(), time.monotonic()

        def is_still():
            nonlocal picture, since
            now = self.look()
            if now != picture:
                picture, since = now, time.monotonic()
            return time.monotonic() - since >= STILL_SECONDS
        try:
            wait_for(is_still, "the screen is still", seconds)
        except NeverHappened:
            pass
        return picture

    def point(self, x, y):
        """Moves the pointer."""
        self.run("xdotool", "mousemove", str(x), str(y))

    def click(self, x, y, button=LEFT):
        # Some panels need the pointer to rest before they take a click.
        self.run("xdotool", "mousemove", str(x), str(y), "sleep", "0.3", "click", str(button))

    def reveal_buttons(self, prompt):
        """Makes the prompt in the box `prompt` show its buttons; returns its box then."""
        return prompt

    def press_first_button(self, prompt):
        """Presses the first button of the prompt in the box `prompt`."""
        self.click(*self.reveal_buttons(prompt).at(*self.BUTTON))

    def close_notifications(self):
        """Closes what a server still shows."""
        for number in range(1, MOST_NOTIFICATIONS):
            try:
                bus.call(self.connection, NOTIFICATIONS, NOTIFICATIONS_PATH,
                         f"{NOTIFICATIONS}.CloseNotification", "(u)", number)
            except GLib.Error:
                continue

    def close_folders(self):
        """Ends the file manager."""
        subprocess.run(["pkill", "-u", str(self.account.uid), "-x", self.FILE_MANAGER],
                       check=False)
