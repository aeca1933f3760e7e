# Checks that the desktop file, metainfo and policy have all languages of the program.
# SPDX-License-Identifier: MIT
#
# usage: languages_test.py RESOURCES [-v]
import configparser
import pathlib
import sys
import unittest
import xml.etree.ElementTree

RESOURCES = pathlib.Path(sys.argv.pop(1))
LINUX = RESOURCES / "linux"
XML_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def locale(language):
    return "zh_CN" if language == "zh-Hans" else language


TRANSLATIONS = {locale(folder.stem) for folder in RESOURCES.glob("*.lproj")} - {"en"}


def languages(document, tag):
    """The languages of all elements `tag`, without the untranslated one."""
    root = xml.etree.ElementTree.parse(LINUX / document).getroot()
    return {element.get(XML_LANGUAGE) for element in root.iter(tag)} - {None}


class Languages(unittest.TestCase):
    def test_are_eight_at_least(self):
        self.assertGreaterEqual(len(TRANSLATIONS), 7)

    def test_are_all_in_the_desktop_file(self):
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(LINUX / "org.brisel.Brisel.desktop", encoding="utf-8")
        keys = set(parser["Desktop Entry"])
        for key in ("GenericName", "Comment", "Keywords"):
            with self.subTest(key=key):
                self.assertLessEqual({f"{key}[{code}]" for code in TRANSLATIONS}, keys)

    def test_are_all_in_the_metainfo(self):
        self.assertEqual(languages("org.brisel.Brisel.metainfo.xml", "summary"), TRANSLATIONS)

    def test_are_all_in_the_policy(self):
        for tag in ("description", "message"):
            with self.subTest(tag=tag):
                self.assertEqual(languages("org.brisel.policy", tag), TRANSLATIONS)


if __name__ == "__main__":
    unittest.main()
