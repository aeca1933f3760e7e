# sway with waybar's tray and the notification server mako.
# SPDX-License-Identifier: MIT
from .desktop import SIZE, Desktop

SWAY = f"""output X11-1 mode {SIZE[0]}x{SIZE[1]} bg #4a6984 solid_color
exec waybar
exec mako
"""
WAYBAR = """{"modules-left": ["sway/workspaces"], "modules-right": ["tray"]}
"""


class Sway(Desktop):
    """Runs nested in the X server."""

    NAME = "sway"
    KIND = "wayland"
    PACKAGE = "sway"
    # mako draws no buttons; a click is the default action.
    BUTTON = (0.5, 0.5)
    FILE_MANAGER = "pcmanfm"
    MORE_ENVIRONMENT = {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"}
    FILES = {".config/sway/config": SWAY, ".config/waybar/config": WAYBAR}

    def start_desktop(self):
        self.start(["sway"], "sway")
