# The play: prompt, remount, menu and unmount, with real clicks.
# SPDX-License-Identifier: MIT
import time

from gi.repository import GLib

from stage.waiting import NeverHappened, wait_for

from .desktop import ASIDE, LEFT, RIGHT
from .player import EXPIRY_SECONDS, Player

STARTS = 5
# A change of this size is a window.
WINDOW = (400, 250)


class Play(Player):
    """One run through all acts, in order. An act returns a word or number for the table."""

    def __init__(self, *arguments):
        super().__init__(*arguments)
        self.before_farewell = None

    def acts(self):
        """The table's columns."""
        return {"icon at each start": self.start_often, "prompt": self.see_prompt,
                "prompt waits": self.let_prompt_wait, "withdrawn": self.pull_stick,
                "second prompt": self.see_second_prompt, "button": self.press_button,
                "folder": self.see_folder, "left click": self.click_left,
                "right click": self.click_right, "check mark": self.set_check_mark,
                "order": self.compare_with_fresh_menu, "unmount": self.choose_unmount,
                "farewell": self.see_farewell, "icon": self.worst_contrast}

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

    def start_often(self):
        seen = sum(self.restart() for _ in range(STARTS))
        return "yes" if seen == STARTS else f"{seen} of {STARTS}"

    def see_prompt(self):
        self.attach("Holiday")
        self.desktop.reveal_buttons(self.prompt)
        self.album.keep("prompt", self.prompt)
        self.measure_icon()
        self.desktop.point(*ASIDE)
        return "yes"

    def let_prompt_wait(self):
        time.sleep(EXPIRY_SECONDS)
        if self.desktop.closed_notifications():
            return "expires"
        return "yes" if self.shown() else "in the list"

    def pull_stick(self):
        """The prompt of a volume that goes is withdrawn."""
        expired = self.desktop.closed_notifications()
        self.stick.pull()
        try:
            wait_for(lambda: expired or self.desktop.closed_notifications(),
                     "the prompt is withdrawn")
        finally:
            self.desktop.close_notifications()
            self.wait_until_empty()
            # Shows the items in the order of this moment.
            self.open_menu(RIGHT)
            self.close_menu()
        return "expires" if expired else "yes"

    def see_second_prompt(self):
        return self.attach("Music")

    def press_button(self):
        if self.prompt:
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
            box = self.shown()
            return box and box.width > WINDOW[0] and box.height > WINDOW[1]
        wait_for(window, "the folder is shown")
        self.desktop.settle()
        self.album.keep_screen("folder")
        self.desktop.close_window()
        self.wait_until_empty()
        return "yes"

    def click_left(self):
        opened = self.open_menu(LEFT)
        self.album.keep_screen("left-click")
        windows = self.desktop.windows("--name", "^Brisel$")
        self.close_menu()
        return ("window" if windows else "menu") if opened else "nothing"

    def click_right(self):
        opened = self.open_menu(RIGHT)
        if opened:
            self.album.keep("menu", opened, self.icon)
        self.close_menu()
        self.measure_icon()
        return "menu" if opened else "nothing"

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

    def choose_unmount(self):
        self.before_farewell = self.desktop.before_change()
        self.choose("unmount")
        self.stick.wait_until_unmounted()
        return "yes"

    def see_farewell(self):
        box = self.must_appear("a notification", self.before_farewell)
        self.album.keep("farewell", box)
        return "yes"

    def worst_contrast(self):
        return f"{min(self.contrasts):.1f}:1"
