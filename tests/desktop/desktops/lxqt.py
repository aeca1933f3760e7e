# LXQt with the window manager openbox.
# SPDX-License-Identifier: MIT
from .desktop import Desktop


# Without the bell, which comes after a notification and moves its neighbours in the tray.
NOTIFICATIONS = """[General]
unattendedMaxNum=0
"""


class Lxqt(Desktop):
    """The panel is that of a new user."""

    NAME = "LXQt"
    PACKAGE = "lxqt-panel"
    FILES = {".config/lxqt/notifications.conf": NOTIFICATIONS}
    MORE_ENVIRONMENT = {"QT_QPA_PLATFORMTHEME": "lxqt", "XDG_CONFIG_DIRS": "/etc/xdg:/usr/share"}
    BUTTON = (0.32, 0.76)

    def start_desktop(self):
        self.start(["openbox"], "openbox")
        self.start(["lxqt-notificationd"], "notifications")
        self.start(["lxqt-panel"], "panel")
