# Authentication agents that answer polkit's password prompt.
# SPDX-License-Identifier: MIT
import os
import pty
import subprocess

from . import bus
from .services import AUTHORITY, subject
from .waiting import wait_for

CANCELLED = "org.freedesktop.PolicyKit1.Error.Cancelled"


class PasswordPrompt:
    """pkttyagent, asking for the user's password in a pseudoterminal."""

    def __init__(self, session, pid, cleanup):
        self._terminal, inside = pty.openpty()
        reading, writing = os.pipe()
        command = ["setsid", "--ctty", "pkttyagent", "--process", str(pid), "--notify-fd",
                   str(writing)]
        self._program = subprocess.Popen(
            session.account.command(command), env=session.environment, pass_fds=[writing],
            stdin=inside, stdout=inside, stderr=inside)
        cleanup.callback(self._close)
        os.close(inside)
        os.close(writing)
        os.set_blocking(self._terminal, False)
        self._shown = ""
        # The agent closes its end once it is registered with polkit.
        with open(reading, "rb") as ready:
            ready.read()
        if self._program.poll() is not None:
            raise RuntimeError(f"polkit's agent has ended: {self.shown()}")

    def shown(self):
        """The terminal's output so far."""
        try:
            while chunk := os.read(self._terminal, 4096):
                self._shown += chunk.decode(errors="replace")
        except OSError:
            pass
        return self._shown

    def times_asked(self):
        return self.shown().count("Password: ")

    def wait_until_asked(self, times=1):
        wait_for(lambda: self.times_asked() >= times, "the password is asked for")

    def type(self, password):
        self.wait_until_asked()
        os.write(self._terminal, f"{password}\n".encode())

    def _close(self):
        if self._program.poll() is None:
            self._program.kill()
        self._program.wait()
        os.close(self._terminal)


class SilentDialog(bus.Service):
    """An agent whose dialog stays open or is closed."""

    XML = """<node><interface name="org.freedesktop.PolicyKit1.AuthenticationAgent">
      <method name="BeginAuthentication">
        <arg type="s" direction="in"/><arg type="s" direction="in"/>
        <arg type="s" direction="in"/><arg type="a{ss}" direction="in"/>
        <arg type="s" direction="in"/><arg type="a(sa{sv})" direction="in"/></method>
      <method name="CancelAuthentication"><arg type="s" direction="in"/></method>
    </interface></node>"""

    def __init__(self, pid, cleanup):
        super().__init__(bus.system_bus(), "/org/brisel/StageAgent")
        cleanup.callback(self.connection.close_sync)
        self.actions = []
        self._asked = None
        name, path, interface = AUTHORITY
        bus.call(self.connection, name, path, f"{interface}.RegisterAuthenticationAgent",
                 "((sa{sv})ss)", subject(pid), "C", self.path)

    # Names and parameters are those of the D-Bus method. pylint: disable=invalid-name
    # pylint: disable=too-many-arguments
    def BeginAuthentication(self, action, _message, _icon, _details, _cookie, _identities):
        self.actions.append(action)
        self._asked = self.invocation
        return self.PENDING

    def CancelAuthentication(self, _cookie):
        return ()

    def wait_until_asked(self):
        wait_for(lambda: self._asked, "the password dialog is up")

    def close_dialog(self):
        """Answers like a click on the dialog's Cancel."""
        self.wait_until_asked()
        self._asked.return_dbus_error(CANCELLED, "The dialog was closed.")
        self._asked = None
