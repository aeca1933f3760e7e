# From an attached stick to a writable volume, through UDisks2.
# SPDX-License-Identifier: MIT
from urllib.parse import unquote, urlparse

from stage.waiting import stays, wait_for

from .story import Story, on_real_disks_only

UNMOUNTED_MENU = [
    "No NTFS Volumes to re-mount", None, "Start at Login", "About Brisel", None, "Quit Brisel"]


class Mounting(Story):
    def test_a_yes_to_the_prompt_makes_a_stick_writable(self):
        self.start_brisel()
        self.tray.wait_for_colour("grey")
        self.assertEqual(self.tray.labels(), UNMOUNTED_MENU)
        stick = self.attach("StageData")
        prompt = self.notifications.wait_for("StageData detected")
        self.assertEqual(prompt.body, "Re-mount it read-write?")
        self.assertEqual(prompt.actions, {
            "default": "Brisel", "DO_MOUNT": "Yes, sure!", "NOTHING": "No, thanks."})
        self.assertIn("sound-name", prompt.hints)
        self.tray.wait_for_colour("green")
        self.assertEqual(self.tray.labels()[0], "re-mount StageData")
        self.take_picture("prompt")
        self.notifications.press(prompt, "DO_MOUNT")
        folder = self.wait_for_writable(stick)
        self.assertEqual(self.tray.labels()[:5], [
            "show the folder of StageData", "unmount", "remove all extended attributes",
            "mount automatically", None])
        self.wait_until_shown(folder)
        self.write_greeting(folder)
        self.unmount(stick)
        self.tray.wait_for_colour("grey")
        self.assertEqual(self.tray.labels(), UNMOUNTED_MENU)
        self.assert_greeting_arrived(stick)

    def wait_until_shown(self, folder):
        """Waits until the file manager was asked for this folder, and only for it."""
        def shown():
            return {unquote(urlparse(one).path).rstrip("/") for one in self.folders_shown()}
        wait_for(shown, "a folder is shown")
        self.assertEqual(shown(), {folder})

    def folders_shown(self):
        return self.stage.session.folders_shown()

    def test_the_menu_shows_the_folder_again(self):
        _stick, folder = self.start_with_writable_stick()
        self.wait_until_shown(folder)
        before = len(self.folders_shown())
        self.tray.choose("show the folder of StageData")
        wait_for(lambda: len(self.folders_shown()) > before, "the folder is shown again")
        self.wait_until_shown(folder)

    @on_real_disks_only("nothing is mounted beforehand by a mocked disk service")
    def test_a_stick_mounted_read_only_is_mounted_again(self):
        stick = self.attach("StageData")
        stick.mount_read_only(self.stage.session)
        self.start_brisel()
        self.tray.wait_for_colour("green")
        self.tray.choose("re-mount StageData")
        folder = self.wait_for_writable(stick)
        self.write_greeting(folder)
        self.unmount(stick)
        self.assert_greeting_arrived(stick)

    def test_after_unmount_a_notification_lets_the_stick_be_unplugged(self):
        stick, _folder = self.start_with_writable_stick()
        self.unmount(stick)
        notice = self.notifications.wait_for("StageData unmounted")
        self.assertEqual(notice.body, "You may unplug the device now.")
        self.assertEqual(notice.actions, {})
        self.assertGreater(notice.timeout, 0)

    def test_a_no_to_the_prompt_leaves_the_stick_alone(self):
        stick = self.start_with_stick()
        prompt = self.notifications.wait_for("StageData detected")
        self.notifications.press(prompt, "NOTHING")
        stays(lambda: self.tray.labels()[0] == "re-mount StageData", "the stick is read-only")
        self.assertEqual(stick.mounts(), [])

    def test_a_stick_on_the_automount_list_is_mounted_without_a_prompt(self):
        stick, _folder = self.start_with_writable_stick()
        self.tray.choose("mount automatically")
        self.tray.wait_for_entry("mount manually")
        self.unmount(stick)
        stick.pull()
        self.brisel.wait_for_log("disappeared")
        posted = len(self.notifications.posted)
        stick.attach()
        self.wait_for_writable(stick)
        self.assertEqual(len(self.notifications.posted), posted)
        self.tray.choose("mount manually")
        self.tray.wait_for_entry("mount automatically")
        self.assertIn(self.stage.preferences.read("volumeList"), ("", None))

    def test_a_stick_in_use_stays_mounted_and_is_reported(self):
        stick, folder = self.start_with_writable_stick()
        with self.in_use(stick, folder):
            self.tray.choose("unmount")
            self.brisel.wait_for_log(f"kDAReturnBusy for volume {stick.node}")
            alert = self.stage.alerts.wait_for('Volume "StageData" not unmountable')
            self.tray.wait_for_colour("red")
            self.take_picture("alert")
            self.stage.alerts.answer(alert, "Return")
        self.wait_for_writable(stick)
        self.unmount(stick)

    def test_a_hibernated_stick_is_reported_and_left_unmounted(self):
        self.start_brisel()
        stick = self.stage.new_stick("StageData")
        stick.hibernate()
        stick.attach()
        self.accept_prompt(stick)
        self.brisel.wait_for_log(f"kDAReturnNotWritable for volume {stick.node}")
        alert = self.stage.alerts.wait_for('Volume "StageData" not re-mountable')
        self.tray.wait_for_colour("red")
        self.assertEqual(stick.mounts(), [])
        self.stage.alerts.answer(alert, "Return")
        self.tray.wait_for_colour("grey")
        self.assertEqual(self.tray.labels(), UNMOUNTED_MENU)

    def test_two_sticks_of_one_label_are_told_apart(self):
        first = self.start_with_stick()
        self.tray.wait_for_entry("re-mount StageData")
        second = self.attach("StageData")
        self.tray.wait_for_entry(f"re-mount StageData-{second.node}")
        self.tray.wait_for_entry("re-mount StageData")
        self.tray.choose(f"re-mount StageData-{second.node}")
        second.wait_until_writable()
        self.tray.wait_for_entry(f"show the folder of StageData-{second.node}")
        self.assertEqual(first.mounts(), [])
        self.tray.wait_for_entry("re-mount StageData")

    @on_real_disks_only("alternate streams need a real volume")
    def test_extended_attributes_are_removed(self):
        stick, folder = self.start_with_writable_stick()
        self.write_greeting(folder)
        file = f"{folder}/greeting.txt"
        self.stage.session.run("setfattr", "-n", "user.note", "-v", "noted", file)
        self.assertIn("user.note", self.stage.session.run("getfattr", file))
        self.stage.session.run("mkdir", f"{folder}/deep")
        self.stage.session.run("setfattr", "-n", "user.tag", "-v", "tagged", f"{folder}/deep")
        self.tray.choose("remove all extended attributes")
        self.tray.wait_for_colour("blue")
        self.assertFalse(self.brisel.has_logged("Error executing Apple Script"),
                         self.brisel.program.text())
        self.unmount(stick)
        self.assert_greeting_arrived(stick)
        self.assertIsNone(stick.content("greeting.txt", stream="note"))
        self.assertIsNone(stick.content("deep", stream="tag"))
