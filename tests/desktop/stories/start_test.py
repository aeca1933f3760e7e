# The first launch, a second one, the start at login, and the end.
# SPDX-License-Identifier: MIT
import os
import re

from stage.waiting import wait_for

from .story import Story

NOTICE = "A Warning Notice - Please Read Carefully"


class Start(Story):
    def meet_notice(self):
        """Starts the program without preferences; waits for the notice."""
        self.stage.preferences.forget()
        self.brisel = self.stage.start_brisel()
        notice = self.stage.alerts.wait_for(NOTICE)
        self.take_picture("notice")
        return notice

    def test_a_refused_notice_ends_the_program_and_is_shown_again(self):
        self.stage.alerts.answer(self.meet_notice(), "Escape")
        self.brisel.wait_for_log("User did not accept risk, app will terminate.")
        self.assertEqual(self.brisel.program.wait_for_end(), 0)
        self.assertEqual(self.stage.preferences.read("showDisclaimer"), "true")
        self.brisel = self.stage.start_brisel()
        self.stage.alerts.wait_for(NOTICE)

    def test_an_accepted_notice_is_not_shown_again(self):
        self.stage.alerts.answer(self.meet_notice(), "Return")
        self.brisel.wait_for_log("User accepted the potential risk.")
        self.brisel.wait_until_ready()
        self.tray.wait_for_entry("No NTFS Volumes to re-mount")
        self.assertEqual(self.stage.preferences.read("showDisclaimer"), "false")
        self.assertEqual(self.brisel.quit(), 0)
        self.start_brisel()
        self.tray.wait_for_entry("No NTFS Volumes to re-mount")
        self.assertEqual(self.stage.alerts.windows(), [])

    def test_a_second_start_shows_the_menu_and_makes_no_second_icon(self):
        self.start_brisel()
        second = self.stage.start_brisel()
        self.assertEqual(second.program.wait_for_end(), 0)
        wait_for(self.stage.alerts.windows, "the menu is shown in a window")
        self.take_picture("menu")
        self.assertEqual(len(self.tray.all_items()), 1)
        self.assertTrue(self.brisel.program.runs())

    def test_start_at_login_writes_and_removes_the_autostart_file(self):
        file = f"{self.stage.account.home}/.config/autostart/org.brisel.Brisel.desktop"
        self.start_brisel()
        self.assertFalse(self.tray.wait_for_entry("Start at Login").checked)
        self.tray.choose("Start at Login")
        self.wait_for_check(True)
        with open(file, encoding="utf-8") as text:
            command = re.search(r"^Exec=\"(.+)\"$", text.read(), re.MULTILINE).group(1)
        self.assertEqual(os.path.basename(command), "brisel")
        self.assertEqual(self.brisel.quit(), 0)
        self.start_brisel()
        self.wait_for_check(True)
        self.tray.choose("Start at Login")
        self.wait_for_check(False)
        self.assertFalse(os.path.exists(file))

    def wait_for_check(self, wanted):
        wait_for(lambda: self.tray.wait_for_entry("Start at Login").checked == wanted,
                 f"the check at Start at Login is {wanted}")

    def test_quitting_takes_the_icon_away(self):
        self.start_brisel()
        self.assertEqual(self.brisel.quit(), 0)
        self.assertEqual(self.tray.all_items(), [])
