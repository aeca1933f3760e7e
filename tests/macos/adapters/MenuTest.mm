// The status menu adapter.
// SPDX-License-Identifier: MIT
#include "platform/macos/Menu.h"

#include <array>

#import "platform/macos/Text.h"
#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

using platform::MenuItem;
using platform::macos::stdString;

class MenuAdapter : public AdapterTest {
  protected:
    MenuAdapter() {
        [StageApplication sharedApplication];
        menu = [[[NSMenu alloc] initWithTitle:@"Status"] autorelease];
        check = [[[NSMenuItem alloc] initWithTitle:@"Start at Login"
                                            action:@selector(toggleStartAtLogin:)
                                     keyEquivalent:@""] autorelease];
        NSMenuItem* const quit = [[[NSMenuItem alloc] initWithTitle:@"Quit"
                                                             action:@selector(terminate:)
                                                      keyEquivalent:@""] autorelease];
        [menu addItem:check];
        [menu addItem:quit];
        adapter->connect(menu, check, mac.bundle);
    }

    NSMenu* menu;
    NSMenuItem* check;
    std::optional<platform::macos::Menu> adapter{std::in_place};
    std::vector<std::string> performed;

    [[nodiscard]] std::vector<std::string> titles() const {
        std::vector<std::string> found;
        for (const auto& item : itemsOf(menu))
            found.push_back(item.separator ? "---" : item.title);
        return found;
    }
    /// An item that records that it is chosen.
    MenuItem item(const std::string& title, int tag = 1) {
        MenuItem made;
        made.tag = tag;
        made.title = title;
        made.action = "remountVolume:";
        made.target = [this](const MenuItem& sender) { performed.push_back(sender.title); };
        return made;
    }
    void choose(NSInteger index) {
        [menu update];
        [menu performActionForItemAtIndex:index];
    }
};

TEST_F(MenuAdapter, HoldsTheNibsMenu) {
    EXPECT_EQ(adapter->menu(), menu);
    EXPECT_EQ(platform::macos::insertedItem(check), nullptr);
}

TEST_F(MenuAdapter, AlignsTheWholeTitle) {
    auto made = item("Größe 💾 end");
    made.alignment = 1;
    adapter->insertItem(made, 0);
    NSAttributedString* const title = [[menu itemAtIndex:0] attributedTitle];
    EXPECT_EQ(stdString([title string]), "Größe 💾 end");
    NSRange range;
    [title attribute:NSParagraphStyleAttributeName atIndex:0 effectiveRange:&range];
    EXPECT_EQ(range.length, [title length]);
}

TEST_F(MenuAdapter, LeavesUnsetPropertiesUnset) {
    MenuItem made;
    made.title = "plain";
    adapter->insertItem(made, 0);
    id const seen = [menu itemAtIndex:0];
    EXPECT_EQ([seen action], nullptr);
    EXPECT_EQ([seen target], nil);
    EXPECT_EQ([seen attributedTitle], nil);
    EXPECT_EQ([seen state], NSControlStateValueOff);
    EXPECT_EQ([seen tag], 0);
    [menu update];
    EXPECT_FALSE([seen isEnabled]);
}

TEST_F(MenuAdapter, LogsAnInvalidIndexAndContinues) {
    adapter->insertItem(item("too far"), 3);
    EXPECT_THAT(titles(), ElementsAre("Start at Login", "Quit"));
    EXPECT_THAT(logLines(), ElementsAre(StartsWith("The system refused to insert")));
    adapter->insertItem(item("fine"), 2);
    EXPECT_THAT(titles(), ElementsAre("Start at Login", "Quit", "fine"));
}

TEST_F(MenuAdapter, MayBeRebuiltByTheItemThatIsChosen) {
    auto made = item("a");
    made.target = [this, label = std::string("performed ")](const MenuItem& sender) {
        @autoreleasepool {
            const std::array tags{1};
            adapter->removeItemsWithTags(tags);
        }
        adapter->insertItem(item("new"), 0);
        performed.push_back(label + sender.title);
    };
    @autoreleasepool {
        adapter->insertItem(std::move(made), 0);
    }
    // The menu holds the only reference to the item, and releases it meanwhile.
    const id chosen = [menu itemAtIndex:0];
    [[chosen target] performSelector:[chosen action] withObject:chosen];
    choose(0);
    EXPECT_THAT(performed, ElementsAre("performed a", "new"));
}

TEST_F(MenuAdapter, DoesNothingForAnItemWithoutATarget) {
    auto made = item("a");
    made.target = nullptr;
    adapter->insertItem(made, 0);
    choose(0);
    EXPECT_THAT(logLines(), ElementsAre());
}

TEST_F(MenuAdapter, ReleasesRemovedItems) {
    auto made = item("a");
    const auto held = made.representedObject = std::make_shared<platform::RepresentedObject>();
    @autoreleasepool {
        adapter->insertItem(std::move(made), 0);
        made = {};
        EXPECT_GT(held.use_count(), 1);
        const std::array tags{1};
        adapter->removeItemsWithTags(tags);
    }
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(MenuAdapter, KeepsTheTargetsOfItsItemsAlive) {
    @autoreleasepool {
        adapter->insertItem(item("a"), 0);
    }
    id const inserted = [menu itemAtIndex:0];
    [menu update];
    EXPECT_TRUE([inserted isEnabled]);
    // Only the adapter retains the target; menu items do not.
    EXPECT_EQ([[inserted target] retainCount], 1U);
    choose(0);
    EXPECT_THAT(performed, ElementsAre("a"));
}

}  // namespace
}  // namespace brisel::tests::macos
