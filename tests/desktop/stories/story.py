# Base class of the stories: a new run of Brisel on the shared stage.
# SPDX-License-Identifier: MIT
import functools
import os
import unittest

GREETING = "written through Brisel"
GREETING_FILE = "greeting.txt"


def on_real_disks_only(reason):
    """Skips a story, with a reason, on the mocked disk service."""
    def decorate(method):
        @functools.wraps(method)
        def story(self):
            if self.stage.mocked:
                self.skipTest(reason)
            method(self)
        return story
    return decorate


class Story(unittest.TestCase):
    # Set by the runner of the stories.
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
        """The program's log so far."""
        return self.brisel.program.text() if self.brisel else ""

    def take_picture(self, moment):
        """Saves a picture of the screen if pictures are requested."""
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
        """Starts the program and waits for its tray icon."""
        self.brisel = self.stage.start_brisel()
        self.brisel.wait_until_ready()

    def attach(self, label):
        """Attaches a new stick. Its label must differ from those of the machine's own disks."""
        stick = self.stage.new_stick(label)
        stick.attach()
        return stick

    def start_with_stick(self, label="StageData"):
        """Starts the program, then attaches a new stick."""
        self.start_brisel()
        return self.attach(label)

    def start_with_writable_stick(self):
        """Starts the program and makes a new stick writable; returns the stick and its folder."""
        stick = self.start_with_stick()
        return stick, self.make_writable(stick)

    def accept_prompt(self, stick, posted_before=0):
        """Accepts the prompt for the stick."""
        prompt = self.notifications.wait_for(f"{stick.label} detected", posted_before)
        self.notifications.press(prompt, "DO_MOUNT")

    def make_writable(self, stick):
        """Accepts the prompt; returns the folder where the stick is mounted read-write."""
        self.accept_prompt(stick)
        return self.wait_for_writable(stick)

    def wait_for_writable(self, stick):
        """Waits for menu, icon and mount; returns the folder."""
        self.tray.wait_for_entry(f"show the folder of {stick.label}")
        self.tray.wait_for_colour("blue")
        # Last: the mount tool mounts elsewhere first, then moves the mount.
        return stick.wait_until_writable()

    def unmount(self, stick):
        self.tray.choose("unmount", below=f"show the folder of {stick.label}")
        stick.wait_until_unmounted()
        self.tray.wait_until_gone(f"show the folder of {stick.label}")

    def in_use(self, stick, folder):
        """While in context, the stick cannot be unmounted."""
        if self.stage.mocked:
            return stick.kept_busy()
        return open(f"{folder}/held", "w", encoding="ascii")

    def write_greeting(self, folder):
        """Writes a file to the mounted stick, as the user."""
        if not self.stage.mocked:
            self.stage.session.run("sh", "-c", 'printf %s "$1" >"$2"', "sh", GREETING,
                                   f"{folder}/{GREETING_FILE}")

    def assert_greeting_arrived(self, stick):
        """Reads the file from the image; pulls the stick first."""
        stick.pull()
        if not self.stage.mocked:
            self.assertEqual(stick.content(GREETING_FILE), GREETING)
