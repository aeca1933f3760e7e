# A desktop of Debian's packages, started without a login.
# SPDX-License-Identifier: MIT
import glob
import os
import subprocess
import time

from gi.repository import GLib

from stage import bus
from stage.notifications import PATH as NOTIFICATIONS_PATH
from stage.programs import Program
from stage.session import NOTIFICATIONS, WATCHER, Session
from stage.waiting import PATIENCE, NeverHappened, wait_for

from .screen import Picture

SIZE = (1024, 768)
START_SECONDS = 60
STILL_SECONDS = 0.6
# The longest wait for something that moves, such as the bar of a notification that expires.
MOVING_SECONDS = 3
# How long a desktop may take to show something.
SHOW_SECONDS = 4
# The clocks in the panels change on the minute.
MINUTE, LONGEST_LOOK = 60, 12
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
    # Where the prompt has its first button, as fractions of its width and height.
    BUTTON = (0.5, 0.8)

    def __init__(self, folder, account, path, cleanup, system_bus_address):
        self._traffic = None
        self._programs_environment = None
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

    def start(self, command, name, **options):
        """Starts a program; on Wayland, once the compositor is up, one of its clients."""
        log = os.path.join(self.folder, f"{name}.log")
        return Program(command, self.account, self._programs_environment or self.environment, log,
                       **options)

    def become_wayland(self):
        """Makes the programs that start from now on clients of the compositor."""
        sockets = glob.glob("wayland-*[0-9]", root_dir=self.environment["XDG_RUNTIME_DIR"])
        changes = {"WAYLAND_DISPLAY": max(sockets), "DISPLAY": ""}
        bus.driver(self.connection, "UpdateActivationEnvironment", "(a{ss})", changes)
        self._programs_environment = self.environment | changes

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
        self._traffic = self.start(["dbus-monitor", "--session", f"interface='{NOTIFICATIONS}'"],
                                   "notification-traffic")
        self.start_desktop()
        wait_for(lambda: bus.has_owner(self.connection, WATCHER), "there is a tray",
                 START_SECONDS)
        wait_for(self._has_notification_server, "there is a notification server", START_SECONDS)
        if self.KIND == "wayland":
            self.become_wayland()
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

    def before_change(self):
        """A picture to compare with, taken when no clock is about to change."""
        left = MINUTE - time.time() % MINUTE
        if left < LONGEST_LOOK:
            time.sleep(left + 1)
        return self.settle()

    def what_appears(self, before, rows):
        """The box of what changes in these rows, once the screen is still; None if nothing does."""
        try:
            box = wait_for(lambda: self.look().difference(before, rows), "the screen changes",
                           SHOW_SECONDS)
        except NeverHappened:
            return None
        # Something that moves may be gone before the screen is still.
        return self.settle(MOVING_SECONDS).difference(before, rows) or box

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

    def closed_notifications(self):
        """How many notifications were closed, for any reason."""
        return self._traffic.text().count("member=NotificationClosed")

    def close_notifications(self):
        """Closes what a server still shows."""
        for number in range(1, MOST_NOTIFICATIONS):
            try:
                bus.call(self.connection, NOTIFICATIONS, NOTIFICATIONS_PATH,
                         f"{NOTIFICATIONS}.CloseNotification", "(u)", number)
            except GLib.Error:
                continue

    def close_window(self):
        """Closes the window that has the focus."""
        if self.KIND == "wayland":
            self.press("alt+F4")
        else:
            self.run("wmctrl", "-c", ":ACTIVE:")
