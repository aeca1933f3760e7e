# Checks that the localised tables are well-formed and have equal keys in all languages.
# SPDX-License-Identifier: MIT
#
# usage: tables_test.py ROOT [-v]
import pathlib
import plistlib
import re
import sys
import unittest

RESOURCES = pathlib.Path(sys.argv.pop(1)) / "resources"
LANGUAGES = sorted(folder.stem for folder in RESOURCES.glob("*.lproj"))
TABLES = ("InfoPlist", "Localizable")
SKIPPED = re.compile(r"(?:\s|/\*.*?\*/)*", re.DOTALL)
TEXT = r'"((?:[^"\\]|\\["\\nt])+)"'
PAIR = re.compile(rf"{TEXT} = {TEXT};")


def parse(text):
    """The table's pairs; raises ValueError if it is malformed or has a duplicate key."""
    table = {}
    position = SKIPPED.match(text).end()
    while position < len(text):
        pair = PAIR.match(text, position)
        if pair is None:
            raise ValueError(f"no pair: {text[position:position + 40]!r}")
        if pair.group(1) in table:
            raise ValueError(f"twice: {pair.group(1)}")
        table[pair.group(1)] = pair.group(2)
        position = SKIPPED.match(text, pair.end()).end()
    return table


def read(language, table):
    return parse((RESOURCES / f"{language}.lproj/{table}.strings").read_text(encoding="utf-8"))


def placeholders(text):
    return text.count("%@")


class Tables(unittest.TestCase):
    def test_are_there_in_eight_languages_at_least(self):
        self.assertGreaterEqual(set(LANGUAGES), {"de", "en", "es", "fr", "it", "ja", "pt", "zh-Hans"})

    def test_have_the_same_keys_in_all_languages(self):
        for table in TABLES:
            keys = set(read("en", table))
            for language in LANGUAGES:
                with self.subTest(table=table, language=language):
                    self.assertEqual(set(read(language, table)), keys)

    def test_have_a_placeholder_where_the_key_has_one(self):
        for language in LANGUAGES:
            for key, text in read(language, "Localizable").items():
                with self.subTest(language=language, key=key):
                    self.assertEqual(placeholders(text), placeholders(key))

    def test_are_translated(self):
        for language in set(LANGUAGES) - {"en"}:
            for key, text in read(language, "InfoPlist").items():
                with self.subTest(language=language, key=key):
                    self.assertNotEqual(text, read("en", "InfoPlist")[key])

    def test_translate_keys_of_the_property_list_in_its_own_words(self):
        template = RESOURCES / "macos/Info.plist.in"
        plist = plistlib.loads(template.read_bytes())
        for key, text in read("en", "InfoPlist").items():
            with self.subTest(key=key):
                self.assertEqual(plist[key], text)


class BrokenTables(unittest.TestCase):
    def test_are_found(self):
        for text in ('"a" = "b"', '"a" = "b" "c" = "d";', '"a" "b";', '"a = "b";', '/* "a" = "b";',
                     '"a" = "b\\q";', '"a" = "b"; "a" = "c";', 'a = "b";', '"a" = "";'):
            with self.subTest(text=text):
                self.assertRaises(ValueError, parse, text)

    def test_are_not_those_with_comments_and_escapes(self):
        self.assertEqual(parse('/* "x" */\n"a \\"b\\"" = "c\\n";\n'), {'a \\"b\\"': "c\\n"})


if __name__ == "__main__":
    unittest.main()
