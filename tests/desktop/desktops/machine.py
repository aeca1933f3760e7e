# The machine below the desktop: a user, a system bus, a login manager and disks.
# SPDX-License-Identifier: MIT
import os
import tempfile
from contextlib import closing

from stage import bus
from stage.account import make_account
from stage.bus import Answers, PrivateBus
from stage.mocked_disks import DiskService, MockedStick
from stage.programs import Program
from stage.waiting import wait_for

LOGIN_MANAGER = "org.freedesktop.login1"


class Machine:
    """Services in memory, on a bus of their own."""

    def __init__(self, cleanup):
        self._cleanup = cleanup
        self.folder = tempfile.mkdtemp(prefix="brisel-desktop-")
        os.chmod(self.folder, 0o755)
        self.account = make_account(self.folder, cleanup)
        self.account.owns(self.folder)
        cleanup.enter_context(closing(Answers()))
        self.bus = PrivateBus("system", self.folder, self.account, dict(os.environ))
        cleanup.callback(self.bus.program.stop)
        self._start_login_manager()
        self.disk_service = DiskService(self.bus.address)
        self.disk_service.open()

    def _start_login_manager(self):
        environment = os.environ | {"DBUS_SYSTEM_BUS_ADDRESS": self.bus.address}
        program = Program(["python3", "-m", "dbusmock", "--system", "--template", "logind"],
                          self.account, environment,
                          os.path.join(self.folder, "login-manager.log"))
        self._cleanup.callback(program.stop)
        connection = bus.connect(self.bus.address)
        self._cleanup.callback(connection.close_sync)
        wait_for(lambda: bus.has_owner(connection, LOGIN_MANAGER), "there is a login manager")

    def new_stick(self, label):
        """A new volume, attached."""
        stick = MockedStick(self, label, self._cleanup)
        stick.attach()
        return stick
