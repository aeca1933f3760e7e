#!/usr/bin/python3
# Tests the windows of brisel-dialog on a private X display: windows.py PROGRAM
# SPDX-License-Identifier: MIT
import os
import shutil
import subprocess
import sys
import time
import unittest

from dialog import PATIENCE, SCREEN_HEIGHT, SCREEN_WIDTH, Dialog, Display

SKIPPED = 77
MENU = (b"1\titem\tre-mount Data\n0\ttext\tNo volumes\nnonsense\n-\tseparator\t\n"
        b"2\tchecked\tStart at Login\nlast\titem\tQuit Brisel\n")
program = sys.argv[1]


def started(*arguments, entries=b"", environment=None):
    return Dialog(program, *arguments, environment=environment or display.environment(),
                  entries=entries)


class Windows(unittest.TestCase):
    def shown(self, *arguments, entries=b""):
        dialog = started(*arguments, entries=entries)
        self.addCleanup(dialog.discard)
        dialog.wait_until_shown()
        return dialog

    def assert_answers(self, dialog, answer):
        said, status, complaints = dialog.end()
        self.assertEqual((said, status, complaints), (answer + "\n", 0, ""))


class Alert(Windows):
    def test_buttons_are_reached_by_keyboard(self):
        for keys, answer in ((["Return"], "pressed 0"), (["Tab", "Return"], "pressed 1"),
                             (["Escape"], "closed")):
            with self.subTest(keys=keys):
                dialog = self.shown("alert", "Message", "More\n\nabout it", "Yes", "No")
                dialog.press(*keys)
                self.assert_answers(dialog, answer)

    def test_first_button_is_right_of_the_second(self):
        # Within the wide button, in every font.
        for from_right, answer in ((40, "pressed 0"), (180, "pressed 1")):
            with self.subTest(from_right=from_right):
                dialog = self.shown("alert", "Message", "", "A", "B" * 40)
                dialog.click(from_right, from_bottom=40)
                self.assert_answers(dialog, answer)

    def test_buttons_too_wide_for_the_screen_stand_below_one_another(self):
        dialog = self.shown("alert", "Message", "", *("W" * 45 + str(n) for n in range(3)))
        self.assert_fits(dialog)
        dialog.click(from_right=200, from_bottom=40)
        self.assert_answers(dialog, "pressed 2")

    def test_asks_for_attention(self):
        dialog = self.shown("alert", "Message", "", "Yes")
        properties = dialog.xprop()
        self.assertRegex(properties, r'_NET_WM_NAME\(UTF8_STRING\) = "Brisel"')
        self.assertRegex(properties, r"_NET_WM_STATE\(ATOM\) =.*_NET_WM_STATE_ABOVE")
        self.assertRegex(properties, r"_NET_WM_STATE\(ATOM\) =.*_NET_WM_STATE_MODAL")
        self.assertNotIn("_NET_WM_STATE_SKIP_TASKBAR", properties)
        self.assertIn("urgency hint bit is set", properties)
        self.assertIn("org.brisel.Brisel", properties)

    def test_stands_in_the_middle(self):
        place = self.shown("alert", "Message", "", "Yes").geometry()
        self.assertAlmostEqual(place["X"] + place["WIDTH"] / 2, SCREEN_WIDTH / 2, delta=2)
        self.assertAlmostEqual(place["Y"] + place["HEIGHT"] / 2, SCREEN_HEIGHT / 2, delta=2)

    def test_hostile_texts_are_only_texts(self):
        dialog = self.shown("alert", b"<b>&bad; \xff\xfe \x1b[31m \xe2\x80\xae %s%n",
                            b"</span>\n\x01\x02\xc3", b"--display=:99", b"_Q\xff\n<i>", b"")
        dialog.press("Tab", "Tab", "Return")
        self.assertIn(dialog.end(), [("pressed 1\n", 0, ""), ("pressed 2\n", 0, "")])

    def test_huge_texts_stay_on_the_screen(self):
        dialog = self.shown("alert", "W" * 5000, "line\n" * 20000, "Yes", "word " * 1000)
        self.assert_fits(dialog)
        dialog.press("Return")
        self.assert_answers(dialog, "pressed 0")

    def assert_fits(self, dialog):
        place = dialog.geometry()
        self.assertLessEqual(place["WIDTH"], SCREEN_WIDTH)
        self.assertLessEqual(place["HEIGHT"], SCREEN_HEIGHT)


