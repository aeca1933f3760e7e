# Checks the files and signatures of the Brisel.app that the build makes with stand-in tools.
# SPDX-License-Identifier: MIT
#
# usage: build_test.py ROOT [-v]
#
# The compiler is a stand-in too: the code is not compiled.
import json
import pathlib
import plistlib
import re
import shutil
import sys
import tempfile
import time
import unittest

from fake_mac import FakeMac

ROOT = pathlib.Path(sys.argv.pop(1))
HELPER = "Contents/Library/LoginItems/BriselHelper.app"
TOOLCHAIN = """\
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 20)
set(CMAKE_OSX_SYSROOT "{folder}/sdk")
set(CMAKE_CXX_COMPILER "{tools}/clang++")
set(CMAKE_CXX_COMPILER_FORCED TRUE)
set(CMAKE_CXX_COMPILER_ID_RUN TRUE)
set(CMAKE_CXX_COMPILER_ID AppleClang)
set(CMAKE_CXX_COMPILER_VERSION 13.0)
set(CMAKE_CXX_STANDARD_COMPUTED_DEFAULT 98)
set(CMAKE_CXX_COMPILE_FEATURES cxx_std_11 cxx_std_14 cxx_std_17)
set(CMAKE_AR "{tools}/ar")
set(CMAKE_RANLIB "{tools}/ranlib")
set(CMAKE_INSTALL_NAME_TOOL "{tools}/install_name_tool")
"""


def preset():
    """The cache variables of the macOS preset, without its output folders."""
    presets = json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))
    named = {each["name"]: each for each in presets["configurePresets"]}
    macos = named["macos"]
    variables = {**named[macos["inherits"]]["cacheVariables"], **macos["cacheVariables"]}
    return [f"-D{name}={value}" for name, value in variables.items()
            if not name.endswith("OUTPUT_DIRECTORY")]


def copy_sources(folder):
    """Copies the sources, so that a test may change them."""
    folder.mkdir()
    for name in ("cmake", "helper", "packaging", "resources", "scripts", "simulator", "src",
                 "tests"):
        shutil.copytree(ROOT / name, folder / name)
    shutil.copy(ROOT / "CMakeLists.txt", folder)


class Build(unittest.TestCase):
    """Builds one tree for all tests; a test undoes or builds its changes."""

    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        cls.folder = pathlib.Path(scratch.name)
        cls.mac = FakeMac(cls.folder / "mac")
        cls.sources = cls.folder / "sources"
        copy_sources(cls.sources)
        (cls.folder / "sdk/usr/include/c++/v1").mkdir(parents=True)
        (cls.folder / "toolchain.cmake").write_text(
            TOOLCHAIN.format(folder=cls.folder, tools=cls.mac.tools))
        cls.application = cls.folder / "build/bin/Brisel.app"
        cls.configured = cls.configure("build", *cls.options())
        cls.must(cls.configured)
        cls.must(cls.build())

    @classmethod
    def options(cls):
        """More cache variables of the tree."""
        return ()

    @classmethod
    def must(cls, result):
        if result.returncode != 0:
            raise AssertionError(result.stdout)

    @classmethod
    def configure(cls, tree, *words, **environment):
        return cls.mac.run(
            "cmake", "-S", cls.sources, "-B", cls.folder / tree, "-G", "Ninja", *preset(),
            f"-DCMAKE_TOOLCHAIN_FILE={cls.folder}/toolchain.cmake", *words, **environment)

    @classmethod
    def build(cls, target="brisel-application"):
        return cls.mac.run("cmake", "--build", cls.folder / "build", "--target", target)

    def seals(self):
        """The bundles signed or verified, in order."""
        return [("verify " if "--verify" in call else "sign ") + pathlib.Path(call).name
                for call in self.mac.calls("codesign")]

    def change(self, name):
        """Makes the source newer than the seal, which may take a clock tick."""
        source = self.sources / name
        sealed = (self.folder / "build/packaging/Brisel.sealed").stat().st_mtime_ns
        while True:
            source.write_text(source.read_text(encoding="utf-8") + "\n", encoding="utf-8")
            if source.stat().st_mtime_ns > sealed:
                return
            time.sleep(0.01)


SEALED = ["sign BriselHelper.app", "sign Brisel.app", "verify Brisel.app"]


