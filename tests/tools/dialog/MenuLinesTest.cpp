// Lines of a menu window: the entries that it reads and the replies that it prints.
// SPDX-License-Identifier: MIT
#include "tools/dialog/MenuLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "tools/dialog/Protocol.h"

namespace brisel::dialog {

namespace {

using testing::ElementsAre;

TEST(AMenuLine, HoldsIDKindAndTitle) {
    const auto entry = menuLineFrom("7\titem\tre-mount Data");
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->id, "7");
    EXPECT_EQ(entry->kind, MenuLineKind::Item);
    EXPECT_EQ(entry->title, "re-mount Data");
}

TEST(AMenuLine, MayBeOfAnyKind) {
    EXPECT_EQ(menuLineFrom("1\tchecked\ta")->kind, MenuLineKind::CheckedItem);
    EXPECT_EQ(menuLineFrom("1\ttext\ta")->kind, MenuLineKind::Text);
    EXPECT_EQ(menuLineFrom("1\tseparator\t")->kind, MenuLineKind::Separator);
    EXPECT_EQ(menuLineFrom("\tseparator\t")->kind, MenuLineKind::Separator);
}

TEST(AMenuLine, KeepsItsIDAndMakesItsTitleFitToBeShown) {
    const auto entry = menuLineFrom("\x1b\xff\titem\tA\tB\x1b\xff");
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->id, "\x1b\xff");
    EXPECT_EQ(entry->title, "A B\xef\xbf\xbd\xef\xbf\xbd");
}

TEST(AMenuLine, IsNoEntryInAnyOtherForm) {
    for (const char* const line : {"", "item", "1\titem", "1\tseparator", "1\tItem\ta", "1\t\ta",
                                   "\titem\ta", "\tchecked\ta", "1\titem\t", "1 item a"})
        EXPECT_FALSE(menuLineFrom(line).has_value()) << line;
}

TEST(AMenu, LeavesOutLinesThatAreNoEntries) {
    std::istringstream lines("1\titem\tone\nnonsense\n\n2\tchecked\ttwo");
    std::vector<std::string> titles;
    for (const auto& entry : readMenuLines(lines))
        titles.push_back(entry.title);
    EXPECT_THAT(titles, ElementsAre("one", "two"));
}

TEST(ALineToTheStarter, ReportsTheEvent) {
    EXPECT_EQ(shownLine(), "shown\n");
    EXPECT_EQ(answerLine("12"), "pressed 12\n");
    EXPECT_EQ(answerLine(std::nullopt), "closed\n");
}

}  // namespace

}  // namespace brisel::dialog
