// The volume part of the status menu.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

/// Tag, title, action and alignment in one line.
std::string look(const platform::MenuItem& item) {
    auto line = std::to_string(item.tag) + ' ' + (item.separator ? "---" : item.title);
    if (!item.action.empty()) line.append(" ").append(item.action);
    if (item.alignment) line += " align " + std::to_string(*item.alignment);
    return line;
}

class StatusMenu : public RunningProgram {
  protected:
    std::vector<std::string> generated() {
        std::vector<std::string> lines;
        for (const auto& item : mac.statusMenu.items()) {
            if (item.tag != 0) lines.push_back(look(item));
        }
        return lines;
    }
    std::shared_ptr<NTFSVolume> add(const std::string& label, const std::string& uuid,
                                    bool writable) {
        const auto volume = addRecord("disk-of-" + label, label);
        if (!uuid.empty()) volume->setUuid(uuid);
        volume->setWritable(writable);
        return volume;
    }
    auto addReadOnly(const std::string& label, const std::string& uuid = "") {
        return add(label, uuid, false);
    }
    auto addWritable(const std::string& label, const std::string& uuid = "") {
        return add(label, uuid, true);
    }
    std::string titles() {
        manager().refreshVolumes();
        return menuTitles();
    }
};

TEST_F(StatusMenu, HidesAllVolumesWhileAnOperationRuns) {
    addReadOnly("Data");
    manager().setInProgress(true);
    EXPECT_EQ(titles(), std::string("Brisel is operating ... | --- | ") + FixedItems);
    EXPECT_THAT(generated(), ElementsAre("101 Brisel is operating ...", "101 ---"));
    EXPECT_FALSE(mac.statusMenu.items()[0].target);
    EXPECT_EQ(static_cast<int>(program.delegate()->statusIcon()), 3);
    EXPECT_THAT(newLines(), Not(Contains(StartsWith("permission:"))));
}

TEST_F(StatusMenu, OffersToMountAListedVolumeManually) {
    storeAutomountList({SomeUUID});
    addWritable("Data", SomeUUID);
    manager().refreshVolumes();
    EXPECT_EQ(generated().at(3), "102 mount manually unsaveVolumeForAutomount: align 1");
}

TEST_F(StatusMenu, IsTheSameWhenItIsBuiltTwice) {
    addReadOnly("One");
    addWritable("Two", SomeUUID);
    const auto once = titles();
    EXPECT_EQ(titles(), once);
}

TEST_F(StatusMenu, GivesItemsTheirVolume) {
    const auto volume = addWritable("Data", SomeUUID);
    manager().refreshVolumes();
    for (std::size_t index = 0; index < 4; ++index) {
        EXPECT_EQ(mac.statusMenu.items()[index].representedObject, volume);
        EXPECT_TRUE(mac.statusMenu.items()[index].target);
        EXPECT_FALSE(mac.statusMenu.items()[index].checked);
    }
    EXPECT_EQ(mac.statusMenu.items()[4].representedObject, nullptr);
}

TEST_F(StatusMenu, LeavesItemsOfOtherTagsInPlace) {
    std::vector<platform::MenuItem> fixed(4);
    const std::vector<int> tags{100, 103, -101, 0};
    for (std::size_t index = 0; index < fixed.size(); ++index) {
        fixed[index].tag = tags[index];
        fixed[index].title = "Fixed " + std::to_string(tags[index]);
    }
    mac.statusMenu.load(fixed);
    EXPECT_EQ(titles(),
              "No NTFS Volumes to re-mount | --- | Fixed 100 | Fixed 103 | Fixed -101 | "
              "Fixed 0");
    addReadOnly("Data");
    EXPECT_EQ(titles(), "re-mount Data | Fixed 100 | --- | Fixed 103 | Fixed -101 | Fixed 0");
}

TEST_F(StatusMenu, WorksWithASingleFixedItem) {
    mac.statusMenu.load({platform::MenuItem()});
    addReadOnly("Data");
    EXPECT_EQ(titles(), "re-mount Data |  | ---");
}

TEST_F(StatusMenu, ReadsTheAutomountListOncePerVolume) {
    addReadOnly("One", SomeUUID);
    addWritable("Two", OtherUUID);
    const auto before = mac.userDefaults.listReads();
    manager().refreshVolumes();
    EXPECT_EQ(mac.userDefaults.listReads(), before + 2);
}

TEST_F(StatusMenu, ShowsAMissingLabelAsNull) {
    addWritable("x")->setLabel(std::nullopt);
    EXPECT_THAT(titles(), StartsWith("show (null) in Finder | "));
}

}  // namespace
}  // namespace brisel::tests