class Bundle(Build):
    def test_has_the_files_that_the_property_lists_and_the_program_need(self):
        found = {str(file.relative_to(self.application))
                 for file in self.application.rglob("*") if file.is_file()}
        for wanted in ("Contents/Info.plist", "Contents/MacOS/Brisel",
                       "Contents/Resources/MainMenu.nib", "Contents/Resources/Brisel.icns",
                       "Contents/Resources/brisel-status-red-dark@2x.png",
                       "Contents/Resources/zh-Hans.lproj/Localizable.strings",
                       HELPER + "/Contents/Info.plist", HELPER + "/Contents/MacOS/BriselHelper"):
            with self.subTest(wanted=wanted):
                self.assertIn(wanted, found)

    def test_has_the_property_lists_of_either_application(self):
        for bundle, identifier in ((self.application, "org.brisel.Brisel"),
                                   (self.application / HELPER, "org.brisel.BriselHelper")):
            plist = plistlib.loads((bundle / "Contents/Info.plist").read_bytes())
            self.assertEqual(plist["CFBundleIdentifier"], identifier)

    def test_is_sealed_from_the_inside_out_whenever_something_in_it_changes(self):
        for changed in ("resources/macos/Credits.rtf", "resources/macos/MainMenu.xib",
                        "resources/ja.lproj/Localizable.strings", "helper/main.mm",
                        "resources/macos/Info.plist.in", "src/app/StatusIcon.cpp",
                        "resources/macos/Brisel.entitlements"):
            with self.subTest(changed=changed):
                self.change(changed)
                self.must(self.build())
                self.assertEqual(self.seals(), SEALED)

    def test_is_left_alone_when_nothing_changes(self):
        self.must(self.build())
        self.assertEqual(self.seals(), [])

    def test_is_not_sealed_with_an_unknown_file(self):
        stranger = self.application / "Contents/Resources/old.png"
        stranger.write_text("")
        self.change("helper/main.mm")
        result = self.build()
        stranger.unlink()
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("Contents/Resources/old.png", result.stdout)
        self.assertEqual(self.seals(), [])
        self.must(self.build())

    def test_comes_in_a_disk_image(self):
        self.must(self.build("brisel-disk-image"))
        images = list((self.folder / "build/packages").glob("Brisel-*.dmg"))
        self.assertEqual(len(images), 1)
        self.assertEqual(images[0].read_text().split(), ["Applications", "Brisel.app"])


class Compilation(Build):
    def links(self):
        self.change("src/platform/Format.cpp")
        self.change("helper/EnclosingApplication.cpp")
        self.must(self.build())
        return {program: call for call in self.mac.calls("clang++")
                for program in ("Brisel", "BriselHelper") if f"/MacOS/{program} " in call + " "}

    def test_is_for_both_processors_and_the_oldest_system(self):
        for program, call in self.links().items():
            with self.subTest(program=program):
                self.assertIn("-arch arm64 -arch x86_64", call)
                self.assertIn("-mmacosx-version-min=11.0", call)

    def test_treats_warnings_as_errors_but_allows_bridging_casts(self):
        self.change("src/platform/macos/LoginItems.mm")
        self.must(self.build())
        call, = [call for call in self.mac.calls("clang++") if call.endswith("LoginItems.mm")]
        self.assertIn(" -Werror ", call)
        # The last of the two counts.
        self.assertLess(call.index(" -Wold-style-cast "), call.index(" -Wno-old-style-cast "))

    def test_links_every_framework_that_the_program_uses(self):
        for framework in ("AppKit", "DiskArbitration", "Security", "ServiceManagement",
                          "UserNotifications"):
            with self.subTest(framework=framework):
                self.assertIn(f"-framework {framework}", self.links()["Brisel"])

    def test_passes_the_linker_no_option_of_other_systems(self):
        for program, call in self.links().items():
            with self.subTest(program=program):
                self.assertNotIn("-z,", call)


class Surroundings(Build):
    def test_of_other_systems_are_not_spoken_of(self):
        self.assertNotIn("GIO", self.configured.stdout)

    def test_without_xcode_are_reported(self):
        result = self.configure("without-xcode", MISSING="ibtool")
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("ibtool is missing", result.stdout)

    def test_without_xcode_can_build_the_rest(self):
        self.must(self.configure("the-rest", "-DBRISEL_MAC_APPLICATION=OFF", MISSING="ibtool"))

    def test_select_the_tests_that_need_no_linux(self):
        gtest = next(pathlib.Path("/usr/lib").glob("*/cmake/GTest"))
        self.must(self.configure("tests", "-DBUILD_TESTING=ON", "-DBRISEL_MAC_APPLICATION=OFF",
                                 f"-DGTest_DIR={gtest}"))
        listing = self.mac.run("ctest", "--test-dir", self.folder / "tests", "-N").stdout
        self.assertEqual(set(re.findall(r"Test +#\d+: (\S+)", listing)),
                         {"core-tests", "platform-tests", "simulator-tests", "scenarios",
                          "fault-tests-1", "fault-tests-2", "helper-tests", "macos-plain-tests",
                          "rules-tests", "random.soak", "thread-tests"})


if __name__ == "__main__":
    unittest.main()
