# Checks that the user's guide tells of all that Brisel shows, and in Brisel's words.
# SPDX-License-Identifier: MIT
#
# usage: guide_test.py ROOT [-v]
import pathlib
import re
import sys
import unittest

from documents import Document

ROOT = pathlib.Path(sys.argv.pop(1)).resolve()
GUIDE = Document(ROOT, ROOT / "docs/guide.md")
TEXT = " ".join(GUIDE.path.read_text(encoding="utf-8").split())
TABLE = (ROOT / "resources/en.lproj/Localizable.strings").read_text(encoding="utf-8")
# What only those hear who do not see the icon, and words that are put into other texts.
NOT_TOLD = ("The state that the icon shows", )
PARTS_OF_TEXTS = {"add", "remove"}
# Longer ones are the sentences below an alert's title.
LONGEST_TITLE = 35


def titles():
    """The titles of menu items, alerts, notifications and buttons."""
    section = ""
    for line in TABLE.splitlines():
        if line.startswith("/*"):
            section = line.removeprefix("/* ")
        elif pair := re.match(r'"((?:[^"\\]|\\.)*)" = ', line):
            title = pair.group(1).replace('\\"', '"')
            is_sentence = title.endswith(".") and len(title) > LONGEST_TITLE
            if not (section.startswith(NOT_TOLD) or is_sentence or title in PARTS_OF_TEXTS):
                yield title


def log_lines():
    """What the guide shows of the log."""
    section = GUIDE.path.read_text(encoding="utf-8").split("\n## The log\n")[1].split("\n## ")[0]
    for row in re.findall(r"^\| (`.*?) \|", section, re.MULTILINE):
        yield from re.findall(r"`([^`]+)`", row)


class Guide(unittest.TestCase):
    def test_tells_of_everything_that_is_shown(self):
        for title in titles():
            with self.subTest(title=title):
                self.assertRegex(TEXT, re.escape(title).replace("%@", r"\S+"))

    def test_shows_lines_of_the_log_as_they_are_logged(self):
        sources = "\n".join(file.read_text(encoding="utf-8")
                            for file in (ROOT / "src").rglob("*.cpp"))
        self.assertGreater(len(list(log_lines())), 5)
        for line in log_lines():
            with self.subTest(line=line):
                self.assertRegex(sources, re.escape(line).replace("…", "%[@si]"))

    def test_shows_each_colour_of_the_icon(self):
        for colour in ("grey", "green", "blue", "orange", "red"):
            with self.subTest(colour=colour):
                self.assertIn(f"![{colour}](pictures/icon-{colour}.png) | {colour},", TEXT)


if __name__ == "__main__":
    unittest.main()
