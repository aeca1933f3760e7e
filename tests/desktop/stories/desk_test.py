# Stories with mouse and screen: the desktop's own panel, notifications and colours.
# SPDX-License-Identifier: MIT
from stage import portal
from stage.notifications import NotificationWindow
from stage.waiting import NeverHappened, wait_for

from .story import Story

# The centre of the panel's only icon.
ICON = (17, 16)
READ_ONLY = "brisel-status-green-light"
# From the top of a menu to the centre of its first entry.
FIRST_ENTRY = 15
# From the right and bottom of a notification to the centre of the first of its two buttons.
FIRST_BUTTON = (159, 30)


class Desk(Story):
    def test_a_click_in_the_panels_menu_makes_a_stick_writable(self):
        stick = self.start_with_stick()
        self.tray.wait_for_entry("re-mount StageData")
        self.tray.wait_for_icon(READ_ONLY)
        wait_for(self.choose_first_entry, "a click in the menu does something")
        self.wait_for_writable(stick)

    def choose_first_entry(self):
        """Clicks the icon, then the first entry of its menu; None if the icon does not change in
        time."""
        session = self.stage.session
        try:
            if not session.open_menu():
                session.click(*ICON)
            left, top, width, _height = wait_for(session.open_menu, "there is a menu", seconds=1)
            self.take_picture("menu")
            session.click(left + width // 2, top + FIRST_ENTRY)
            return wait_for(lambda: self.tray.icon() != READ_ONLY, "the icon changes", seconds=1)
        except NeverHappened:
            return None

    def test_a_click_on_the_notification_makes_a_stick_writable(self):
        self.use_real_notifications()
        stick = self.start_with_stick()
        self.click_yes()
        self.wait_for_writable(stick)

    def test_the_desktops_notification_server_may_end_and_come_back(self):
        self.use_real_notifications()
        first = self.start_with_stick("StageFirst")
        self.window.wait_until_shown()
        self.stage.session.stop_notification_server()
        self.window.wait_until_gone()
        # This notification makes the bus start the server again.
        second = self.attach("StageSecond")
        self.click_yes()
        self.wait_for_writable(second)
        self.assertEqual(first.mounts(), [])

    def use_real_notifications(self):
        self.stage.stop_notifications()
        self.stage.session.start_notification_server()
        self.window = NotificationWindow(self.stage.session)

    def click_yes(self):
        left, top, width, height = self.window.wait_until_shown()
        self.take_picture("prompt")
        self.stage.session.click(left + width - FIRST_BUTTON[0], top + height - FIRST_BUTTON[1])

    def test_the_icon_follows_the_desktop_into_the_dark(self):
        self.start_brisel()
        self.tray.wait_for_icon("brisel-status-grey-light")
        self.stage.portal.choose(portal.DARK)
        self.tray.wait_for_icon("brisel-status-grey-dark")
        self.attach("StageData")
        self.tray.wait_for_icon("brisel-status-green-dark")
        self.take_picture("dark")
        self.stage.portal.choose(portal.LIGHT)
        self.tray.wait_for_icon("brisel-status-green-light")

    def test_in_the_dark_the_icon_is_dark_from_the_start(self):
        self.stage.portal.choose(portal.DARK)
        self.start_brisel()
        self.tray.wait_for_icon("brisel-status-grey-dark")

    def test_the_windows_follow_the_desktop_into_the_dark(self):
        self.stage.portal.choose(portal.DARK)
        self.stage.preferences.forget()
        self.brisel = self.stage.start_brisel()
        notice = self.stage.alerts.wait_for("A Warning Notice")
        session = self.stage.session
        wait_for(lambda: 0 < session.brightness(notice) < 0.4, "the window is dark")
        self.take_picture("dark")
        self.stage.portal.choose(portal.LIGHT)
        wait_for(lambda: session.brightness(notice) > 0.6, "the window is light")
        self.stage.portal.choose(portal.DARK)
        wait_for(lambda: session.brightness(notice) < 0.4, "the window is dark again")
        self.stage.alerts.answer(notice, "Return")

    def test_the_icon_says_in_words_what_it_shows(self):
        self.start_brisel()
        self.tray.wait_for_colour("grey")
        nothing = self.tray.property("IconAccessibleDesc")
        self.attach("StageData")
        self.tray.wait_for_colour("green")
        something = self.tray.property("IconAccessibleDesc")
        self.assertTrue(nothing and something)
        self.assertNotEqual(nothing, something)
        self.assertIn(something, self.tray.property("ToolTip")[3])
