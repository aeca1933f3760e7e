# MATE with its window manager.
# SPDX-License-Identifier: MIT
from .desktop import Desktop


class Mate(Desktop):
    """The panels are those of a new user. The bus activates the notification server."""

    NAME = "MATE"
    PACKAGE = "mate-desktop"
    BUTTON = (0.63, 0.77)

    def start_desktop(self):
        self.start(["marco"], "marco")
        self.start(["mate-panel"], "panel")
        # Draws the desktop, too.
        self.start(["caja", "--no-default-window"], "files")
