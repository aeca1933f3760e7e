# Checks that the checks of the documents find what they are for, in small trees that break the rules.
# SPDX-License-Identifier: MIT
import pathlib
import tempfile
import unittest

import commands_test
import diagram_test
import links_test
from house import House
from printed_test import is_printed

PRESETS = '{"configurePresets": [{"name": "release"}, {"name": "base", "hidden": true}]}'


class Tree(unittest.TestCase):
    """A tree that is as it should be until a test writes into it."""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = pathlib.Path(scratch.name)
        for name, text in {"CMakePresets.json": PRESETS, "CMakeLists.txt": "option(BRISEL_TESTS)\n",
                           "Makefile": ".PHONY: empty\nall:\n\ttrue\nother:\n\tcmake --preset gone\n",
                           ".ci/run": "make other\n", "tests/docs/commands.txt": "",
                           "docs/pictures/used.png": "", "scripts/tool": "",
                           "README.md": "![](docs/pictures/used.png)\n"}.items():
            self.write(name, text)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def write_readme(self, text):
        self.write("README.md", f"# Its heading\n![](docs/pictures/used.png)\n{text}\n")


class Commands(Tree):
    def complaints(self, readme="", table=""):
        self.write_readme(readme)
        self.write("tests/docs/commands.txt", table)
        house = House(self.root, self.root / "build", self.root / "bin")
        house.tests = {"good.test", "macos-stage.other"}
        return "\n".join(commands_test.complaints(house))

    def check_way(self, command, way, complaint):
        """A way that does not hold the command right is complained about."""
        self.assertIn(complaint, self.complaints(f"```sh\n{command}\n```", f"{command}\n    {way}\n"))

    def check_good(self, command, way):
        self.assertEqual(self.complaints(f"```sh\n{command}\n```", f"{command}\n    {way}\n"), "")

    def test_are_content_with_what_is_right(self):
        self.check_good("true", "run")
        self.check_good("make", "make")
        self.check_good("make other", "ci")
        self.check_good("scripts/tool x", "test: good.test")
        self.check_good("cmake --preset release", "holds: .ci/run: other")
        self.check_good("rm -rf ~/.config/brisel ~/.config/autostart ~/.brisel", "home")

    def test_must_have_an_entry_in_a_block(self):
        self.assertIn("README.md:4: nothing holds `cp a b` to be right",
                      self.complaints("```sh\ncp a b\n```"))

    def test_must_have_an_entry_in_a_line(self):
        self.assertIn("README.md:3: nothing holds `make` to be right",
                      self.complaints("Type `make`, not `help`."))
        self.assertIn("nothing holds `scripts/tool x` to be right",
                      self.complaints("Type `scripts/tool x`."))

    def test_that_go_on_in_the_next_line_are_one(self):
        self.assertIn("`cp a b`", self.complaints("```sh\ncp a \\\n  b\n```"))

    def test_must_be_in_a_document(self):
        self.assertIn("`make` is in no document any more", self.complaints("", "make\n    make\n"))

    def test_must_have_a_way(self):
        self.assertIn("nothing holds it", self.complaints("`make`", "make\n"))
        self.check_way("make", "hope", 'there is no way "hope"')

    def test_must_be_a_shell_s(self):
        self.check_way("cp 'a b", "person: x", "a shell does not understand it")

    def test_must_name_what_is_there(self):
        self.check_way("scripts/gone x", "person: x", "there is no scripts/gone")
        self.check_way("build/bin/gone x", "person: x", "nothing builds build/bin/gone")
        self.check_way("cmake --preset base", "person: x", "there is no configure preset base")
        self.check_way("ctest --preset release", "person: x", "there is no test preset release")

    def test_must_do_what_is_said_of_them(self):
        self.check_way("false", "run", "it ends with 1")
        self.check_way("make gone", "make", "make does not know that target")
        self.check_way("make empty", "make", "make does nothing for that target")
        self.check_way("make other", "make", "there is no configure preset gone")
        self.check_way("make", "part of make other", "`make other` does not do `true`")
        self.check_way("make", "ci", ".ci/run does not run it")
        self.check_way("true", "test: bad.test", "there is no test bad.test")
        self.check_way("true", "test: macos-stage.gone", "there is no test macos-stage.gone")
        self.check_way("true", "holds: .ci/run: x", ".ci/run does not have: x")
        self.check_way("true", "person:", "it is not said why")
        self.check_way("rm -rf ~/.brisel", "home", "leave .config/brisel")

    def test_must_print_what_is_said_of_them(self):
        self.assertIn("it does not print what is in .ci/run",
                      self.complaints("`sh -c true`", "sh -c true\n    run\n    prints: .ci/run\n"))

    def test_stand_in_blocks_that_say_so(self):
        self.assertIn("say behind the fence", self.complaints("```\nmake\n```"))

    def test_may_be_options_that_cmake_knows(self):
        self.assertEqual(self.complaints("`-DBRISEL_TESTS=OFF`"), "")
        self.assertIn("CMake is told nothing of BRISEL", self.complaints("`-DBRISEL=OFF`"))


