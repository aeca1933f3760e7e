// Parsing of xattr's command line.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brisel::xattr {

namespace {

using testing::ElementsAre;
using Words = std::vector<const char*>;

TEST(CommandLine, TakesTheOptionsInAnyUsualForm) {
    for (const auto& words : {Words{"-cr", "a"}, Words{"-rc", "a"}, Words{"-c", "-r", "a"},
                              Words{"-r", "-c", "--", "a"}}) {
        const auto arguments = argumentsFrom(words);
        EXPECT_EQ(arguments.action, Action::Clear) << words.size() << words.front();
        EXPECT_EQ(arguments.depth, Depth::EverythingBelow) << words.size() << words.front();
        EXPECT_THAT(arguments.paths, ElementsAre("a")) << words.size() << words.front();
    }
}

TEST(CommandLine, IsNotRecursiveByDefault) {
    EXPECT_EQ(argumentsFrom(Words{"-c", "a"}).depth, Depth::ItselfOnly);
}

TEST(CommandLine, EndsTheOptionsAtTheFirstPath) {
    EXPECT_THAT(argumentsFrom(Words{"-cr", "/media/My", "-x", "--", "Disk"}).paths,
                ElementsAre("/media/My", "-x", "--", "Disk"));
    EXPECT_THAT(argumentsFrom(Words{"-c", "--", "-r"}).paths, ElementsAre("-r"));
    EXPECT_THAT(argumentsFrom(Words{"-c", "-"}).paths, ElementsAre("-"));
    EXPECT_THAT(argumentsFrom(Words{"-c", ""}).paths, ElementsAre(""));
}

TEST(CommandLine, PrintsItsUsageOnRequest) {
    EXPECT_EQ(argumentsFrom(Words{"--help"}).action, Action::ShowUsage);
    EXPECT_EQ(argumentsFrom(Words{"-c", "--help", "a"}).action, Action::ShowUsage);
}

TEST(CommandLine, IsNotUnderstoodInAnyOtherForm) {
    for (const auto& words :
         {Words{}, Words{"-c"}, Words{"-cr", "--"}, Words{"a"}, Words{"-r", "a"}, Words{"-cx", "a"},
          Words{"-l", "a"}, Words{"--clear", "a"}})
        EXPECT_EQ(argumentsFrom(words).action, Action::NotUnderstood)
            << testing::PrintToString(words);
}

}  // namespace

}  // namespace brisel::xattr
