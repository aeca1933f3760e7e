// The status menu as a list of items.
// SPDX-License-Identifier: MIT
#include "platform/common/Menu.h"

#include <array>

#include "tests/support/Matchers.h"

namespace brisel::tests {
namespace {

class Menu : public testing::Test {
  protected:
    platform::common::Menu menu;
    static platform::MenuItem item(const std::string& title, int tag = 0) {
        platform::MenuItem made;
        made.title = title;
        made.tag = tag;
        return made;
    }
    std::vector<std::string> titles() const {
        std::vector<std::string> texts;
        for (const auto& one : menu.items())
            texts.push_back(one.title);
        return texts;
    }
};

TEST_F(Menu, InsertsBeforeTheItemAtTheIndex) {
    menu.load({item("a"), item("b")});
    menu.insertItem(item("first"), 0);
    menu.insertItem(item("middle"), 2);
    menu.insertItem(item("last"), 4);
    EXPECT_THAT(titles(), ElementsAre("first", "a", "middle", "b", "last"));
}

TEST_F(Menu, RemovesEveryItemOfTheTags) {
    menu.load({item("a", 1), item("b", 2), item("c", 3), item("d", 1)});
    menu.removeItemsWithTags(std::array{1, 3});
    EXPECT_THAT(titles(), ElementsAre("b"));
}

TEST_F(Menu, ChecksTheItemOfTheAction) {
    auto one = item("a");
    one.action = "a:";
    auto other = item("b");
    other.action = "b:";
    menu.load({one, other});
    menu.setChecked("b:", true);
    EXPECT_FALSE(menu.items()[0].checked);
    EXPECT_TRUE(menu.items()[1].checked);
    menu.setChecked("b:", false);
    EXPECT_FALSE(menu.items()[1].checked);
}

}  // namespace
}  // namespace brisel::tests
