# Notifications: a fake server, and access to the desktop's own.
# SPDX-License-Identifier: MIT
from dataclasses import dataclass

from gi.repository import GLib

from . import bus
from .session import NOTIFICATIONS
from .waiting import wait_for

PATH = "/org/freedesktop/Notifications"
EXPIRED = 1
DISMISSED = 2
CLOSED = 3


@dataclass
class Notification:
    """The content of one notification."""

    id: int
    summary: str
    body: str
    actions: dict
    replaced: int
    hints: dict
    timeout: int


class NotificationServer(bus.Service):
    """A server that records notifications; a test presses their buttons."""

    XML = """<node><interface name="org.freedesktop.Notifications">
      <method name="Notify">
        <arg type="s" direction="in"/><arg type="u" direction="in"/>
        <arg type="s" direction="in"/><arg type="s" direction="in"/>
        <arg type="s" direction="in"/><arg type="as" direction="in"/>
        <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/>
        <arg type="u" direction="out"/></method>
      <method name="CloseNotification"><arg type="u" direction="in"/></method>
      <method name="GetCapabilities"><arg type="as" direction="out"/></method>
      <method name="GetServerInformation"><arg type="s" direction="out"/>
        <arg type="s" direction="out"/><arg type="s" direction="out"/>
        <arg type="s" direction="out"/></method>
      <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
      <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
    </interface></node>"""

    def __init__(self, address):
        # A connection of its own, because closing it must look like the server's end.
        super().__init__(bus.connect(address), PATH)
        self.posted = []
        # Those on screen.
        self.open = {}
        self._last_id = 0
        bus.own_name(self.connection, NOTIFICATIONS)

    def close(self):
        self.connection.close_sync()

    # Names and parameters are those of the D-Bus method. pylint: disable=invalid-name
    # pylint: disable=too-many-arguments
    def Notify(self, _application, replaces, _icon, summary, body, actions, hints, timeout):
        number = replaces or self._last_id + 1
        self._last_id = max(self._last_id, number)
        buttons = dict(zip(actions[::2], actions[1::2]))
        posted = Notification(number, summary, body, buttons, replaces, hints, timeout)
        self.posted.append(posted)
        if self.pops_up(posted):
            self.open[number] = posted
        return (number,)

    def pops_up(self, _notification):
        """Whether a notification that was posted is shown."""
        return True

    def CloseNotification(self, number):
        if number in self.open:
            self._closed(number, CLOSED)
        return ()

    def GetCapabilities(self):
        return (["actions", "body", "sound"],)

    def GetServerInformation(self):
        return ("stage", "Brisel", "1", "1.2")

    def _closed(self, number, reason):
        self.open.pop(number, None)
        self.emit(NOTIFICATIONS, "NotificationClosed", "(uu)", number, reason)

    def wait_for(self, summary, after=0):
        """Waits for a notification with this summary, skipping the first `after` ones."""
        def find():
            return next((one for one in self.posted[after:] if one.summary == summary), None)
        return wait_for(find, f'"{summary}" is posted',
                        instead=lambda: f"posted were {self.posted}")

    def wait_until_open(self, summary):
        """Waits until a notification with this summary is on screen; returns it."""
        return wait_for(lambda: next((one for one in list(self.open.values())
                                      if one.summary == summary), None), f'"{summary}" is shown')

    def wait_until_withdrawn(self, notification):
        wait_for(lambda: notification.id not in self.open,
                 f'"{notification.summary}" is withdrawn')

    def expire(self, notification):
        """Closes the notification, as after its time."""
        GLib.idle_add(lambda: self._closed(notification.id, EXPIRED))

    def press(self, notification, action):
        """Presses the button of `action`; the notification closes."""
        if action not in notification.actions:
            raise AssertionError(f"{notification} has no button for {action}")
        # In the serving thread, and so after the reply to Notify.
        GLib.idle_add(self._invoke, notification.id, action)

    def _invoke(self, number, action):
        self.emit(NOTIFICATIONS, "ActionInvoked", "(us)", number, action)
        self._closed(number, DISMISSED)
        return GLib.SOURCE_REMOVE


class PlasmaNotifications(NotificationServer):
    """Shows only new notifications, and replacements of open ones; any other replacement changes
    the history alone."""

    def pops_up(self, notification):
        return not notification.replaced or notification.replaced in self.open


class NotificationsWithoutButtons(NotificationServer):
    """Draws no buttons; a click does the default action and leaves the notification open, as in
    mako."""

    def click(self, notification):
        """Clicks the notification."""
        if "default" not in notification.actions:
            raise AssertionError(f"{notification} has no default action")
        GLib.idle_add(lambda: self.emit(NOTIFICATIONS, "ActionInvoked", "(us)", notification.id,
                                        "default"))


class NotificationWindow:
    """The pop-up of the desktop's own server."""

    def __init__(self, session):
        self._session = session

    def _windows(self):
        return self._session.windows("--class", "xfce4-notifyd")

    def wait_until_shown(self):
        """Waits for the pop-up; returns its left, top, width and height."""
        return self._session.geometry(wait_for(self._windows, "a notification is shown")[-1])

    def wait_until_gone(self):
        wait_for(lambda: not self._windows(), "no notification is shown")