class Links(Tree):
    def complaints(self, readme):
        self.write_readme(readme)
        return "\n".join(links_test.complaints(self.root))

    def test_that_lead_somewhere_are_good(self):
        self.assertEqual(self.complaints("[a](scripts/tool) [b](#its-heading) [c](https://x.example)"), "")

    def test_must_lead_to_a_file(self):
        self.assertIn("README.md:3: there is no gone.md", self.complaints("[a\nb](gone.md)"))

    def test_must_lead_to_a_heading(self):
        self.assertIn("this document has no heading for #gone", self.complaints("[a](#gone)"))
        self.assertIn("README.md has no heading for #gone", self.complaints("[a](README.md#gone)"))

    def test_must_lead_to_the_name_they_have(self):
        self.write("src/a.cpp", "void inProgress() {}\n")
        self.assertEqual(self.complaints("[`inProgress`](src/a.cpp)"), "")
        self.assertIn("README.md:3: src/a.cpp has no progress", self.complaints("[`progress`](src/a.cpp)"))

    def test_must_show_each_picture(self):
        self.write("docs/pictures/unused.png", "")
        self.assertIn("docs/pictures/unused.png is in no document", self.complaints(""))

    def test_must_not_show_large_pictures(self):
        self.write("docs/pictures/used.png", "x" * 60_001)
        self.assertIn("has more than 60000 bytes", self.complaints(""))


class Diagram(Tree):
    def complaints(self, includes, drawing):
        self.write("src/app/a.cpp", "".join(f'#include "{file}"\n' for file in includes))
        self.write("src/app/a.h", "")
        self.write("src/volumes/v.h", '#include "platform/p.h"\n')
        self.write("src/platform/p.h", "")
        self.write("docs/architecture.dot", f"digraph {{ {drawing} }}")
        return "\n".join(diagram_test.complaints_about_arrows(self.root))

    def test_is_good_with_what_is_included(self):
        self.assertEqual(self.complaints(["app/a.h", "volumes/v.h", "platform/p.h"],
                                         '"app" -> "volumes" "volumes" -> "platform"'), "")

    def test_must_have_each_include(self):
        self.assertIn("app includes volumes, which is not drawn",
                      self.complaints(["volumes/v.h"], '"volumes" -> "platform"'))

    def test_must_have_no_more(self):
        self.assertIn("app -> platform is drawn, and no file of app includes one of platform",
                      self.complaints([], '"app" -> "platform" "volumes" -> "platform"'))

    def test_must_not_draw_what_follows(self):
        self.assertIn("app -> platform is drawn, and follows from other arrows",
                      self.complaints(["volumes/v.h", "platform/p.h"],
                                      '"app" -> "volumes" "volumes" -> "platform" "app" -> "platform"'))


class WhatIsPrinted(unittest.TestCase):
    def test_must_be_what_is_shown(self):
        self.assertTrue(is_printed(["a", "b"], "x\na\nb\nc\n"))
        self.assertFalse(is_printed(["a", "b"], "a\nx\nb\n"))
        self.assertFalse(is_printed(["a"], "ab\n"))

    def test_may_be_shown_in_parts(self):
        self.assertTrue(is_printed(["a", "...", "b"], "a\nx\ny\nb\n"))
        self.assertFalse(is_printed(["a", "...", "b"], "b\nx\na\n"))


if __name__ == "__main__":
    unittest.main()
