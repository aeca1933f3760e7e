// The localised texts: each language is complete, and so is the English table.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "platform/common/StringsTable.h"

namespace brisel::tests {
namespace {

namespace fs = std::filesystem;
using platform::common::StringsTable;
using Texts = std::map<std::string, std::string>;

const fs::path Sources = BRISEL_SOURCE_FOLDER;

std::string contentsOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

Texts tableIn(const fs::path& folder) {
    const auto table = StringsTable::parse(contentsOf(folder / "Localizable.strings"));
    EXPECT_TRUE(table) << folder << " is malformed";
    return table ? Texts(table->texts().begin(), table->texts().end()) : Texts();
}

const Texts& english() {
    static const auto texts = tableIn(Sources / "resources/en.lproj");
    return texts;
}

std::set<std::string> keysOf(const Texts& texts) {
    std::set<std::string> keys;
    for (const auto& [key, text] : texts)
        keys.insert(key);
    return keys;
}

std::size_t placeholdersIn(const std::string& text) {
    static const std::regex placeholder("%@");
    return static_cast<std::size_t>(
        std::distance(std::sregex_iterator(text.begin(), text.end(), placeholder), {}));
}

/// All string literals of `source`: adjacent ones joined, escaped quotes resolved, raw ones
/// verbatim.
std::set<std::string> literalsIn(const std::string& source) {
    static const std::regex runs(
        R"re((R"\(([^]*?)\)"|"(\\.|[^"\\\n])*")(\s*"(\\.|[^"\\\n])*")*)re");
    static const std::regex joints(R"("\s*")");
    static const std::regex escapedQuotes(R"(\\")");
    std::set<std::string> literals;
    for (std::sregex_iterator run(source.begin(), source.end(), runs);
         run != std::sregex_iterator(); ++run) {
        const auto text = run->str();
        if (text.starts_with("R\"(")) {
            literals.insert(text.substr(3, text.rfind(")\"") - 3));
            continue;
        }
        const auto inner = text.substr(1, text.size() - 2);
        literals.insert(
            std::regex_replace(std::regex_replace(inner, joints, ""), escapedQuotes, "\""));
    }
    return literals;
}

/// The literals passed directly to localizedString.
std::set<std::string> keysAskedForDirectlyIn(const std::string& source) {
    static const std::regex calls(
        R"re(localizedString\(\s*((R"\([^]*?\)"|"(\\.|[^"\\\n])*")(\s*"(\\.|[^"\\\n])*")*)\s*\))re");
    std::set<std::string> keys;
    for (std::sregex_iterator call(source.begin(), source.end(), calls);
         call != std::sregex_iterator(); ++call) {
        keys.merge(literalsIn((*call)[1].str()));
    }
    return keys;
}

/// Merges `collect(source)` over the sources of the core and of platform/common.
template <typename Collect>
std::set<std::string> collectFromTheCore(Collect collect) {
    std::set<std::string> found;
    for (const auto* const folder :
         {"app", "mounting", "privileged", "volumes", "platform/common"}) {
        for (const auto& entry : fs::directory_iterator(Sources / "src" / folder)) {
            const auto extension = entry.path().extension();
            if (extension != ".cpp" && extension != ".h") continue;
            found.merge(collect(contentsOf(entry.path())));
        }
    }
    return found;
}

TEST(EnglishTable, HoldsEveryKeyThatTheSourcesAskFor) {
    const auto asked = collectFromTheCore(keysAskedForDirectlyIn);
    EXPECT_GT(asked.size(), 10U);
    for (const auto& key : asked)
        EXPECT_TRUE(english().contains(key)) << key;
}

TEST(EnglishTable, HoldsNoKeyThatIsNotInTheSources) {
    const auto literals = collectFromTheCore(literalsIn);
    for (const auto& key : keysOf(english()))
        EXPECT_TRUE(literals.contains(key)) << key;
}

// Lists the keys that reach localizedString in a variable; the scan of the sources misses them.
TEST(EnglishTable, HoldsTheTextsThatAreLookedUpByAVariable) {
    for (const auto* const key :
         {"no NTFS volume", "a volume is read-only", "a volume is writable", "working",
          "something went wrong", "Brisel is operating ...", "No NTFS Volumes to re-mount",
          "show %@ in Finder", "re-mount %@", "unmount", "remove all extended attributes",
          "mount automatically", "mount manually", "Volume \"%@\" not unmountable",
          "Volume \"%@\" not re-mountable",
          "The volume is not unmountable. Probably it is still used by another application.",
          "The volume is not re-mountable in read/write mode. Probably it was not clean unmounted "
          "before."}) {
        EXPECT_TRUE(english().contains(key)) << key;
    }
}

TEST(EnglishTable, SaysEachTextAsItsKey) {
    for (const auto& [key, text] : english())
        EXPECT_EQ(text, key);
}

std::vector<fs::path> languageFoldersIn(const fs::path& resources) {
    std::vector<fs::path> folders;
    for (const auto& entry : fs::directory_iterator(Sources / resources)) {
        if (entry.path().extension() == ".lproj") folders.push_back(entry.path());
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}

/// A folder of the shared tables, or of those that Linux lays over them.
class LanguageTable : public testing::TestWithParam<fs::path> {
  protected:
    const Texts texts = tableIn(GetParam());
    const Texts inEnglish = tableIn(GetParam().parent_path() / "en.lproj");
};

TEST_P(LanguageTable, HasTheKeysOfTheEnglishOne) {
    EXPECT_EQ(keysOf(texts), keysOf(inEnglish));
}

TEST_P(LanguageTable, KeepsThePlaceholders) {
    for (const auto& [key, text] : texts)
        EXPECT_EQ(placeholdersIn(text), placeholdersIn(key)) << key;
}

TEST_P(LanguageTable, LeavesNoTextEmpty) {
    for (const auto& [key, text] : texts)
        EXPECT_FALSE(text.empty()) << key;
}

TEST_P(LanguageTable, LeavesNoTextInEnglish) {
    if (GetParam().stem() == "en") return;
    for (const auto& [key, text] : texts) {
        // "OK" is a word of most of the languages.
        if (key == "OK") continue;
        EXPECT_NE(text, inEnglish.at(key));
    }
}

std::string languageOf(const testing::TestParamInfo<fs::path>& info) {
    auto name = info.param.stem().string();
    std::erase_if(name, [](char character) { return std::isalnum(character) == 0; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Of, LanguageTable, testing::ValuesIn(languageFoldersIn("resources")),
                         languageOf);
INSTANTIATE_TEST_SUITE_P(OfLinux, LanguageTable,
                         testing::ValuesIn(languageFoldersIn("resources/linux")), languageOf);

TEST(LanguageTablesOfLinux, ReplaceTextsInEveryLanguage) {
    EXPECT_EQ(languageFoldersIn("resources/linux").size(), languageFoldersIn("resources").size());
    for (const auto& [key, text] : tableIn(Sources / "resources/linux/en.lproj"))
        EXPECT_TRUE(english().contains(key)) << key;
}

}  // namespace
}  // namespace brisel::tests
