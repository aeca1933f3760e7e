// Format strings and their arguments.
// SPDX-License-Identifier: MIT
#include "platform/Format.h"

#include <gtest/gtest.h>

namespace brisel::tests {
namespace {

using platform::lowercased;
using platform::orNullText;
using platform::stringWithFormat;

TEST(Format, ReplacesEachKindOfPlaceholder) {
    EXPECT_EQ(stringWithFormat("%@ %s %i %lu.", "a", std::string("b"), -3, 4UL), "a b -3 4.");
    EXPECT_EQ(stringWithFormat("%@%@", std::string_view("x"), "y"), "xy");
}

TEST(Format, PrintsAMissingValueAsNull) {
    EXPECT_EQ(stringWithFormat("<%@>", std::optional<std::string>()), "<(null)>");
    EXPECT_EQ(stringWithFormat("<%@>", std::optional<platform::FileURL>()), "<(null)>");
    EXPECT_EQ(orNullText(std::nullopt), "(null)");
    EXPECT_EQ(orNullText("Data"), "Data");
    EXPECT_EQ(orNullText(""), "");
}

TEST(Format, PrintsAURLInFull) {
    EXPECT_EQ(stringWithFormat("%@", std::optional(platform::FileURL("/a b"))), "file:///a%20b/");
}

TEST(Format, PrintsAnEmptyTextAsNothing) {
    EXPECT_EQ(stringWithFormat("<%@>", ""), "<>");
    EXPECT_EQ(stringWithFormat("<%@>", std::optional<std::string>("")), "<>");
}

TEST(Format, NeverReadsAnArgumentAsAFormat) {
    EXPECT_EQ(stringWithFormat("%@-%@", "%@", "x"), "%@-x");
    EXPECT_EQ(stringWithFormat("%@", "%s%i%lu%%"), "%s%i%lu%%");
}

TEST(Format, LeavesAPlaceholderWithoutAnArgument) {
    EXPECT_EQ(stringWithFormat("Couldn't %@ it"), "Couldn't %@ it");
    EXPECT_EQ(stringWithFormat("%@ %@", "x"), "x %@");
}

TEST(Format, DropsArgumentsWithoutAPlaceholder) {
    EXPECT_EQ(stringWithFormat("x", "y"), "x");
}

TEST(Format, LeavesAnyOtherPercentSignAlone) {
    EXPECT_EQ(stringWithFormat("100% %d %l %", "x"), "100% %d %l %");
}

TEST(Format, LeavesTheFormatsQuotesAlone) {
    EXPECT_EQ(stringWithFormat(R"(Volume "%@")", "Data"), R"(Volume "Data")");
}

TEST(LowerCase, ConvertsASCIILettersOnly) {
    EXPECT_EQ(lowercased("NTFS-AZ09[@`{\xC3\x89"), "ntfs-az09[@`{\xC3\x89");
}

}  // namespace
}  // namespace brisel::tests
