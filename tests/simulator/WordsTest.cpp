// The words of one command line.
// SPDX-License-Identifier: MIT
#include "simulator/Words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brisel::tests {
namespace {

using simulator::parseNumber;
using simulator::splitIntoWords;
using simulator::splitKeyAndValue;
using simulator::Words;

Words words(std::string_view line) {
    const auto split = splitIntoWords(line);
    EXPECT_TRUE(split) << line;
    return split.value_or(Words{"unsplit"});
}

TEST(Words, AreSeparatedByBlanks) {
    EXPECT_EQ(words("  attach\tdisk4s1   kind=ntfs "), (Words{"attach", "disk4s1", "kind=ntfs"}));
    EXPECT_EQ(words(""), Words());
    EXPECT_EQ(words(" \t "), Words());
}

TEST(Words, KeepBlanksInsideQuotes) {
    EXPECT_EQ(words(R"(press "OK, I understand.")"), (Words{"press", "OK, I understand."}));
}

TEST(Words, MayBeQuotedAnywhere) {
    EXPECT_EQ(words(R"(name="My Data" "name=My Data" na"me=My Da"ta)"),
              (Words{"name=My Data", "name=My Data", "name=My Data"}));
}

TEST(Words, MayBeEmpty) {
    EXPECT_EQ(words(R"("" a"" "")"), (Words{"", "a", ""}));
}

TEST(Words, ResolveEscapesInsideQuotes) {
    EXPECT_EQ(words(R"("a\"b" "a\\b" "a\nb")"), (Words{"a\"b", "a\\b", "a\nb"}));
    EXPECT_EQ(words(R"("\\n" "\\\"")"), (Words{"\\n", "\\\""}));
}

TEST(Words, KeepBackslashesElsewhere) {
    EXPECT_EQ(words(R"(a\nb "a\tb")"), (Words{"a\\nb", "a\\tb"}));
}

TEST(Words, AreNoneWhereAQuoteDoesNotEnd) {
    for (const auto* const line : {"\"", "a \"b", "\"a\\\"", "a\"b\"c\""})
        EXPECT_FALSE(splitIntoWords(line)) << line;
}

TEST(Words, HoldAnyBytes) {
    EXPECT_EQ(words("\xFF\x01 \xC3\xA9"), (Words{"\xFF\x01", "\xC3\xA9"}));
}

TEST(KeyAndValue, AreSplitAtTheFirstEqualsSign) {
    EXPECT_EQ(splitKeyAndValue("a=b=c"), (std::pair<std::string, std::string>("a", "b=c")));
    EXPECT_EQ(splitKeyAndValue("a="), (std::pair<std::string, std::string>("a", "")));
    EXPECT_EQ(splitKeyAndValue("=a"), (std::pair<std::string, std::string>("", "a")));
    EXPECT_EQ(splitKeyAndValue("a"), std::nullopt);
}

TEST(Number, IsDecimalOrHexadecimal) {
    EXPECT_EQ(parseNumber("0"), 0);
    EXPECT_EQ(parseNumber("-60006"), -60006);
    EXPECT_EQ(parseNumber("0xF8DA0002"), 0xF8DA0002);
    EXPECT_EQ(parseNumber("0Xff"), 255);
}

TEST(Number, IsNothingElse) {
    for (const auto* const word : {"", "x", "12a", "0x", "0x-1", "0xG", "-", "--1", " 1", "1 ",
                                   "+1", "1.5", "99999999999999999999", "-0x1"}) {
        EXPECT_EQ(parseNumber(word), std::nullopt) << word;
    }
}

}  // namespace
}  // namespace brisel::tests
