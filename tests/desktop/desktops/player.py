# Runs the program on a desktop, and clicks on what it shows.
# SPDX-License-Identifier: MIT
from stage import bus
from stage.brisel import NAME, Brisel, Preferences
from stage.waiting import NeverHappened, wait_for

from .album import Album
from .desktop import ASIDE, MOVING_SECONDS, RIGHT, SIZE

# Starts until the icon is seen.
ATTEMPTS = 5
PROGRAMS = "/usr/bin"
# Longer than any desktop shows a notification that expires.
EXPIRY_SECONDS = 15
POINTER_SIZE = 40
# Around the icon: the panel, where only the icon is looked at.
PANEL_MARGIN = 14
# Enough of the panel around the icon for its colour to be the most common one.
AROUND_ICON = 4
# The rows where the desktops have their panels.
PANELS = [*range(36), *range(SIZE[1] - 44, SIZE[1])]


class Player:
    """The person at the desktop, and what they have before them."""

    def __init__(self, desktop, machine, pictures, cleanup):
        self.desktop = desktop
        self.machine = machine
        self.album = Album(desktop, pictures)
        self._cleanup = cleanup
        self.brisel = self.icon = self.stick = self.prompt = None
        self.album.keep_screen("desktop")
        self.contrasts = []
        self.empty = desktop.settle()
        Preferences(machine.account).write(showDisclaimer="false")

    def has_panel_above(self):
        return self.icon.top < SIZE[1] // 2

    @property
    def rows(self):
        """The rows of the screen without the panel of the icon."""
        if not self.icon:
            raise NeverHappened("there is no icon")
        if self.has_panel_above():
            return range(self.icon.rows.stop + PANEL_MARGIN, SIZE[1])
        return range(0, self.icon.top - PANEL_MARGIN)

    def must_appear(self, what, before):
        box = self.desktop.what_appears(before, self.rows)
        if not box:
            raise NeverHappened(f"{what} is not seen")
        return box

    def shown(self):
        """The box of what is shown beside the panel, without the pointer; None for nothing."""
        box = self.desktop.look().difference(self.empty, self.rows)
        return box if box and max(box.width, box.height) > POINTER_SIZE else None

    def wait_until_empty(self):
        wait_for(lambda: not self.shown(), "nothing is shown but the panel", EXPIRY_SECONDS)

    def start(self):
        """Starts the program; true if its icon is seen."""
        before = self.desktop.before_change()
        self.brisel = Brisel(self.desktop, PROGRAMS, self._cleanup)
        wait_for(lambda: bus.has_owner(self.desktop.connection, NAME), "the program is there")
        self.desktop.what_appears(before, PANELS)
        self.icon = self.desktop.look().main_difference(before, PANELS)
        if self.icon:
            self.measure_icon()
        return bool(self.icon)

    def stop(self):
        before = self.desktop.look()
        self.brisel.program.stop()
        if self.icon:
            wait_for(lambda: not self.desktop.look().equals_in(self.icon, before), "the icon goes")
        self.desktop.settle()

    def measure_icon(self):
        picture = self.desktop.look()
        self.contrasts.append(picture.contrast_in(self.icon.grown(AROUND_ICON, picture)))

    def restart(self):
        """Starts the program anew, again if its icon is missed; true if it was seen at once."""
        for attempt in range(ATTEMPTS):
            if self.brisel:
                self.stop()
            if self.start():
                return attempt == 0
        raise NeverHappened(f"no icon is seen in {ATTEMPTS} starts")

    def attach(self, label):
        before = self.desktop.before_change()
        self.prompt = None
        self.stick = self.machine.new_stick(label)
        self.prompt = self.must_appear("the prompt", before)
        return "yes"

    def open_menu(self, button):
        """Clicks the icon; the box of the menu, or None."""
        before = self.desktop.before_change()
        self.desktop.click(*self.icon.at(0.5, 0.5), button)
        self.desktop.point(*ASIDE)
        return self.desktop.what_appears(before, self.rows)

    def close_menu(self):
        self.desktop.press("Escape")
        self.desktop.click(*ASIDE)
        self.desktop.settle()

    def choose(self, label):
        """Opens the menu and clicks an entry."""
        menu = self.open_menu(RIGHT)
        if not menu:
            raise NeverHappened("there is no menu")
        lines = self.desktop.look().text_lines(menu)
        labels = [text for text in self.brisel.tray.labels() if text]
        missed = len(labels) - len(lines)
        if not 0 <= missed <= labels.index(label):
            self.close_menu()
            raise NeverHappened(f"the menu shows {len(lines)} lines of text for {labels}")
        # A line that the menu shows over the panel is not among those looked at.
        at = labels.index(label) - (missed if self.has_panel_above() else 0)
        self.desktop.click(menu.at(0.5, 0)[0], lines[at])
        self.desktop.point(*ASIDE)
        self.desktop.settle(MOVING_SECONDS)

    def menu_picture(self, name):
        """The open menu's box and a picture of it."""
        box = self.open_menu(RIGHT)
        if not box:
            raise NeverHappened("there is no menu")
        picture = self.desktop.look()
        self.album.keep_screen(f"menu-{name}")
        self.close_menu()
        return box, picture
