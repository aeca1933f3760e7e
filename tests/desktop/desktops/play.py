# The play: prompt, remount, menu and unmount, with real clicks.
# SPDX-License-Identifier: MIT
import time

from gi.repository import GLib

from stage import bus
from stage.brisel import NAME, Brisel, Preferences
from stage.waiting import NeverHappened, wait_for

from .album import Album
from .desktop import ASIDE, LEFT, RIGHT, SIZE

STARTS = 5
# Starts until the icon is seen.
ATTEMPTS = 5
PROGRAMS = "/usr/bin"
# How long a desktop may take to show something.
SHOW_SECONDS = 4
# Longer than any desktop shows a notification that expires.
EXPIRY_SECONDS = 15
# A change of this size is a window.
WINDOW = (400, 250)
# Around the icon: the panel, where only the icon is looked at.
PANEL_MARGIN = 14
# The rows where the desktops have their panels.
PANELS = [*range(36), *range(SIZE[1] - 44, SIZE[1])]
# The clocks in the panels change on the minute.
MINUTE, LONGEST_LOOK = 60, 8


class Play:
    """One run through all acts, in order. An act returns a word or number for the table."""

    def __init__(self, desktop, machine, pictures, cleanup):
        self.desktop = desktop
        self.machine = machine
        self.album = Album(desktop, pictures)
        self._cleanup = cleanup
        self.brisel = self.icon = self.stick = self.prompt = None
        self.album.keep_screen("desktop")
        self.empty = desktop.settle()
        Preferences(machine.account).write(showDisclaimer="false")

    def acts(self):
        """The table's columns."""
        return {"icon at each start": self.start_often, "prompt": self.see_prompt,
                "prompt waits": self.let_prompt_wait, "withdrawn": self.pull_stick,
                "second prompt": self.see_second_prompt, "button": self.press_button,
                "folder": self.see_folder, "left click": self.click_left, "right click": self.click_right,
                "check mark": self.set_check_mark, "order": self.compare_with_fresh_menu,
                "unmount": self.choose_unmount, "farewell": self.see_farewell,
                "icon": self.measure_icons}

    def perform(self):
        """Plays all acts; returns their results."""
        results = {}
        for name, act in self.acts().items():
            try:
                results[name] = act()
            except (NeverHappened, RuntimeError, GLib.Error) as problem:
                print(f"  {name}: {problem}", flush=True)
                results[name] = "no"
                self.album.keep_screen(f"{name}-failed")
            print(f"  {name}: {results[name]}", flush=True)
        return results

    # Looking.

    def has_panel_above(self):
        return self.icon.top < SIZE[1] // 2

    @property
    def rows(self):
        """The rows of the screen without the panel of the icon."""
        if self.has_panel_above():
            return range(self.icon.rows.stop + PANEL_MARGIN, SIZE[1])
        return range(0, self.icon.top - PANEL_MARGIN)

    def before_change(self):
        """A picture to compare with, taken when no clock is about to change."""
        left = MINUTE - time.time() % MINUTE
        if left < LONGEST_LOOK:
            time.sleep(left + 1)
        return self.desktop.settle()

    def what_appears(self, before, rows=None):
        """The box of what has changed once the screen is still; None if nothing changes."""
        rows = rows or self.rows
        try:
            wait_for(lambda: self.desktop.look().difference(before, rows), "the screen changes",
                     SHOW_SECONDS)
        except NeverHappened:
            return None
        return self.desktop.settle().difference(before, rows)

    def must_appear(self, what, before, rows=None):
        box = self.what_appears(before, rows)
        if not box:
            raise NeverHappened(f"{what} is not seen")
        return box

    def wait_until_empty(self):
        wait_for(lambda: not self.desktop.look().difference(self.empty, self.rows),
                 "nothing is shown but the panel", EXPIRY_SECONDS)

    # Starting.

    def start(self):
        """Starts the program; true if its icon is seen."""
        before = self.before_change()
        self.brisel = Brisel(self.desktop, PROGRAMS, self._cleanup)
        wait_for(lambda: bus.has_owner(self.desktop.connection, NAME), "the program is there")
        if not self.what_appears(before, PANELS):
            return False
        self.icon = self.desktop.look().main_difference(before, PANELS)
        return True

    def restart(self):
        """Starts the program anew, again if its icon is missed; true if it was seen at once."""
        for attempt in range(ATTEMPTS):
            if self.brisel:
                self.brisel.program.stop()
                self.desktop.settle()
            if self.start():
                return attempt == 0
        raise NeverHappened(f"no icon is seen in {ATTEMPTS} starts")

    def start_often(self):
        seen = sum(self.restart() for _ in range(STARTS))
        return "yes" if seen == STARTS else f"{seen} of {STARTS}"

    # Prompts.

    def attach(self, label):
        before = self.before_change()
        self.stick = self.machine.new_stick(label)
        self.prompt = self.must_appear("the prompt", before)
        return "yes"

    def see_prompt(self):
        self.attach("Holiday")
        self.desktop.reveal_buttons(self.prompt)
        self.album.keep("prompt", self.prompt)
        self.desktop.point(*ASIDE)
        return "yes"

    def let_prompt_wait(self):
        time.sleep(EXPIRY_SECONDS)
        shown = self.desktop.look().difference(self.empty, self.rows)
        return "yes" if shown else "expires"

    def pull_stick(self):
        waited = self.desktop.look().difference(self.empty, self.rows)
        self.stick.pull()
        try:
            self.wait_until_empty()
        finally:
            self.desktop.close_notifications()
            # Shows the items in the order of this moment.
            self.open_menu(RIGHT)
            self.close_menu()
        return "yes" if waited else "expires"

    def see_second_prompt(self):
        return self.attach("Music")

    def press_button(self):
        self.desktop.press_first_button(self.prompt)
        self.desktop.point(*ASIDE)
        try:
            self.stick.wait_until_writable()
        except NeverHappened:
            self.brisel.tray.choose(f"re-mount {self.stick.label}")
            raise
        return "yes"

    def see_folder(self):
        """After a remount the program opens the folder."""
        def window():
            box = self.desktop.look().difference(self.empty, self.rows)
            return box and box.width > WINDOW[0] and box.height > WINDOW[1]
        try:
            wait_for(window, "the folder is shown", SHOW_SECONDS)
            self.desktop.settle()
            self.album.keep_screen("folder")
        finally:
            self.desktop.close_folders()
            self.desktop.close_notifications()
            self.wait_until_empty()
        return "yes"

    # The menu.

    def open_menu(self, button):
        """Clicks the icon; the box of the menu, or None."""
        before = self.before_change()
        self.desktop.click(*self.icon.at(0.5, 0.5), button)
        self.desktop.point(*ASIDE)
        return self.what_appears(before)

    def close_menu(self):
        self.desktop.click(*ASIDE)
        self.desktop.press("Escape")
        self.desktop.settle()

    def choose(self, label):
        """Opens the menu and clicks an entry."""
        menu = self.open_menu(RIGHT)
        if not menu:
            raise NeverHappened("there is no menu")
        lines = self.desktop.look().text_lines(menu)
        labels = [text for text in self.brisel.tray.labels() if text]
        missed = len(labels) - len(lines)
        if missed < 0:
            self.close_menu()
            raise NeverHappened(f"the menu shows {len(lines)} lines of text for {labels}")
        # A line that the menu shows over the panel is not among those looked at.
        at = labels.index(label) - (missed if self.has_panel_above() else 0)
        self.desktop.click(menu.at(0.5, 0)[0], lines[at])
        self.desktop.point(*ASIDE)
        self.desktop.settle()

    def click_left(self):
        opened = self.open_menu(LEFT)
        self.album.keep_screen("left-click")
        windows = self.desktop.windows("--name", "^Brisel$")
        self.close_menu()
        return ("window" if windows else "menu") if opened else "nothing"

    def click_right(self):
        opened = self.open_menu(RIGHT)
        if opened:
            self.album.keep("menu", opened)
        self.close_menu()
        return "menu" if opened else "nothing"

    def menu_picture(self, name):
        """The open menu's box and a picture of it."""
        box = self.open_menu(RIGHT)
        if not box:
            raise NeverHappened("there is no menu")
        picture = self.desktop.look()
        self.album.keep_screen(f"menu-{name}")
        self.close_menu()
        return box, picture

    def set_check_mark(self):
        _, before = self.menu_picture("unchecked")
        self.choose("Start at Login")
        box, after = self.menu_picture("checked")
        return "yes" if after.difference(before, box.rows) else "no"

    def compare_with_fresh_menu(self):
        """The menu that changed while the program ran looks like that of a new program."""
        box, before = self.menu_picture("used")
        self.restart()
        _, after = self.menu_picture("fresh")
        return "no" if after.difference(before, box.rows) else "yes"

    # Unmounting.

    def choose_unmount(self):
        self.before_farewell = self.before_change()
        self.choose("unmount")
        self.stick.wait_until_unmounted()
        return "yes"

    def see_farewell(self):
        box = self.must_appear("a notification", self.before_farewell)
        self.album.keep("farewell", box)
        return "yes"

    def measure_icons(self):
        return f"{self.desktop.look().contrast_in(self.icon):.1f}:1"
