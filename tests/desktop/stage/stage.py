# The stage: user account, session, disks and the program.
# SPDX-License-Identifier: MIT
import fcntl
import os
import shutil
import subprocess
import tempfile
from contextlib import ExitStack, closing

from . import agents, services
from .account import make_account, own_account
from .brisel import Alerts, Brisel, Preferences
from .bus import Answers, PrivateBus
from .mocked_disks import DiskService, MockedStick
from .notifications import NotificationServer
from .portal import LIGHT, SettingsPortal
from .session import Session, notification_server_program
from .sticks import Stick

SYSTEM_PATH = "/usr/local/bin:/usr/bin:/bin:/usr/local/sbin:/usr/sbin:/sbin"
LOCK = "/run/brisel-stage.lock"
FOLDER = "brisel-stage-"
PROGRAMS = ("brisel", "brisel-dialog", "xattr", "mount_ntfs")
DESKTOP_PROGRAMS = (
    "Xvfb", "xfce4-panel", "dbus-daemon", "xdotool", "xprop", "import", "setpriv")


def obstacle_to_desktop():
    """The first requirement of a desktop that this machine lacks; None if there is none."""
    for program in DESKTOP_PROGRAMS:
        if not shutil.which(program, path=SYSTEM_PATH):
            return f"there is no {program}"
    if not notification_server_program():
        return "there is no xfce4-notifyd"
    if os.path.exists("/sbin/mount_ntfs") and not os.path.exists(services.INSTALLED_MARK):
        return "/sbin/mount_ntfs is installed, and Brisel would use it where it must not"
    return None


def obstacle_to_real_disks():
    """The reason why no real volume can be used; None if one can."""
    script = os.path.join(services.ROOT, "scripts", "real-volumes-possible")
    result = subprocess.run([script], capture_output=True, text=True, check=False)
    return result.stdout.strip() if result.returncode else None


class Stage:
    """Starts everything; `close` ends it."""

    def __init__(self, programs, mocked):
        self._built = os.path.realpath(programs)
        self.mocked = mocked
        self.disk_service = None
        self._bus_of_disks = None
        self.notifications = None
        self.sticks = []
        self._story = ExitStack()
        self._cleanup = ExitStack()
        try:
            self._bring_up()
        except BaseException:
            self.close()
            raise

    def _bring_up(self):
        self._wait_for_other_stages()
        self.folder = self._make_folder()
        self.account = self._make_account()
        self.programs = self._copy_programs()
        self._cleanup.enter_context(closing(Answers()))
        address = self._mock_machine() if self.mocked else self._prepare_machine()
        path = f"{self.programs}:{SYSTEM_PATH}"
        self.session = Session(self.folder, self.account, path, self._cleanup, address)
        if not self.mocked:
            services.grant_rights(self.session.x_server.pid, self._cleanup)
        self.portal = SettingsPortal(self.session.connection)
        self.preferences = Preferences(self.account)
        self.alerts = Alerts(self.session)
        self._cleanup.callback(self.end_story)

    def close(self):
        self._cleanup.close()

    def _wait_for_other_stages(self):
        """One stage per machine: its system files have fixed names."""
        if os.geteuid() != 0:
            return
        lock = self._cleanup.enter_context(open(LOCK, "w", encoding="ascii"))
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            print("Waiting for another stage on this machine to end.", flush=True)
            fcntl.flock(lock, fcntl.LOCK_EX)
        services.remove_leftovers(os.path.join(tempfile.gettempdir(), FOLDER))

    def _make_folder(self):
        folder = tempfile.mkdtemp(prefix=FOLDER)
        self._cleanup.callback(shutil.rmtree, folder, ignore_errors=True)
        os.chmod(folder, 0o755)
        return folder

    def _copy_programs(self):
        """Copies the programs and their icons to a folder that the user can read."""
        programs = os.path.join(self.folder, "bin")
        os.mkdir(programs, 0o755)
        for name in PROGRAMS:
            built = os.path.join(self._built, name)
            if os.path.exists(built):
                shutil.copy(built, programs)
        icons = os.path.join(os.path.dirname(self._built), "share")
        if os.path.exists(icons):
            shutil.copytree(icons, os.path.join(self.folder, "share"))
        return programs

    def _make_account(self):
        account = own_account(self.folder) if os.geteuid() else \
            make_account(self.folder, self._cleanup)
        account.owns(self.folder)
        return account

    def _prepare_machine(self):
        services.start_disk_services(self._cleanup)
        self._images = os.path.join(self.folder, "images")
        os.mkdir(self._images)
        services.announce_sticks(self._images, self._cleanup)
        return None

    def _mock_machine(self):
        bus = PrivateBus("system", self.folder, self.account, dict(os.environ))
        self._cleanup.callback(bus.program.stop)
        self._bus_of_disks = bus.address
        self.start_disk_service()
        return bus.address

    def start_disk_service(self):
        """Starts the fake UDisks2 with the attached sticks."""
        self.disk_service = DiskService(self._bus_of_disks)
        for stick in self.sticks:
            if stick.node:
                stick.serve()
        self.disk_service.open()

    def stop_disk_service(self):
        self.disk_service.close()

    def begin_story(self):
        """Resets the desktop: light, no stick, notice accepted, no notification."""
        self.portal.choose(LIGHT)
        self.preferences.write(showDisclaimer="false")
        self.session.forget_folders_shown()
        self.start_notification_mock()
        if not self.session.panel:
            self.session.start_panel()

    def end_story(self):
        """Undoes the changes of the story."""
        self.sticks = []
        self._story.close()
        self.session.stop_notification_server()

    def start_notification_mock(self, kind=NotificationServer):
        self.stop_notifications()
        self.notifications = kind(self.session.bus.address)
        self._story.callback(self.stop_notifications)

    def start_host(self, kind):
        """Replaces the panel by a fake host for this story."""
        self.session.stop_panel()
        return self._story.enter_context(closing(kind(self.session.bus.address)))

    def stop_notifications(self):
        """Leaves the desktop without a notification server."""
        if self.notifications:
            self.notifications.close()
        self.notifications = None
        self.session.stop_notification_server()

    def start_brisel(self):
        return Brisel(self.session, self.programs, self._story)

    def new_stick(self, label):
        """A new stick with one NTFS volume, unattached."""
        if self.mocked:
            stick = MockedStick(self, label, self._story)
        else:
            stick = Stick(self._images, label, self._story)
        self.sticks.append(stick)
        return stick

    def password_prompt(self, pid):
        return agents.PasswordPrompt(self.session, pid, self._story)

    def silent_dialog(self, pid):
        return agents.SilentDialog(pid, self._story)

    def install_mount_tool(self):
        """Installs the mount tool for this story; returns None, or the reason why it cannot."""
        built = os.path.join(self.programs, "mount_ntfs")
        obstacle = services.obstacle_to_mount_tool(built)
        if not obstacle:
            services.install_mount_tool(built, self._story)
        return obstacle
