// Parsing of brisel-dialog's command line.
// SPDX-License-Identifier: MIT
#include "tools/dialog/DialogRequest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brisel::dialog {

namespace {

using testing::ElementsAre;
using Words = std::vector<const char*>;

TEST(ARequest, ForAnAlertHasTextsAndButtons) {
    const auto request =
        dialogRequestFrom(Words{"alert", "Message\n!", "two\nlines", "Yes", "N\xff"});
    ASSERT_TRUE(request && std::holds_alternative<AlertRequest>(*request));
    const auto& alert = std::get<AlertRequest>(*request);
    EXPECT_EQ(alert.message, "Message !");
    EXPECT_EQ(alert.informative, "two\nlines");
    EXPECT_THAT(alert.buttons, ElementsAre("Yes", "N\xef\xbf\xbd"));
}

TEST(ARequest, DoesNotTakeTextsForOptions) {
    const auto request = dialogRequestFrom(Words{"alert", "--help", "", "--display=:7"});
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(std::get<AlertRequest>(*request).message, "--help");
    EXPECT_THAT(std::get<AlertRequest>(*request).buttons, ElementsAre("--display=:7"));
}

TEST(ARequest, MayBeForTheAboutBoxOrAMenu) {
    EXPECT_TRUE(std::holds_alternative<AboutRequest>(dialogRequestFrom(Words{"about"}).value()));
    const auto menu = dialogRequestFrom(Words{"menu", "a\tb"});
    ASSERT_TRUE(menu && std::holds_alternative<MenuRequest>(*menu));
    EXPECT_EQ(std::get<MenuRequest>(*menu).title, "a b");
}

TEST(ARequest, IsNotMadeOfOtherWords) {
    for (const auto& words :
         {Words{}, Words{"alert"}, Words{"alert", "a", "b"}, Words{"about", "a"}, Words{"menu"},
          Words{"menu", "a", "b"}, Words{"Alert", "a", "b", "c"}, Words{"--help"}})
        EXPECT_FALSE(dialogRequestFrom(words).has_value()) << testing::PrintToString(words);
}

}  // namespace

}  // namespace brisel::dialog
