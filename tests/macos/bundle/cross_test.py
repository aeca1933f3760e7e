# Checks the build of Brisel.app on Linux: its SDK, and what is left out without Apple's tools.
# SPDX-License-Identifier: MIT
#
# usage: cross_test.py ROOT [-v]
import os
import pathlib
import subprocess
import tempfile
import unittest

from build_test import HELPER, ROOT, SEALED, Build

NEEDS = "Set BRISEL_MACOS_SDK to the folder of a macOS SDK, 12 or later."
# As much of a library as the compiler check links.
LIBRARY = """\
--- !tapi-tbd
tbd-version: 4
targets: [ x86_64-macos, arm64-macos ]
install-name: '/usr/lib/{name}.dylib'
exports:
  - targets: [ x86_64-macos, arm64-macos ]
    symbols: [ dyld_stub_binder ]
...
"""


HAS_LLD = any(pathlib.Path("/usr/lib").glob("llvm-*/bin/ld64.lld"))


class Preset(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)

    def configure(self, sdk):
        return subprocess.run(
            ["cmake", "--preset", "macos-cross", "-B", str(self.folder / "build")], cwd=ROOT,
            env={**os.environ, "BRISEL_MACOS_SDK": str(sdk)}, text=True, timeout=100,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def test_without_an_sdk_ends_with_one_sentence(self):
        for sdk in ("", self.folder, self.folder / "missing", "src"):
            with self.subTest(sdk=sdk):
                result = self.configure(sdk)
                self.assertNotEqual(result.returncode, 0)
                self.assertIn(NEEDS, result.stdout)
                self.assertEqual(result.stdout.count("CMake Error"), 1, result.stdout)

    @unittest.skipUnless(HAS_LLD, "lld is missing")
    def test_links_a_program_for_both_processors(self):
        library = self.folder / "sdk/usr/lib"
        library.mkdir(parents=True)
        (self.folder / "sdk/usr/include/c++/v1").mkdir(parents=True)
        for name in ("libSystem", "libc++"):
            (library / f"{name}.tbd").write_text(LIBRARY.format(name=name))
        result = self.configure(self.folder / "sdk")
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertIn("Detecting CXX compiler ABI info - done", result.stdout)
        for link in (self.folder / "build/tools").iterdir():
            self.assertTrue(link.exists(), link)


class CrossBuild(Build):
    @classmethod
    def options(cls):
        return (f"-DBRISEL_MACOS_SDK={cls.folder}/sdk",)

    def contents(self):
        return {str(file.relative_to(self.application))
                for file in self.application.rglob("*") if file.is_file()}

    def test_leaves_out_what_takes_apple_s_tools(self):
        result = self.configure("build")
        self.assertIn("BRISEL_IBTOOL names no ibtool", result.stdout)
        self.assertIn("BRISEL_CODESIGN names no codesign", result.stdout)
        self.change("helper/main.mm")
        result = self.build()
        self.assertIn("Leaving Brisel.app unsigned", result.stdout)
        self.assertEqual(self.seals(), [])
        self.assertIn(HELPER + "/Contents/MacOS/BriselHelper", self.contents())
        self.assertNotIn("Contents/Resources/MainMenu.nib", self.contents())

    def test_uses_the_tools_that_are_named(self):
        tools = self.mac.tools
        self.must(self.configure("build", f"-DBRISEL_IBTOOL={tools}/ibtool",
                                 f"-DBRISEL_CODESIGN={tools}/codesign"))
        self.must(self.build())
        self.assertEqual(self.seals(), SEALED)
        self.assertIn("Contents/Resources/MainMenu.nib", self.contents())


if __name__ == "__main__":
    unittest.main()
