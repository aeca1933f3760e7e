# Plasma on X11.
# SPDX-License-Identifier: MIT
import shutil

from stage import bus

from .desktop import Desktop

KDED_OF_6 = shutil.which("kded6")
# Keeps the tray's other icons in its pop-up: the bell comes and goes, and moves its neighbours.
ARRANGEMENT = """
for (const panel of panels())
    for (const widget of panel.widgets("org.kde.plasma.systemtray")) {
        const tray = desktopById(widget.readConfig("SystrayContainmentId"));
        tray.currentConfigGroup = ["General"];
        tray.writeConfig("hiddenItems", tray.readConfig("extraItems"));
        tray.reloadConfig();
    }
for (const desktop of desktops()) {
    desktop.wallpaperPlugin = "org.kde.color";
    desktop.currentConfigGroup = ["Wallpaper", "org.kde.color", "General"];
    desktop.writeConfig("Color", "74,105,132");
    desktop.reloadConfig();
}
"""


class Plasma(Desktop):
    """The panel is that of a new user."""

    NAME = "KDE"
    PACKAGE = "plasma-workspace"
    MORE_ENVIRONMENT = {"KDE_FULL_SESSION": "true",
                        "KDE_SESSION_VERSION": "6" if KDED_OF_6 else "5",
                        "QT_QUICK_BACKEND": "software"}
    BUTTON = (0.57, 0.8)

    def start_desktop(self):
        self.start(["kwin_x11"], "kwin")
        self.start([KDED_OF_6 or "kded5"], "kded")
        self.start(["plasmashell"], "plasmashell")

    def arrange(self):
        bus.call(self.connection, "org.kde.plasmashell", "/PlasmaShell",
                 "org.kde.PlasmaShell.evaluateScript", "(s)", ARRANGEMENT)
