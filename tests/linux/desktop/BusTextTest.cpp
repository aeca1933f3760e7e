// Sanitising text for D-Bus, and the menu's item numbers.
// SPDX-License-Identifier: MIT
#include "platform/desktop/BusText.h"

#include <gtest/gtest.h>

#include "platform/desktop/NumberedMenu.h"

namespace brisel::platform::desktop {

namespace {

TEST(BusText, LeavesHarmlessTextUnchanged) {
    EXPECT_EQ(busText("Fotos \xc3\xa9t\xc3\xa9 \xf0\x9f\x93\xb7"),
              "Fotos \xc3\xa9t\xc3\xa9 \xf0\x9f\x93\xb7");
    EXPECT_EQ(busText("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d"), "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
    EXPECT_EQ(busText(""), "");
}

TEST(BusText, ShowsControlCharacters) {
    EXPECT_EQ(busText("a\tb\nc\x1b"
                      "d\x7f\xc2\x9b"),
              "a^Ib^Jc^[d^??");
}

TEST(BusText, IsAlwaysValid) {
    EXPECT_EQ(busText("\xff\xc3"), "\xef\xbf\xbd\xef\xbf\xbd");
    EXPECT_EQ(busText("\xed\xa0\x80"), "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd");
    EXPECT_EQ(busText(std::string("a\0b", 3)),
              "a\xef\xbf\xbd"
              "b");
}

TEST(BusText, HasNoBidirectionalControls) {
    for (const char* const turning :
         {"\xe2\x80\xaa", "\xe2\x80\xab", "\xe2\x80\xac", "\xe2\x80\xad", "\xe2\x80\xae",
          "\xe2\x81\xa6", "\xe2\x81\xa7", "\xe2\x81\xa8", "\xe2\x81\xa9"})
        EXPECT_EQ(busText(std::string("a") + turning + "b"), "ab");
}

TEST(BusText, BreaksNoLine) {
    EXPECT_EQ(busText("a\xe2\x80\xa8"
                      "b\xe2\x80\xa9"
                      "c"),
              "abc");
}

class NumberedItems : public testing::Test {
  protected:
    static MenuItem item(const std::string& title) { return {.title = title, .action = "do:"}; }

    NumberedMenu menu_;
};

TEST_F(NumberedItems, ThatAreEqualHaveDifferentNumbers) {
    const auto entries = menu_.update({item("Same"), item("Same"), item("Same")});
    EXPECT_NE(entries.at(0).number, entries.at(1).number);
    EXPECT_EQ(menu_.update({item("Same"), item("Same"), item("Same")}), entries);
}

TEST_F(NumberedItems, KeepTheirNumberWhenTheirCheckMarkChanges) {
    auto login = item("Login");
    const auto before = menu_.update({login}).front().number;
    login.checked = true;
    EXPECT_EQ(menu_.update({login}).front().number, before);
    EXPECT_TRUE(menu_.itemWithNumber(before)->checked);
}

}  // namespace

}  // namespace brisel::platform::desktop
