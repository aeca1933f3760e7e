# When a prompt comes, and when it goes again, on notification servers of several kinds.
# SPDX-License-Identifier: MIT
from stage.notifications import NotificationsWithoutButtons, PlasmaNotifications
from stage.waiting import stays, wait_for

from .story import Story


class Prompts(Story):
    def meet_prompt(self, label="StageData"):
        """Attaches a stick; returns it and its prompt."""
        stick = self.attach(label)
        return stick, self.notifications.wait_until_open(f"{label} detected")

    def start_and_meet_prompt(self):
        self.start_brisel()
        return self.meet_prompt()

    def test_a_prompt_waits_for_its_answer(self):
        _stick, prompt = self.start_and_meet_prompt()
        self.assertEqual(prompt.timeout, 0)
        stays(lambda: prompt.id in self.notifications.open, "the prompt is shown")

    def test_a_prompt_goes_with_its_stick(self):
        stick, prompt = self.start_and_meet_prompt()
        stick.pull()
        self.notifications.wait_until_withdrawn(prompt)

    def test_a_prompt_goes_when_its_stick_is_remounted_from_the_menu(self):
        stick, prompt = self.start_and_meet_prompt()
        self.tray.choose("re-mount StageData")
        self.wait_for_writable(stick)
        self.notifications.wait_until_withdrawn(prompt)

    def test_a_prompt_stays_when_another_stick_goes(self):
        self.start_brisel()
        first, _prompt = self.meet_prompt("StageFirst")
        _second, prompt = self.meet_prompt("StageSecond")
        first.pull()
        self.tray.wait_until_gone("re-mount StageFirst")
        stays(lambda: prompt.id in self.notifications.open, "the prompt is shown")

    def test_a_prompt_goes_with_the_program(self):
        _stick, prompt = self.start_and_meet_prompt()
        self.assertEqual(self.brisel.quit(), 0)
        self.notifications.wait_until_withdrawn(prompt)

    def test_without_buttons_a_click_opens_the_menu_and_withdraws_the_prompt(self):
        self.stage.start_notification_mock(NotificationsWithoutButtons)
        stick, prompt = self.start_and_meet_prompt()
        self.notifications.click(prompt)
        wait_for(self.stage.alerts.windows, "the menu is shown in a window")
        self.notifications.wait_until_withdrawn(prompt)
        self.take_picture("menu")
        self.assertEqual(stick.mounts(), [])

    def test_on_plasma_every_prompt_pops_up(self):
        self.stage.start_notification_mock(PlasmaNotifications)
        self.start_brisel()
        _stick, first = self.meet_prompt("StageFirst")
        self.notifications.expire(first)
        self.notifications.wait_until_withdrawn(first)
        self.meet_prompt("StageSecond")
