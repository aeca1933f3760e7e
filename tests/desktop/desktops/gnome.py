# GNOME with Debian's extension for status icons.
# SPDX-License-Identifier: MIT
from .desktop import ASIDE, SIZE, Desktop

SETTINGS = """[org/gnome/shell]
enabled-extensions=['ubuntu-appindicators@ubuntu.com']
welcome-dialog-last-shown-version='9999'

[org/gnome/desktop/interface]
enable-animations=false
"""
# A point in every notification.
BANNER = (SIZE[0] // 2, 70)
# More than the buttons of a notification need.
BUTTON_HEIGHT = 100


class Gnome(Desktop):
    """Runs nested in the X server. The bus activates the notification server."""

    NAME = "GNOME"
    KIND = "wayland"
    PACKAGE = "gnome-shell"
    MORE_ENVIRONMENT = {"MUTTER_DEBUG_DUMMY_MODE_SPECS": f"{SIZE[0]}x{SIZE[1]}"}
    FILES = {".config/glib-2.0/settings/keyfile": SETTINGS}
    BUTTON = (0.25, 0.85)

    def start_desktop(self):
        self.start(["gnome-shell", "--nested", "--wayland"], "gnome-shell")

    def arrange(self):
        """Closes the overview, in which GNOME starts, and its complaint about the login manager."""
        self.click(*ASIDE)
        self.press("Escape")
        self.settle()
        self.click(*BANNER)

    def reveal_buttons(self, prompt):
        """The buttons appear below the text when the pointer is on it."""
        before = self.look()
        self.point(*prompt.at(0.5, 0.5))
        rows = range(prompt.top, prompt.rows.stop + BUTTON_HEIGHT)
        grown = self.settle().difference(before, rows)
        return grown or prompt
