# From an attached stick to a writable volume, through the mount tool and a password.
# SPDX-License-Identifier: MIT
import os

from .story import Story


class MountTool(Story):
    def setUp(self):
        if self.stage.mocked:
            self.skipTest("the mount tool takes a real volume, and root")
        super().setUp()
        obstacle = self.stage.install_mount_tool()
        if obstacle:
            self.skipTest(obstacle)

    def assert_nothing_mounted(self, stick):
        self.assertEqual(stick.mounts(), [])
        self.assertFalse(os.path.exists(self.mount_point()))

    def mount_point(self):
        return f"{self.stage.account.home}/.brisel/StageData"

    def test_the_right_password_makes_a_stick_writable(self):
        stick = self.start_with_stick()
        prompt = self.stage.password_prompt(self.brisel.pid)
        self.accept_prompt(stick)
        prompt.wait_until_asked()
        prompt.type(self.stage.account.password)
        self.brisel.wait_for_log(f"mount command successfully launched for {stick.device}")
        folder = self.wait_for_writable(stick)
        self.assertEqual(folder, self.mount_point())
        self.assertEqual(prompt.times_asked(), 1)
        self.write_greeting(folder)
        self.unmount(stick)
        self.assertFalse(os.path.exists(self.mount_point()))
        self.notifications.wait_for("StageData unmounted")
        self.assert_greeting_arrived(stick)

    def test_a_wrong_password_mounts_nothing(self):
        stick = self.start_with_stick()
        prompt = self.stage.password_prompt(self.brisel.pid)
        self.accept_prompt(stick)
        prompt.type("wrong" + self.stage.account.password)
        self.brisel.wait_for_log("something went wrong with mount command launch")
        self.assert_nothing_mounted(stick)

    def test_closing_the_password_dialog_mounts_nothing(self):
        stick = self.start_with_stick()
        dialog = self.stage.silent_dialog(self.brisel.pid)
        self.accept_prompt(stick)
        dialog.close_dialog()
        self.assertEqual(dialog.actions, ["org.brisel.run-mount-tool"])
        self.brisel.wait_for_log("mount command cancelled by user")
        self.tray.wait_for_entry("No NTFS Volumes to re-mount")
        self.assert_nothing_mounted(stick)

    def test_without_an_authentication_agent_nothing_is_mounted(self):
        stick = self.start_with_stick()
        self.accept_prompt(stick)
        self.brisel.wait_for_log("something went wrong with mount command launch")
        self.tray.wait_for_entry("No NTFS Volumes to re-mount")
        self.assert_nothing_mounted(stick)

    def test_a_stick_pulled_before_the_password_is_typed_mounts_nothing(self):
        stick = self.start_with_stick()
        prompt = self.stage.password_prompt(self.brisel.pid)
        self.accept_prompt(stick)
        prompt.wait_until_asked()
        stick.pull()
        prompt.type(self.stage.account.password)
        self.brisel.wait_for_log("mount will fail, there is a termination status report:")
        self.assertTrue(self.brisel.program.runs())
        self.assertEqual(os.listdir(os.path.dirname(self.mount_point())), ["StageData"])
        self.assertFalse(os.path.ismount(self.mount_point()))
