# What may disappear during a session: stick, disk service, panel, notification server.
# SPDX-License-Identifier: MIT
import os
import signal

from stage import bus, services
from stage.waiting import wait_for

from .story import Story

UDISKS = "org.freedesktop.UDisks2"


class Mishaps(Story):
    def test_a_stick_pulled_while_writable_leaves_the_menu_and_comes_back(self):
        stick, _folder = self.start_with_writable_stick()
        node = stick.node
        posted = len(self.notifications.posted)
        stick.pull()
        self.brisel.wait_for_log(f"disk {node} disappeared")
        self.tray.wait_for_entry("No NTFS Volumes to re-mount")
        self.tray.wait_for_colour("grey")
        stick.attach()
        self.accept_prompt(stick, posted)
        self.wait_for_writable(stick)

    def test_the_disk_service_may_end_and_come_back(self):
        stick = self.start_with_stick()
        self.notifications.wait_for("StageData detected")
        self.end_disk_service()
        self.brisel.wait_for_log("UDisks2 has stopped; waiting for it to start.")
        self.resume_disk_service()
        self.brisel.wait_for_log("Connected to UDisks2 again.")
        self.assertFalse(self.brisel.has_logged("disappeared"))
        self.tray.choose("re-mount StageData")
        self.wait_for_writable(stick)

    def end_disk_service(self):
        if self.stage.mocked:
            self.stage.stop_disk_service()
            return
        if not services.disk_service_is_ours():
            self.skipTest("the disk service was not started for tests")
        os.kill(bus.owner_pid(bus.system_bus(), UDISKS), signal.SIGKILL)

    def resume_disk_service(self):
        if self.stage.mocked:
            self.stage.start_disk_service()
        else:
            bus.driver(bus.system_bus(), "StartServiceByName", "(su)", UDISKS, 0)

    def test_the_panel_may_end_and_come_back(self):
        self.start_with_stick()
        self.notifications.wait_for("StageData detected")
        self.stage.session.stop_panel()
        self.stage.session.start_panel()
        self.tray.wait_until_shown()
        self.assertEqual(self.tray.labels()[0], "re-mount StageData")

    def test_the_icon_shows_up_when_the_panel_starts_last(self):
        self.stage.session.stop_panel()
        self.brisel = self.stage.start_brisel()
        self.wait_for_name("org.brisel.Brisel")
        self.stage.session.start_panel()
        self.tray.wait_until_shown()
        self.assertEqual(self.tray.icon(), "brisel-status-grey-light")

    def wait_for_name(self, name):
        wait_for(lambda: bus.has_owner(self.stage.session.connection, name), f"{name} is there")
