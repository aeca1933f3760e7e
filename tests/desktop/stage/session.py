# The desktop session: an X server, a message bus, a panel with a tray, a notification server.
# SPDX-License-Identifier: MIT
import glob
import os
import signal
import subprocess

from . import bus
from .programs import Program, kill_all_with_environment, run
from .waiting import wait_for

WATCHER = "org.kde.StatusNotifierWatcher"
NOTIFICATIONS = "org.freedesktop.Notifications"
ACTIVATED = ("org.xfce.Xfconf", NOTIFICATIONS)

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray">
      <property name="hide-new-items" type="bool" value="false"/>
      <property name="menu-is-primary" type="bool" value="true"/>
      <property name="square-icons" type="bool" value="true"/>
      <property name="single-row" type="bool" value="true"/>
    </property>
  </property>
</channel>
"""

# A file manager that records the URIs it is asked to show.
FILE_MANAGER = """[Desktop Entry]
Type=Application
Name=The stage's file manager
Exec=sh -c 'printf "%%s\\n" "$1" >>"$HOME/shown"' sh %u
MimeType=inode/directory;
"""
DEFAULT_PROGRAMS = """[Default Applications]
inode/directory=stage-files.desktop
"""


def notification_server_program():
    """The path of xfce4-notifyd; None if it is not installed."""
    places = glob.glob("/usr/lib/*/xfce4/notifyd/xfce4-notifyd") + \
        glob.glob("/usr/lib*/xfce4/notifyd/xfce4-notifyd")
    return places[0] if places else None


class Session:
    """The programs and files of a logged-in user."""

    def __init__(self, folder, account, path, cleanup, system_bus_address=None):
        self.folder = folder
        self.account = account
        self.environment = self._make_environment(path, system_bus_address)
        self._make_person_folder("run")
        self.panel = None
        self.notification_server = None
        self._write_person_file(".config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml", PANEL)
        self._write_person_file(".local/share/applications/stage-files.desktop", FILE_MANAGER)
        self._write_person_file(".config/mimeapps.list", DEFAULT_PROGRAMS)
        self.x_server = self._start_x_server(cleanup)
        self.bus = bus.PrivateBus("session", folder, account, self.environment)
        cleanup.callback(self.bus.program.stop)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.address
        cleanup.callback(kill_all_with_environment,
                         f"DBUS_SESSION_BUS_ADDRESS={self.bus.address}")
        self.connection = bus.connect(self.bus.address)
        cleanup.callback(self.connection.close_sync)
        self._offer_services()

    def _make_environment(self, path, system_bus_address):
        home = self.account.home
        environment = {
            "HOME": home, "USER": self.account.name, "LOGNAME": self.account.name,
            "SHELL": "/bin/sh", "LC_ALL": "C.UTF-8", "PATH": path,
            "XDG_CURRENT_DESKTOP": "XFCE", "XDG_RUNTIME_DIR": f"{home}/run",
            "XDG_CONFIG_HOME": f"{home}/.config", "XDG_CACHE_HOME": f"{home}/.cache",
            "XDG_DATA_HOME": f"{home}/.local/share", "NO_AT_BRIDGE": "1",
            "GDK_BACKEND": "x11", "GSETTINGS_BACKEND": "memory"}
        # Passes on the sanitizer options of the caller.
        environment |= {name: value for name, value in os.environ.items()
                        if name.endswith("SAN_OPTIONS")}
        if system_bus_address:
            environment["DBUS_SYSTEM_BUS_ADDRESS"] = system_bus_address
        return environment

    def _make_person_folder(self, path):
        """Creates a folder below the home folder, with its parents."""
        folder = self.account.home
        for name in path.split("/"):
            folder = os.path.join(folder, name)
            if not os.path.exists(folder):
                os.mkdir(folder, 0o700)
                self.account.owns(folder)

    def _write_person_file(self, path, text):
        self._make_person_folder(os.path.dirname(path))
        file = os.path.join(self.account.home, path)
        with open(file, "w", encoding="utf-8") as output:
            output.write(text)
        self.account.owns(file)

    def _start_x_server(self, cleanup):
        if os.geteuid() == 0 and not os.path.exists("/tmp/.X11-unix"):
            os.mkdir("/tmp/.X11-unix")
            os.chmod("/tmp/.X11-unix", 0o1777)
        reading, writing = os.pipe()
        server = self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1024x768x24",
                             "-nolisten", "tcp", "-noreset"], "x-server", pass_fds=[writing])
        cleanup.callback(server.stop)
        os.close(writing)
        with open(reading, encoding="ascii") as file:
            number = file.readline().strip()
        if not number:
            raise RuntimeError(f"there is no X server: {server.text()}")
        self.environment["DISPLAY"] = f":{number}"
        return server

    def _offer_services(self):
        for file in glob.glob("/usr/share/dbus-1/services/*.service"):
            with open(file, encoding="utf-8") as opened:
                text = opened.read()
            if any(f"Name={name}\n" in text for name in ACTIVATED):
                self.bus.offer(file)
        # The bus would notice the new files by itself, but later.
        bus.driver(self.connection, "ReloadConfig")

    def start(self, command, name, **options):
        """Starts a program in the session; its output goes to NAME.log."""
        log = os.path.join(self.folder, f"{name}.log")
        return Program(command, self.account, self.environment, log, **options)

    def run(self, *command):
        """Runs a command as the user; returns its output."""
        return run(*self.account.command(command), env=self.environment,
                   cwd=self.account.home)

    def start_panel(self):
        """Starts the panel and waits for its tray."""
        self.panel = self.start(["xfce4-panel", "--disable-wm-check"], "panel")
        wait_for(lambda: bus.has_owner(self.connection, WATCHER), "the panel watches for icons")

    def stop_panel(self):
        """Kills the panel, as in a crash."""
        if self.panel:
            self.panel.stop(signal.SIGKILL)
            wait_for(lambda: not bus.has_owner(self.connection, WATCHER), "the panel is gone")
        self.panel = None

    def start_notification_server(self):
        """Starts the desktop's own notification server."""
        self.notification_server = self.start([notification_server_program()], "notifications")
        wait_for(lambda: bus.has_owner(self.connection, NOTIFICATIONS),
                 "the notification server is there")

    def stop_notification_server(self):
        """Kills the notification server, including one activated by the bus."""
        if bus.has_owner(self.connection, NOTIFICATIONS):
            os.kill(bus.owner_pid(self.connection, NOTIFICATIONS), signal.SIGKILL)
            wait_for(lambda: not bus.has_owner(self.connection, NOTIFICATIONS),
                     "the notification server is gone")
        if self.notification_server:
            self.notification_server.stop()
        self.notification_server = None

    def folders_shown(self):
        """The URIs that the file manager was asked to show, in order."""
        try:
            with open(f"{self.account.home}/shown", encoding="utf-8") as file:
                return file.read().splitlines()
        except FileNotFoundError:
            return []

    def forget_folders_shown(self):
        if os.path.exists(f"{self.account.home}/shown"):
            os.remove(f"{self.account.home}/shown")

    def windows(self, *criteria):
        """The visible windows that match xdotool's `criteria`."""
        result = subprocess.run(["xdotool", "search", "--onlyvisible", *criteria],
                                env=self.environment, capture_output=True, text=True, check=False)
        return result.stdout.split()

    def geometry(self, window):
        """The left, top, width and height of a window."""
        text = self.run("xdotool", "getwindowgeometry", "--shell", window)
        values = dict(line.split("=") for line in text.splitlines())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def open_menu(self):
        """The geometry of the open menu; None if there is none."""
        for window in self.windows("--class", ""):
            if "MENU" in self.run("xprop", "-id", window, "_NET_WM_WINDOW_TYPE"):
                return self.geometry(window)
        return None

    def click(self, x, y):
        self.run("xdotool", "mousemove", str(x), str(y), "click", "1")

    def press(self, *keys):
        self.run("xdotool", "key", *keys)

    def screenshot(self, file, part=None):
        """Saves the screen, or a part (left, top, width, height), as PNG."""
        options = []
        if part:
            left, top, width, height = part
            options = ["-crop", f"{width}x{height}+{left}+{top}", "+repage"]
        run("import", "-window", "root", "-display", self.environment["DISPLAY"], *options, file)

    def brightness(self, window):
        """The mean brightness of a window, from 0 to 1."""
        left, top, width, height = self.geometry(window)
        return float(self.run(
            "import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}",
            "-colorspace", "Gray", "-format", "%[fx:mean]", "info:"))

    def wait_until_still(self):
        """Waits until the screen stops changing: window contents fade in after the window appears.
        """
        before = None

        def is_still():
            nonlocal before
            screen = subprocess.run(
                ["import", "-window", "root", "-display", self.environment["DISPLAY"], "rgb:-"],
                check=True, capture_output=True).stdout
            before, last = screen, before
            return screen == last
        wait_for(is_still, "the screen keeps still")
