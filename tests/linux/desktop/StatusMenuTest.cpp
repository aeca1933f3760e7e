// The status menu on the bus: layout, signals and clicks.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <set>

#include "tests/linux/desktop/MenuHost.h"
#include "tests/linux/desktop/StatusItemOnBus.h"

namespace brisel::platform::desktop {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::turnUntil;

constexpr int VolumeTag = 7;

class TheStatusMenu : public tests::StatusItemOnBus {
  protected:
    TheStatusMenu() {
        const MenuItem separator{.separator = true};
        const MenuItem title{.title = "Brisel 1.0"};
        auto login = item("Start at Login", "toggle:");
        login.checkable = true;
        login.checked = true;
        menu_.load({title, separator, login, item("Quit", "quit:")});
        item_->setImage("brisel-status-grey-light");
        host_.waitUntilThere();
        static_cast<void>(host_.newSignals());
    }
    MenuItem item(const std::string& title, std::string_view action) {
        const auto target = [this](const MenuItem& sender) {
            chosen_.push_back(sender.title);
            threads_.push_back(std::this_thread::get_id());
        };
        return {.title = title, .action = action, .target = target};
    }
    /// Inserts volume items at the top, each with its own represented object.
    void insertVolumes(const std::vector<std::string>& titles) {
        for (const auto& title : titles) {
            auto volume = item(title, "mount:");
            volume.tag = VolumeTag;
            volume.representedObject = std::make_shared<RepresentedObject>();
            menu_.insertItem(volume, 0);
        }
    }
    void removeVolumes() { menu_.removeItemsWithTags(std::array{VolumeTag}); }
    /// Exports pending changes of the menu.
    void turn() const { loop_.turn(); }
    tests::ShownMenu read() {
        turn();
        return host_.read();
    }
    void click(int id) {
        host_.click(id);
        turn();
    }
    std::string labelOf(const std::string& title) {
        insertVolumes({title});
        const auto label = read().items.front().label;
        removeVolumes();
        return label;
    }

