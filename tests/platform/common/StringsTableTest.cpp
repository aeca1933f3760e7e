// Parsing of .strings tables, and the bundle that embeds them.
// SPDX-License-Identifier: MIT
#include "platform/common/StringsTable.h"

#include <algorithm>

#include "platform/common/Bundle.h"
#include "tests/support/Matchers.h"

namespace brisel::tests {
namespace {

using platform::common::Bundle;
using platform::common::embeddedTables;
using platform::common::StringsTable;

StringsTable parsed(std::string_view text) {
    const auto table = StringsTable::parse(text);
    EXPECT_TRUE(table) << text;
    return table.value_or(StringsTable());
}

TEST(StringsTable, HoldsItsPairs) {
    EXPECT_THAT(parsed("\"a\" = \"1\";\n\"b\"=\"2\" ;").texts(),
                ElementsAre(Pair("a", "1"), Pair("b", "2")));
}

TEST(StringsTable, SkipsComments) {
    EXPECT_THAT(parsed("/* \"x\" = */ // y\n\"a\" /* in */ = // end\n \"1\"; /**/ // last").texts(),
                ElementsAre(Pair("a", "1")));
}

TEST(StringsTable, ResolvesEscapes) {
    EXPECT_THAT(parsed(R"("q\"\\" = "n\nt\t\"";)").texts(), ElementsAre(Pair("q\"\\", "n\nt\t\"")));
}

TEST(StringsTable, KeepsCommentMarksInsideTexts) {
    EXPECT_THAT(parsed(R"("a" = "/* // */";)").texts(), ElementsAre(Pair("a", "/* // */")));
}

TEST(StringsTable, MayBeEmpty) {
    for (const auto* const text : {"", " \r\n\t", "// nothing", "/* nothing */"})
        EXPECT_TRUE(parsed(text).texts().empty());
}

TEST(StringsTable, KeepsTheLastOfEqualKeys) {
    EXPECT_THAT(parsed(R"("a" = "1"; "a" = "2";)").texts(), ElementsAre(Pair("a", "2")));
}

TEST(StringsTable, ReturnsTheKeyIfItIsUnknown) {
    EXPECT_EQ(parsed(R"("a" = "1";)").localizedString("a"), "1");
    EXPECT_EQ(parsed(R"("a" = "1";)").localizedString("%@ b"), "%@ b");
}

TEST(StringsTable, IsAbsentIfTheTextIsMalformed) {
    for (const auto* const text :
         {"a", "\"a\"", "\"a\" =", "\"a\" = \"1\"", "\"a\" = \"1\", \"b\"", "\"a\" \"1\";",
          "\"a\" = \"1;", "\"a = 1;", "/* no end", "\"a\" = \"1\"; /* no end", "/", "\"a\" = 1;",
          "\"a\" = \"1\\", "= \"1\";", ";", "\"a\" = \"1\";;", "/*/", "\"a\" = /* \"1\";"}) {
        EXPECT_FALSE(StringsTable::parse(text)) << text;
    }
}

TEST(StringsTable, SurvivesATextCutAnywhere) {
    const std::string text = "/* c */ \"a\\n\" = \"b\\\"\"; // d\n\"e\" = \"f\";";
    for (std::size_t length = 0; length <= text.size(); ++length)
        static_cast<void>(StringsTable::parse(text.substr(0, length)));
    EXPECT_EQ(parsed(text).texts().size(), 2U);
}

/// `wanted` if a table of this language is embedded, else empty.
std::string someLanguage(const char* wanted) {
    const auto& tables = embeddedTables();
    const auto found = std::find_if(tables.begin(), tables.end(), [wanted](const auto& table) {
        return table.language == wanted;
    });
    return found == tables.end() ? "" : std::string(found->language);
}

std::string textIn(const std::string& language) {
    Bundle bundle;
    bundle.setLanguage(language);
    return bundle.localizedString("mount manually");
}

TEST(Bundle, DefaultsToEnglish) {
    EXPECT_EQ(Bundle().localizedString("mount manually"), "mount manually");
    EXPECT_EQ(someLanguage("en"), "en");
}

TEST(Bundle, HoldsWellFormedTables) {
    for (const auto& table : embeddedTables())
        EXPECT_TRUE(StringsTable::parse(table.text)) << table.language;
}

TEST(Bundle, FallsBackToThePlainLanguage) {
    for (const auto& table : embeddedTables()) {
        const std::string language(table.language);
        EXPECT_EQ(textIn(language + "-XX"), textIn(language));
        EXPECT_EQ(textIn(language + "-Abcd-XX"), textIn(language));
    }
}

TEST(Bundle, FallsBackToEnglish) {
    for (const auto* const language : {"xx", "xx-YY", "", "-", "e", "english"})
        EXPECT_EQ(textIn(language), "mount manually") << language;
}

TEST(Bundle, SpeaksEachLanguageThatItHolds) {
    for (const auto& table : embeddedTables()) {
        const auto texts = StringsTable::parse(table.text).value_or(StringsTable());
        EXPECT_EQ(textIn(std::string(table.language)), texts.localizedString("mount manually"));
    }
}

TEST(Bundle, HoldsTheTenImages) {
    const Bundle bundle;
    for (const auto* const colour : {"grey", "green", "blue", "orange", "red"}) {
        EXPECT_TRUE(bundle.hasImage(std::string("brisel-status-") + colour + "-dark"));
        EXPECT_TRUE(bundle.hasImage(std::string("brisel-status-") + colour + "-light"));
    }
    EXPECT_FALSE(bundle.hasImage("brisel-status-grey"));
    EXPECT_FALSE(bundle.hasImage(""));
}

}  // namespace
}  // namespace brisel::tests
