# Checks that the nib makes the program's menu and matches the delegate's class.
# SPDX-License-Identifier: MIT
#
# usage: nib_test.py ROOT [-v]
import pathlib
import sys
import unittest

from nib import Nib, faults, members

ROOT = pathlib.Path(sys.argv.pop(1))
HEADER = (ROOT / "src/entry/macos/AppDelegate.h").read_text(encoding="utf-8")
XIB = (ROOT / "resources/macos/MainMenu.xib").read_text(encoding="utf-8")
# Title, action and target, from the top.
MENU = [("Start at Login", "toggleStartAtLogin:", "AppDelegate"),
        ("About Brisel", "bringToFront:", "AppDelegate"),
        "separator",
        ("Quit Brisel", "terminate:", "NSApplication")]


class MainMenu(unittest.TestCase):
    nib = Nib(XIB)

    def test_holds_the_fixed_items_in_their_order(self):
        self.assertEqual(self.nib.menu_items(), MENU)

    def test_gives_no_item_a_tag_or_a_key(self):
        # Tags 101 and 102 belong to the generated items.
        for item in self.nib.root.iter("menuItem"):
            with self.subTest(item=item.get("title")):
                self.assertIsNone(item.get("tag"))
                self.assertIsNone(item.get("keyEquivalent"))

    def test_makes_the_delegate_that_of_the_application(self):
        self.assertEqual(self.nib.outlets("NSApplication"), {"delegate": "AppDelegate"})

    def test_gives_the_delegate_the_menu_and_the_check_item(self):
        self.assertEqual(self.nib.outlets("AppDelegate"),
                         {"statusMenu": "Status Menu", "startAtLogin": "Start at Login"})

    def test_fits_the_classes_in_the_sources(self):
        self.assertEqual(faults(XIB, {"AppDelegate": HEADER}), [])


class Delegate(unittest.TestCase):
    def test_has_no_outlet_that_nothing_fills(self):
        outlets, _ = members(HEADER, "AppDelegate")
        self.assertEqual(set(outlets), set(Nib(XIB).outlets("AppDelegate")))

    def test_has_no_action_that_nothing_sends(self):
        _, actions = members(HEADER, "AppDelegate")
        sent = {item[1] for item in MENU if item[2:] == ("AppDelegate",)}
        self.assertEqual(set(actions), sent)


class BrokenNibs(unittest.TestCase):
    """On a Mac, these faults appear at the program's start or never."""

    def assert_found(self, fault, xib=XIB, header=HEADER):
        found = faults(xib, {"AppDelegate": header})
        self.assertTrue(any(fault in one for one in found), found)

    def test_are_found_by_a_selector_that_is_no_action(self):
        self.assert_found("AppDelegate has no action toggleStart:",
                          xib=XIB.replace('"toggleStartAtLogin:"', '"toggleStart:"'))

    def test_are_found_by_an_outlet_that_is_not_there(self):
        self.assert_found("AppDelegate has no outlet theMenu",
                          xib=XIB.replace('"statusMenu"', '"theMenu"'))

    def test_are_found_by_an_outlet_of_another_type(self):
        self.assert_found("AppDelegate's outlet statusMenu is no NSMenuItem",
                          xib=XIB.replace('property="statusMenu" destination="200"',
                                          'property="statusMenu" destination="201"'))

    def test_are_found_by_a_class_that_is_not_there(self):
        self.assert_found("there is no class TheDelegate",
                          xib=XIB.replace('customClass="AppDelegate"', 'customClass="TheDelegate"'))

    def test_are_found_by_a_connection_that_leads_nowhere(self):
        self.assert_found("nothing has the id 999", xib=XIB.replace('target="100"', 'target="999"'))

    def test_are_found_by_an_id_given_twice(self):
        self.assert_found("the id 201 is given twice", xib=XIB.replace('id="203"', 'id="201"'))

    def test_are_found_by_an_action_renamed_in_the_class(self):
        self.assert_found("AppDelegate has no action bringToFront:",
                          header=HEADER.replace("bringToFront:", "showAboutPanel:"))

    def test_are_found_by_an_outlet_renamed_in_the_class(self):
        self.assert_found("AppDelegate has no outlet startAtLogin",
                          header=HEADER.replace("startAtLogin", "loginItem"))

    def test_are_found_by_an_outlet_that_is_a_plain_member_now(self):
        self.assert_found("AppDelegate has no outlet statusMenu",
                          header=HEADER.replace("IBOutlet", ""))

    def test_are_found_by_a_class_renamed(self):
        self.assert_found("there is no class AppDelegate",
                          header=HEADER.replace("@interface AppDelegate", "@interface Delegate"))


if __name__ == "__main__":
    unittest.main()
