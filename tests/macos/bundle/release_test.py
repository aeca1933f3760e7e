# Checks the signing, notarisation and disk image of Brisel.app, with stand-in tools.
# SPDX-License-Identifier: MIT
#
# usage: release_test.py ROOT [-v]
import pathlib
import re
import sys
import tempfile
import unittest

from fake_mac import FakeMac

ROOT = pathlib.Path(sys.argv.pop(1))
SIGN = ROOT / "scripts/sign-macos"
CASK = (ROOT / "packaging/brisel.rb").read_text(encoding="utf-8")
IDENTITY = "Developer ID Application: Somebody (TEAM)"
HELPER = "Contents/Library/LoginItems/BriselHelper.app"
PLIST = "<key>CFBundleShortVersionString</key>\n\t<string>1.2.3</string>\n"


class Release(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        folder = pathlib.Path(scratch.name)
        self.mac = FakeMac(folder / "mac")
        self.application = folder / "built/Brisel.app"
        (self.application / HELPER).mkdir(parents=True)
        (self.application / "Contents/Info.plist").write_text(PLIST)
        self.image = folder / "made/Brisel-1.2.3.dmg"

    def sign(self, *words, **environment):
        words = words or (IDENTITY, "profile", self.application, self.image)
        return self.mac.run(SIGN, *words, **environment)

    def assert_fails(self, sentence, result):
        self.assertNotEqual(result.returncode, 0)
        self.assertIn(sentence, result.stdout)
        self.assertFalse(self.image.exists())

    def seals(self):
        """The files signed, in order."""
        signed = [call for call in self.mac.calls("codesign") if "--sign" in call]
        return [pathlib.Path(call).name for call in signed]


class Signing(Release):
    def test_goes_from_the_inside_out(self):
        result = self.sign()
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertEqual(self.seals(), ["BriselHelper.app", "Brisel.app", "Brisel-1.2.3.dmg"])

    def test_hardens_and_dates_both_programs(self):
        self.sign()
        for call in self.mac.calls("codesign")[:2]:
            with self.subTest(call=call):
                self.assertIn(f"--sign {IDENTITY} --timestamp --options runtime", call)

    def test_gives_only_the_application_entitlements(self):
        self.sign()
        with_entitlements = ["--entitlements" in call for call in self.mac.calls("codesign")]
        self.assertEqual(with_entitlements, [False, True, False, False])

    def test_leaves_the_application_that_was_built_alone(self):
        self.sign()
        for call in self.mac.calls("codesign"):
            self.assertNotIn(str(self.application), call)


class Notarisation(Release):
    def test_comes_before_each_ticket(self):
        self.sign()
        calls = [" ".join(call.split()[:2]) for call in self.mac.calls("xcrun")
                 if not call.startswith("--find")]
        self.assertEqual(calls[0::2], ["notarytool submit"] * 2)
        self.assertTrue(calls[1].startswith("stapler staple"))
        self.assertTrue(calls[3].startswith("stapler staple"))

    def test_uses_the_keychain_s_profile(self):
        self.sign()
        submitted = [call for call in self.mac.calls("xcrun") if "submit" in call]
        self.assertEqual(len(submitted), 2)
        for call in submitted:
            self.assertRegex(call, r"\.(zip|dmg) --keychain-profile profile --wait$")

    def test_that_is_refused_makes_no_image(self):
        self.assert_fails("Brisel.zip was not accepted", self.sign(VERDICT="Invalid"))


class DiskImage(Release):
    def test_holds_the_application_and_where_to_drag_it(self):
        self.sign()
        self.assertEqual(self.image.read_text().split(), ["Applications", "Brisel.app"])

    def test_is_made_of_an_application_only(self):
        result = self.mac.run(ROOT / "scripts/make-disk-image", self.application.parent / "x.app",
                              self.image)
        self.assert_fails("There is no", result)


class Refusals(Release):
    def test_are_reported_without_a_mac(self):
        (self.mac.tools / "uname").write_text("#!/bin/sh\necho Linux\n")
        self.assert_fails("Only a Mac can sign an application.", self.sign())

    def test_are_reported_for_missing_arguments(self):
        self.assert_fails("usage: sign-macos IDENTITY PROFILE", self.sign(IDENTITY))

    def test_are_reported_for_a_missing_build(self):
        self.assert_fails("cmake --build --preset macos",
                          self.sign(IDENTITY, "profile", self.application / "x", self.image))

    def test_are_reported_for_a_missing_certificate(self):
        self.assert_fails("The keychain has no valid certificate of the name Nobody.",
                          self.sign("Nobody", "profile", self.application, self.image))

    def test_are_reported_for_an_old_xcode(self):
        self.assert_fails("notarytool is missing", self.sign(MISSING="notarytool"))

    def test_are_reported_for_a_missing_version(self):
        (self.application / "Contents/Info.plist").write_text("<dict/>")
        self.assert_fails("does not tell its version", self.sign())


class Cask(unittest.TestCase):
    def value(self, name):
        return re.search(rf'^ +{name} +"([^"]+)"', CASK, re.MULTILINE).group(1)

    def test_has_the_project_s_version(self):
        project = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
        self.assertIn(f"project(Brisel VERSION {self.value('version')} ", project)

    def test_has_a_checksum_or_room_for_one(self):
        self.assertRegex(self.value("sha256"), "^[0-9a-f]{64}$")

    def test_names_the_oldest_system_as_homebrew_wants_it(self):
        self.assertIn("\n  depends_on macos: :big_sur\n", CASK)

    def test_asks_for_what_the_disk_image_is_called(self):
        self.assertIn("/Brisel-#{version}.dmg", self.value("url"))

    def test_never_deletes_what_may_be_mounted(self):
        lines = [line.strip() for line in CASK.splitlines() if "/.brisel" in line]
        self.assertEqual(lines, ['rmdir: "~/.brisel"'])


if __name__ == "__main__":
    unittest.main()
