# Checks the property lists of Brisel.app and its helper, and the files that they name.
# SPDX-License-Identifier: MIT
#
# usage: property_lists_test.py ROOT FOLDER [-v]
#
# FOLDER holds the property lists from the build, and the list of the bundle's files.
import pathlib
import plistlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv.pop(1))
FOLDER = pathlib.Path(sys.argv.pop(1))
RESOURCES = ROOT / "resources"
HELPER = "Contents/Library/LoginItems/BriselHelper.app/"


def read(name):
    return plistlib.loads((FOLDER / name).read_bytes())


def source(pattern, file):
    """The pattern's one group, found in a file of the project."""
    found = re.search(pattern, (ROOT / file).read_text(encoding="utf-8"))
    if found is None:
        raise AssertionError(f"{file} has no {pattern}")
    return found.group(1)


def missing_files(plist, contents, bundle):
    """The files that the property list names and the bundle lacks."""
    wanted = [f"Contents/MacOS/{plist['CFBundleExecutable']}"]
    if "NSMainNibFile" in plist:
        wanted.append(f"Contents/Resources/{plist['NSMainNibFile']}.nib")
    if "CFBundleIconFile" in plist:
        wanted.append(f"Contents/Resources/{pathlib.Path(plist['CFBundleIconFile']).stem}.icns")
    for language in plist.get("CFBundleLocalizations", ()):
        wanted.append(f"Contents/Resources/{language}.lproj/Localizable.strings")
    return [file for file in wanted if bundle + file not in contents]


CONTENTS = (FOLDER / "Brisel.contents").read_text(encoding="utf-8").splitlines()
APPLICATION = read("Brisel.plist")
LOGIN_ITEM = read("BriselHelper.plist")
VERSION = source(r"project\(Brisel VERSION ([\d.]+)", "CMakeLists.txt")


class BothApplications(unittest.TestCase):
    def test_have_every_name_filled_in(self):
        for name in ("Brisel.plist", "BriselHelper.plist"):
            with self.subTest(name=name):
                text = (FOLDER / name).read_text(encoding="utf-8")
                self.assertIsNone(re.search(r"@\w*@|\$\{|<string></string>", text))

    def test_have_the_project_s_version(self):
        for plist in (APPLICATION, LOGIN_ITEM):
            self.assertEqual(plist["CFBundleShortVersionString"], VERSION)
            self.assertEqual(plist["CFBundleVersion"], VERSION)

    def test_want_the_same_system(self):
        for plist in (APPLICATION, LOGIN_ITEM):
            self.assertEqual(plist["LSMinimumSystemVersion"], "11.0")
            self.assertEqual(plist["CFBundlePackageType"], "APPL")


class Application(unittest.TestCase):
    def test_is_an_agent_that_starts_from_its_nib(self):
        self.assertEqual(APPLICATION["CFBundleIdentifier"], "org.brisel.Brisel")
        self.assertEqual(APPLICATION["NSPrincipalClass"], "NSApplication")
        self.assertEqual(APPLICATION["NSMainNibFile"], "MainMenu")
        self.assertIs(APPLICATION["LSUIElement"], True)

    def test_has_the_files_that_its_keys_name(self):
        self.assertEqual(missing_files(APPLICATION, CONTENTS, ""), [])

    def test_has_every_language_there_is_a_table_for(self):
        languages = {folder.stem for folder in RESOURCES.glob("*.lproj")}
        self.assertEqual(set(APPLICATION["CFBundleLocalizations"]), languages)
        self.assertEqual(len(languages), 8)
        self.assertIn(APPLICATION["CFBundleDevelopmentRegion"], languages)

    def test_states_why_it_asks_for_permission(self):
        for key in ("NSAppleEventsUsageDescription", "NSRemovableVolumesUsageDescription"):
            with self.subTest(key=key):
                self.assertIn("Brisel", APPLICATION[key])

    def test_shows_the_copyright_in_the_about_panel(self):
        self.assertEqual(APPLICATION["NSHumanReadableCopyright"],
                         "Copyright © 2026 The Brisel developers")
        self.assertIn("Contents/Resources/Credits.rtf", CONTENTS)


class LoginItem(unittest.TestCase):
    def test_has_the_identifier_that_the_program_registers(self):
        registered = source(r'LoginHelperIdentifier = "([^"]+)"', "src/app/AppDelegate.h")
        self.assertEqual(LOGIN_ITEM["CFBundleIdentifier"], registered)
        self.assertTrue(registered.endswith(".BriselHelper"))

    def test_shows_nothing(self):
        self.assertIs(LOGIN_ITEM["LSBackgroundOnly"], True)

    def test_has_its_program_where_the_system_looks_for_login_items(self):
        self.assertEqual(missing_files(LOGIN_ITEM, CONTENTS, HELPER), [])


class Entitlements(unittest.TestCase):
    def test_are_none(self):
        file = RESOURCES / "macos/Brisel.entitlements"
        self.assertEqual(plistlib.loads(file.read_bytes()), {})


class Bundles(unittest.TestCase):
    """Checks that missing_files() finds what a bundle lacks."""

    def test_lack_a_nib_an_icon_a_program_or_a_language(self):
        for file in ("Contents/Resources/MainMenu.nib", "Contents/Resources/Brisel.icns",
                     "Contents/MacOS/Brisel", "Contents/Resources/ja.lproj/Localizable.strings"):
            with self.subTest(file=file):
                without = [other for other in CONTENTS if other != file]
                self.assertEqual(missing_files(APPLICATION, without, ""), [file])

    def test_lack_the_login_item_s_program(self):
        self.assertEqual(missing_files(LOGIN_ITEM, CONTENTS, ""), ["Contents/MacOS/BriselHelper"])


if __name__ == "__main__":
    unittest.main()