class Menu(Windows):
    def test_items_are_reached_by_keyboard_and_texts_passed_over(self):
        for keys, answer in ((["Return"], "pressed 1"), (["Down", "Return"], "pressed 2"),
                             (["Escape"], "closed")):
            with self.subTest(keys=keys):
                dialog = self.shown("menu", "Title", entries=MENU)
                self.assertIn('_NET_WM_NAME(UTF8_STRING) = "Title"', dialog.xprop())
                dialog.press(*keys)
                self.assert_answers(dialog, answer)

    def test_item_is_clicked(self):
        dialog = self.shown("menu", "Title", entries=MENU)
        dialog.click(from_right=60, from_bottom=25)
        self.assert_answers(dialog, "pressed last")

    def test_long_menu_scrolls_to_what_is_reached(self):
        entries = b"".join(b"%d\titem\tEntry %d\n" % (n, n) for n in range(100))
        dialog = self.shown("menu", "Title", entries=entries)
        self.assertLess(dialog.geometry()["HEIGHT"], SCREEN_HEIGHT)
        dialog.press(*["Down"] * 70, "Return")
        self.assert_answers(dialog, "pressed 70")

    def test_hostile_lines_are_only_texts(self):
        dialog = self.shown("menu", b"\xff<b>", entries=b"\xff\t\t\n\0\titem\n<i>\titem\t" +
                            b"<u>\xfe\x1b" * 1000 + b"\n3\ttext\t<&\xff\n")
        self.assertLessEqual(dialog.geometry()["WIDTH"], SCREEN_WIDTH)
        dialog.press("Return")
        self.assert_answers(dialog, "pressed <i>")

    def test_without_entries_can_be_closed(self):
        dialog = self.shown("menu", "Title")
        dialog.press("Escape")
        self.assert_answers(dialog, "closed")


class AssistiveTechnology(unittest.TestCase):
    def setUp(self):
        if not shutil.which("dbus-run-session") or subprocess.run(
                [sys.executable, "-c", "import gi; gi.require_version('Atspi', '2.0')"],
                stderr=subprocess.DEVNULL).returncode != 0:
            self.skipTest("dbus-run-session or the introspection data of AT-SPI is missing")

    def read(self, *arguments, entries=b""):
        environment = display.environment()
        del environment["NO_AT_BRIDGE"]
        reader = os.path.join(os.path.dirname(os.path.abspath(__file__)), "read_aloud.py")
        return subprocess.run(
            ["dbus-run-session", "--", sys.executable, reader, program, *arguments],
            input=entries, env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
            check=True, timeout=PATIENCE).stdout.decode()

    def test_reads_the_alert(self):
        heard = self.read("alert", "Message", "More", "Yes", "No")
        for line in (r"alert\|Message\|.*modal", r"icon\|Brisel\|", r"label\|Message\|",
                     r"label\|More\|", r"(push )?button\|Yes\|.*focused is-default",
                     r"(push )?button\|No\|"):
            self.assertRegex(heard, "(?m)^" + line)

    def test_reads_which_item_is_checked(self):
        heard = self.read("menu", "Title", entries=MENU)
        self.assertRegex(heard, r"(?m)^frame\|Title\|")
        self.assertRegex(heard, r"(?m)^check menu item\|Start at Login\|checked ")
        self.assertRegex(heard, r"(?m)^(push )?button\|re-mount Data\|(?!checked)")
        self.assertNotRegex(heard, r"(?m)^label\|No volumes\|.*sensitive")


class About(Windows):
    def test_is_closed_by_its_button_or_escape(self):
        for key in ("Return", "Escape"):
            dialog = self.shown("about")
            dialog.press(key)
            self.assert_answers(dialog, "closed")


class Process(Windows):
    def test_needs_a_display(self):
        environment = display.environment()
        del environment["DISPLAY"]
        said, status, complaint = started("about", environment=environment).end()
        self.assertEqual((said, status), ("", 3))
        self.assertRegex(complaint, r"\Abrisel-dialog: .*display.*\.\n\Z")

    def test_rejects_invalid_arguments(self):
        for arguments in ([], ["alert", "Message", ""], ["menu"], ["window"]):
            said, status, complaint = started(*arguments).end()
            self.assertEqual((said, status), ("", 2), arguments)
            self.assertTrue(complaint.startswith("usage: brisel-dialog "), complaint)

    def test_ends_on_sigterm(self):
        dialog = self.shown("alert", "Message", "", "Yes")
        dialog.process.terminate()
        self.assertEqual(dialog.end(), ("", -15, ""))

    def test_ends_when_its_output_is_closed(self):
        dialog = self.shown("alert", "Message", "", "Yes")
        dialog.process.stdout.close()
        deadline = time.monotonic() + PATIENCE
        while dialog.process.poll() is None and time.monotonic() < deadline:
            time.sleep(0.05)
        self.assertIsNotNone(dialog.process.poll())


if __name__ == "__main__":
    for tool in ("Xvfb", "xdotool", "xprop"):
        if not shutil.which(tool):
            print("Skipped, there is no", tool)
            sys.exit(SKIPPED)
    display = Display()
    try:
        outcome = unittest.main(argv=sys.argv[:1] + sys.argv[2:], exit=False)
    finally:
        display.end()
    sys.exit(not outcome.result.wasSuccessful())
