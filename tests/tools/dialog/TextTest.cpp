// Sanitising untrusted texts for display.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Text.h"

#include <gtest/gtest.h>

namespace brisel::dialog {

namespace {

const std::string Replacement = "\xef\xbf\xbd";

TEST(AText, StaysAsItIsWhenItCanBeShown) {
    const std::string text = "<b>M\xc3\xa4rz</b> &amp;\n\n\xe6\x97\xa5\xe6\x9c\xac \xd7\xa9 _x%s";
    EXPECT_EQ(sanitizedText(text), text);
}

TEST(AText, ReplacesInvalidUTF8) {
    EXPECT_EQ(sanitizedText("a\xff\xc3z"), "a" + Replacement + Replacement + "z");
    EXPECT_EQ(sanitizedText("cut \xe2\x82"), "cut " + Replacement + Replacement);
}

TEST(AText, LosesControlCharacters) {
    EXPECT_EQ(sanitizedText("\x1b[31m\x7f\xc2\x9b"),
              Replacement + "[31m" + Replacement + Replacement);
    EXPECT_EQ(sanitizedText(std::string_view("a\0b", 3)), "a" + Replacement + "b");
    EXPECT_EQ(sanitizedText("a\tb\r\nc"), "a b \nc");
    EXPECT_EQ(sanitizedText("a\xe2\x80\xa8"
                            "b\xe2\x80\xa9"
                            "c"),
              "a b c");
}

TEST(AText, HasNoBidirectionalControls) {
    EXPECT_EQ(sanitizedText("\xe2\x80\xaa\xe2\x80\xae\xe2\x81\xa6\xe2\x81\xa9"),
              Replacement + Replacement + Replacement + Replacement);
    EXPECT_EQ(sanitizedText("\xe2\x80\xa7\xe2\x80\xaf\xe2\x81\xa5\xe2\x81\xaa"),
              "\xe2\x80\xa7\xe2\x80\xaf\xe2\x81\xa5\xe2\x81\xaa");
}

TEST(ALine, HasNoLineEndsAndEndsWithAnEllipsisIfSomethingIsMissing) {
    EXPECT_EQ(sanitizedLine("one\ntwo\n"), "one two ");
    EXPECT_EQ(shortened("\xc3\xa4\xc3\xb6\xc3\xbc", 3), "\xc3\xa4\xc3\xb6\xc3\xbc");
    EXPECT_EQ(shortened("\xc3\xa4\xc3\xb6\xc3\xbc.", 3), "\xc3\xa4\xc3\xb6\xe2\x80\xa6");
    EXPECT_EQ(shortened("", 3), "");
}

}  // namespace

}  // namespace brisel::dialog
