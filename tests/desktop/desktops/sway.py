# sway with waybar's tray and the notification server mako.
# SPDX-License-Identifier: MIT
from .desktop import SIZE, Desktop

SWAY = f"""output X11-1 mode {SIZE[0]}x{SIZE[1]} bg #4a6984 solid_color
exec waybar
exec mako
bindsym Alt+F4 kill
"""
WAYBAR = """{"modules-left": ["sway/workspaces"], "modules-right": ["tray"]}
"""


class Sway(Desktop):
    """Runs nested in the X server."""

    NAME = "sway"
    KIND = "wayland"
    PACKAGE = "sway"
    MORE_ENVIRONMENT = {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"}
    FILES = {".config/sway/config": SWAY, ".config/waybar/config": WAYBAR}

    def start_desktop(self):
        self.start(["sway"], "sway")

    def press_first_button(self, prompt):
        """mako draws no buttons. A click opens the program's window, which has the same choice."""
        below = range(prompt.rows.stop, SIZE[1])
        before = self.before_change()
        self.click(*prompt.at(0.5, 0.5))
        window = self.what_appears(before, below)
        if window:
            _title, first, *_others = self.look().text_lines(window)
            self.click(window.at(0.5, 0)[0], first)