    tests::MenuHost host_;
    std::vector<std::string> chosen_;
    std::vector<std::thread::id> threads_;
};

TEST_F(TheStatusMenu, ShowsAnyLabelHarmlessly) {
    EXPECT_EQ(labelOf("My_Data__1"), "My__Data____1");
    EXPECT_EQ(labelOf("a\x1b[2J\nb"), "a^[[2J^Jb");
    EXPECT_EQ(labelOf(""), "");
    EXPECT_EQ(labelOf(std::string(5000, 'x')), std::string(5000, 'x'));
}

TEST_F(TheStatusMenu, EmitsASignalForNewItems) {
    const auto before = read().revision;
    static_cast<void>(host_.newSignals());
    insertVolumes({"Data"});
    const auto after = read().revision;
    EXPECT_GT(after, before);
    EXPECT_THAT(host_.newSignals(), Contains("LayoutUpdated"));
}

// Plasma shows a check mark only if the item's first layout has the toggle type.
TEST_F(TheStatusMenu, FollowsCheckMarksWithASignal) {
    static_cast<void>(read());
    menu_.setChecked("toggle:", false);
    turn();
    EXPECT_THAT(host_.newSignals(), Contains("ItemsPropertiesUpdated"));
    EXPECT_EQ(read().text(), "(Brisel 1.0) | --- | Start at Login [ ] | Quit");
    menu_.setChecked("toggle:", true);
    EXPECT_EQ(read().text(), "(Brisel 1.0) | --- | Start at Login [x] | Quit");
}

TEST_F(TheStatusMenu, EmitsNoSignalIfItIsUnchanged) {
    insertVolumes({"Data"});
    const auto before = read();
    static_cast<void>(host_.newSignals());
    const auto volume = menu_.items().front();
    removeVolumes();
    menu_.insertItem(volume, 0);
    menu_.setChecked("toggle:", true);
    turn();
    EXPECT_THAT(host_.newSignals(), IsEmpty());
    EXPECT_EQ(read().ids(), before.ids());
    EXPECT_EQ(read().revision, before.revision);
}

TEST_F(TheStatusMenu, KeepsTheNumbersOfItemsThatStay) {
    insertVolumes({"Data"});
    const auto before = read();
    insertVolumes({"More"});
    const auto after = read();
    for (const char* const label : {"Data", "Start at Login", "Quit"})
        EXPECT_EQ(after.idOf(label), before.idOf(label)) << label;
}

/// The numbers that a host shows which inserts new items and never moves known ones, as GNOME's
/// extension does.
std::vector<int> shownByGnome(std::vector<int> before, const std::vector<int>& now) {
    std::erase_if(before,
                  [&now](int id) { return std::find(now.begin(), now.end(), id) == now.end(); });
    for (std::size_t at = 0; at < now.size(); ++at) {
        if (std::find(before.begin(), before.end(), now[at]) != before.end()) continue;
        before.insert(std::next(before.begin(), static_cast<std::ptrdiff_t>(at)), now[at]);
    }
    return before;
}

TEST_F(TheStatusMenu, IsInOrderOnAHostThatMovesNoItem) {
    const MenuItem separator{.tag = VolumeTag, .separator = true};
    std::vector<int> shown = read().ids();
    const auto follow = [&] {
        const auto now = read().ids();
        shown = shownByGnome(shown, now);
        EXPECT_EQ(shown, now);
    };
    insertVolumes({"Data", "More"});
    follow();
    const std::vector<MenuItem> volumes{menu_.items().at(1), menu_.items().at(0)};
    // A read-only volume's separator goes below the item that follows; a writable one's does not.
    for (const std::size_t place : {2U, 1U, 4U}) {
        removeVolumes();
        for (const auto& volume : volumes) {
            menu_.insertItem(volume, 0);
            menu_.insertItem(separator, place);
        }
        follow();
    }
    removeVolumes();
    menu_.insertItem(volumes[1], 0);
    menu_.insertItem(volumes[0], 0);
    follow();
    EXPECT_EQ(read().text(), "Data | More | (Brisel 1.0) | --- | Start at Login [x] | Quit");
}

TEST_F(TheStatusMenu, NeverUsesANumberAgain) {
    constexpr int Rebuilds = 200;
    std::set<int> ids;
    std::vector<std::weak_ptr<RepresentedObject>> volumes;
    for (int rebuild = 0; rebuild < Rebuilds; ++rebuild) {
        removeVolumes();
        insertVolumes({"Data"});
        volumes.push_back(menu_.items().front().representedObject);
        const auto shown = read();
        ASSERT_EQ(shown.items.size(), 5U);
        EXPECT_TRUE(ids.insert(shown.idOf("Data")).second);
    }
    removeVolumes();
    EXPECT_EQ(read().items.size(), 4U);
    for (const auto& volume : volumes)
        EXPECT_TRUE(volume.expired());
}

TEST_F(TheStatusMenu, HandlesClicksOnTheMainThread) {
    click(read().idOf("Quit"));
    turnUntil([this] { return !chosen_.empty(); });
    EXPECT_THAT(chosen_, ElementsAre("Quit"));
    EXPECT_THAT(threads_, ElementsAre(std::this_thread::get_id()));
}

TEST_F(TheStatusMenu, IgnoresAClickOnARemovedItem) {
    insertVolumes({"Data"});
    const auto shown = read();
    // The click arrives first, but the main thread handles it after the removal.
    host_.click(shown.idOf("Data"));
    removeVolumes();
    turn();
    EXPECT_THAT(chosen_, IsEmpty());
    item_->choose(shown.idOf("Data"));
    EXPECT_THAT(chosen_, IsEmpty());
}

TEST_F(TheStatusMenu, IgnoresAClickOnAnItemWithoutAction) {
    click(read().idOf("Brisel 1.0"));
    click(0);
    EXPECT_THAT(chosen_, IsEmpty());
}

TEST_F(TheStatusMenu, IgnoresAClickAfterItsEnd) {
    host_.click(read().idOf("Quit"));
    item_.reset();
    turn();
    EXPECT_THAT(chosen_, IsEmpty());
}

TEST_F(TheStatusMenu, StaysAsItIsWhenAnItemRebuildsIt) {
    MenuItem volume = item("Data", "mount:");
    volume.tag = VolumeTag;
    volume.target = [this](const MenuItem& sender) {
        removeVolumes();
        chosen_.push_back(sender.title);
    };
    menu_.insertItem(volume, 0);
    click(read().idOf("Data"));
    EXPECT_THAT(chosen_, ElementsAre("Data"));
    EXPECT_EQ(read().idOf("Data"), 0);
}

}  // namespace

}  // namespace brisel::platform::desktop
