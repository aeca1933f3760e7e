# Takes the screenshots of the user's guide.
# SPDX-License-Identifier: MIT
import os

from stage.notifications import NotificationWindow
from stage.waiting import NeverHappened, wait_for

from .story import Story

# The centre of the panel's only icon, and a point without a tooltip.
ICON = (17, 16)
ASIDE = (900, 600)
# The minimum height of a menu entry.
LEAST_HEIGHT = 20


class Guide(Story):
    """Runs only if pictures are requested."""

    def setUp(self):
        if not self.pictures:
            self.skipTest("no pictures are wanted")
        super().setUp()

    def test_the_notice(self):
        self.stage.preferences.forget()
        self.brisel = self.stage.start_brisel()
        self.show_window("A Warning Notice - Please Read Carefully", "notice")

    def test_the_prompt(self):
        self.stage.stop_notifications()
        self.stage.session.start_notification_server()
        self.start_brisel()
        self.attach("Holiday")
        window = NotificationWindow(self.stage.session)
        window.wait_until_shown()
        self.show(window.wait_until_shown, "prompt")

    def test_the_menu_from_nothing_to_a_writable_volume(self):
        self.start_brisel()
        self.tray.wait_for_colour("grey")
        self.show_menu("menu-empty")
        stick = self.attach("Holiday")
        self.tray.wait_for_colour("green")
        self.show_menu("menu-read-only")
        self.make_writable(stick)
        self.show_menu("menu")

    def test_the_menu_of_several_volumes(self):
        self.start_brisel()
        first = self.attach("Holiday")
        self.make_writable(first)
        posted = len(self.notifications.posted)
        second = self.attach("Music")
        self.accept_prompt(second, posted)
        self.wait_for_writable(second)
        self.tray.choose("mount automatically", below="show the folder of Music")
        self.tray.wait_for_entry("mount manually")
        self.attach("Work")
        self.tray.wait_for_entry("re-mount Work")
        self.show_menu("menu-several")

    def test_the_alert_of_a_volume_in_use(self):
        self.start_brisel()
        stick = self.attach("Holiday")
        folder = self.make_writable(stick)
        with self.in_use(stick, folder):
            self.tray.choose("unmount")
            alert = self.show_window('Volume "Holiday" not unmountable', "alert")
            self.stage.alerts.answer(alert, "Return")

    def test_the_menu_in_a_window(self):
        self.start_brisel()
        self.attach("Holiday")
        self.tray.wait_for_colour("green")
        self.stage.start_brisel()
        window = wait_for(self.stage.alerts.windows, "the menu is shown in a window")[0]
        self.show(lambda: self.stage.session.geometry(window), "menu-window")

    def show_window(self, text, name):
        """Saves a picture of the alert with `text`; returns the alert."""
        alert = self.stage.alerts.wait_for(text)
        self.show(lambda: self.stage.session.geometry(alert), name)
        return alert

    def show_menu(self, name):
        """Opens the menu, saves a picture of it and the icon, and closes it."""
        left, top, width, height = wait_for(self.open_whole_menu, "there is a whole menu")
        self.keep((left, 0, width, top + height), name)
        self.close_menu()

    def open_whole_menu(self):
        """Clicks the icon; returns the geometry of the menu once it is complete, or None."""
        session = self.stage.session
        session.wait_until_still()
        session.click(*ICON)
        try:
            wait_for(session.open_menu, "there is a menu", seconds=1)
        except NeverHappened:
            # The panel has not yet placed the icon.
            return None
        session.run("xdotool", "mousemove", *map(str, ASIDE))
        session.wait_until_still()
        place = session.open_menu()
        entries = [label for label in self.tray.labels() if label]
        if place and place[3] > LEAST_HEIGHT * len(entries):
            return place
        self.close_menu()
        return None

    def close_menu(self):
        session = self.stage.session
        session.press("Escape")
        wait_for(lambda: not session.open_menu(), "the menu closes")

    def show(self, place, name):
        """Saves a picture of `place()` once the screen is still."""
        self.stage.session.wait_until_still()
        self.keep(place(), name)

    def keep(self, part, name):
        self.stage.session.screenshot(os.path.join(self.pictures, f"{name}.png"), part)

    def take_picture(self, moment):
        """Omits the pictures that only help to debug."""
