# A story: a fresh start of Brisel on the shared stage, and what a person does first.
# SPDX-License-Identifier: MIT
import functools
import os
import unittest

GREETING = "written through Brisel"
GREETING_FILE = "greeting.txt"


def on_real_disks_only(reason):
    """A story that the mocked disk service cannot tell, and why."""
    def decorate(method):
        @functools.wraps(method)
        def story(self):
            if self.stage.mocked:
                self.skipTest(reason)
            method(self)
        return story
    return decorate


class Story(unittest.TestCase):
    """What the stories have in common."""

    # Set by whoever runs the stories.
    stage = None
    pictures = None

    def setUp(self):
        self.brisel = None
        self.stage.begin_story()
        self.addCleanup(self._end)

    def _end(self):
        try:
            self.take_picture("end")
            if self.brisel:
                self.brisel.program.stop()
                if self.brisel.has_complaints():
                    self.fail("a sanitizer has found something")
        finally:
            self.stage.end_story()

    def log(self):
        """What the program has logged so far."""
        return self.brisel.program.text() if self.brisel else ""

    def take_picture(self, moment):
        """Keeps the screen as it is for people to look at, if pictures are wanted."""
        if self.pictures:
            name = f"{self._testMethodName.removeprefix('test_')}-{moment}.png"
            self.stage.session.screenshot(os.path.join(self.pictures, name))

    @property
    def tray(self):
        return self.brisel.tray

    @property
    def notifications(self):
        return self.stage.notifications

    def start_brisel(self):
        """Starts the program; it is in the tray afterwards."""
        self.brisel = self.stage.start_brisel()
        self.brisel.wait_until_ready()

    def attach(self, label):
        """A new stick, attached. Its label must be one that nobody's own disk has."""
        stick = self.stage.new_stick(label)
        stick.attach()
        return stick

    def accept_prompt(self, stick, posted_before=0):
        """Says yes to the question that a stick's coming brings up."""
        prompt = self.notifications.wait_for(f"{stick.label} detected", posted_before)
        self.notifications.press(prompt, "DO_MOUNT")

    def make_writable(self, stick):
        """From an attached stick to the folder where it is mounted read-write."""
        self.accept_prompt(stick)
        return self.wait_for_writable(stick)

    def wait_for_writable(self, stick):
        """Waits for the menu, the icon and the mount; the folder."""
        self.tray.wait_for_entry(f"show {stick.label} in Finder")
        self.tray.wait_for_colour("blue")
        # Last, for the mount tool prepares a volume elsewhere before it puts it in its place.
        return stick.wait_until_writable()

    def unmount(self, stick):
        self.tray.choose("unmount", below=f"show {stick.label} in Finder")
        stick.wait_until_unmounted()
        self.tray.wait_until_gone(f"show {stick.label} in Finder")

    def in_use(self, stick, folder):
        """A stick that somebody holds as long as the context lasts."""
        if self.stage.mocked:
            return stick.kept_busy()
        return open(f"{folder}/held", "w", encoding="ascii")

    def write_greeting(self, folder):
        """Puts a file on the stick that is mounted there, as the person would."""
        if not self.stage.mocked:
            self.stage.session.run("sh", "-c", 'printf %s "$1" >"$2"', "sh", GREETING,
                                   f"{folder}/{GREETING_FILE}")

    def assert_greeting_arrived(self, stick):
        """Looks into the image itself. The stick is detached afterwards."""
        stick.pull()
        if not self.stage.mocked:
            self.assertEqual(stick.content(GREETING_FILE), GREETING)

    def use_mount_tool(self):
        """Has the mount tool in its place during this story."""
        obstacle = self.stage.install_mount_tool()
        if obstacle:
            self.skipTest(obstacle)
