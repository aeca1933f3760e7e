# Checks that the checks of the documents find what they are for, in small trees that break the rules.
# SPDX-License-Identifier: MIT
import pathlib
import tempfile
import unittest

import diagram_test
import links_test
from printed_test import is_printed


class Tree(unittest.TestCase):
    """A tree that is as it should be until a test writes into it."""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = pathlib.Path(scratch.name)
        self.write("docs/pictures/used.png", "")
        self.write("scripts/tool", "")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def write_readme(self, text):
        self.write("README.md", f"# Its heading\n![](docs/pictures/used.png)\n{text}\n")


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
