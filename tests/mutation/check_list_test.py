#!/usr/bin/env python3
# Checks that the check of the list of mutants finds what it is for, and nothing in a good tree.
# SPDX-License-Identifier: MIT
import pathlib
import tempfile
import unittest

import check_list
import mutants

SOURCE = """// A source.
#include "app/A.h"

namespace brisel {

namespace {

constexpr Limits Widths{1, 2};

struct Free {
    void operator()(char* buffer) const { free(buffer); }
};

}  // namespace

A::A(int size) : size_(size) {}

std::function<void(int)> A::turn(const std::vector<int>& all) const {
    for (const auto each : all) {
        if (each == '}') print("}", R"(a "{" b)");  // } {
    }
    return [] { done(); };
}

}  // namespace brisel
"""

LIST = """# Mutants of src/app/A.cpp.

Free::operator()
- free(buffer);

A::A
- size_(size)
+ size_(0)
survives: nobody asks.

A::turn
- if (each ==
+ if (each !=

(declarations)
- {1, 2}
+ {2, 1}
"""


class TheCheck(unittest.TestCase):
    def complaints(self, listed, source=SOURCE, fewest=0, name="A.cpp"):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for file, text in ((root / "src/app/A.cpp", source),
                               (root / f"tests/mutation/app/{name}.mutants", listed)):
                file.parent.mkdir(parents=True)
                file.write_text(text, encoding="utf-8")
            return check_list.complaints(root, fewest)

    def assert_complaint(self, found, expected):
        self.assertEqual(len(found), 1, found)
        self.assertIn(expected, found[0])

    def test_has_nothing_to_say_of_a_good_list(self):
        self.assertEqual(self.complaints(LIST, fewest=4), [])

    def test_does_not_mind_how_the_source_is_broken_into_lines(self):
        self.assertEqual(self.complaints(LIST, SOURCE.replace("if (each ==", "if (each\n ==")), [])

    def test_misses_a_function_without_a_mutant(self):
        found = self.complaints(LIST.replace("A::turn\n- if (each ==\n+ if (each !=", ""))
        self.assert_complaint(found, "no mutant of A::turn")

    def test_sees_a_function_that_is_new(self):
        source = SOURCE + "\nnamespace brisel {\nint more() { return 1; }\n}\n"
        self.assert_complaint(self.complaints(LIST, source), "no mutant of more")

    def test_sees_words_that_stand_nowhere(self):
        found = self.complaints(LIST.replace("{1, 2}", "{1, 3}"))
        self.assert_complaint(found, "app/A.cpp:15: these words stand nowhere in (declarations)")

    def test_sees_words_that_stand_in_another_function(self):
        found = self.complaints(LIST + "\nA::turn\n- free(buffer);\n")
        self.assert_complaint(found, "stand nowhere in A::turn")

    def test_sees_words_that_stand_twice(self):
        found = self.complaints(LIST + "\nA::turn\n- each\n+ other\n")
        self.assert_complaint(found, "times in A::turn")

    def test_sees_a_function_that_is_not_there(self):
        found = self.complaints(LIST + "\nA::go\n- each\n+ other\n")
        self.assert_complaint(found, "src/app/A.cpp has no function A::go")

    def test_sees_a_mutant_that_is_listed_twice(self):
        found = self.complaints(LIST + "\nA::A\n- size_(size)\n+ size_(0)\n")
        self.assert_complaint(found, "listed twice")

    def test_sees_a_mutant_that_changes_nothing(self):
        self.assert_complaint(self.complaints(LIST.replace("+ if (each !=", "+ if (each  ==")),
                              "changes nothing")
        self.assert_complaint(self.complaints(LIST + "\nA::A\n+ more();\n"), "changes nothing")

    def test_sees_a_survivor_without_a_reason(self):
        self.assert_complaint(self.complaints(LIST.replace("nobody asks.", "")), "survives: ")

    def test_sees_a_line_that_is_none_of_a_list(self):
        self.assert_complaint(self.complaints(LIST + "more\n"), "more")

    def test_sees_a_list_that_has_no_source(self):
        found = self.complaints(LIST, name="B.cpp")
        self.assertIn("tests/mutation/app/B.cpp.mutants: there is no src/app/B.cpp", found)

    def test_sees_that_mutants_have_gone(self):
        self.assert_complaint(self.complaints(LIST, fewest=5), "4 mutants; there were at least 5")


class AMutant(unittest.TestCase):
    def test_is_made_where_its_words_stand(self):
        turned = mutants.read_list(LIST, "app/A.cpp")[2]
        self.assertEqual(mutants.mutated(turned, SOURCE),
                         SOURCE.replace("each == '}'", "each != '}'"))

    def test_leaves_words_out_where_none_are_to_be_put(self):
        left_out = mutants.read_list(LIST, "app/A.cpp")[0]
        self.assertEqual(mutants.mutated(left_out, SOURCE), SOURCE.replace("free(buffer);", ""))


if __name__ == "__main__":
    unittest.main()
