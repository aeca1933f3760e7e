// The automount list in the user defaults.
// SPDX-License-Identifier: MIT
#include "platform/SystemLog.h"
#include "tests/support/RunningProgram.h"
#include "volumes/VolumeListHelper.h"

namespace brisel::tests {
namespace {

class AutomountList : public RunningProgram {
  protected:
    void add(const std::string& uuid) {
        VolumeListHelper::add(mac.userDefaults, mac.systemLog, uuid);
    }
    void remove(const std::string& uuid) { VolumeListHelper::remove(mac.userDefaults, uuid); }
    std::vector<std::string> entries() {
        const auto list = VolumeListHelper::obtain(mac.userDefaults);
        return list ? *list : std::vector<std::string>{"no list"};
    }
};

TEST_F(AutomountList, IsAbsentUntilTheFirstChange) {
    EXPECT_EQ(VolumeListHelper::obtain(mac.userDefaults), nullptr);
    EXPECT_FALSE(VolumeListHelper::contains(mac.userDefaults, SomeUUID));
}

TEST_F(AutomountList, HoldsTheSameEntryTwice) {
    add("A");
    add("A");
    EXPECT_THAT(entries(), ElementsAre("A", "A"));
}

TEST_F(AutomountList, IsWrittenBackUnchangedWhereNothingWasRemoved) {
    storeAutomountList({"A"});
    remove("B");
    EXPECT_THAT(newLines(), ElementsAre("default: volumeList = (A)", "synchronize"));
}

TEST_F(AutomountList, IsStoredEmptyByARemovalIfAbsent) {
    remove("A");
    EXPECT_THAT(newLines(), ElementsAre("default: volumeList = ()", "synchronize"));
    EXPECT_THAT(entries(), ElementsAre());
}

TEST_F(AutomountList, ContainsWhatWasAdded) {
    add(SomeUUID);
    EXPECT_TRUE(VolumeListHelper::contains(mac.userDefaults, SomeUUID));
    EXPECT_FALSE(VolumeListHelper::contains(mac.userDefaults, OtherUUID));
    EXPECT_FALSE(VolumeListHelper::contains(mac.userDefaults, std::nullopt));
}

TEST_F(AutomountList, TreatsAValueOfAnotherTypeAsEmpty) {
    mac.userDefaults.store("volumeList", std::string("text"));
    EXPECT_FALSE(VolumeListHelper::contains(mac.userDefaults, "text"));
    add("A");
    EXPECT_THAT(entries(), ElementsAre("A"));
}

TEST_F(AutomountList, IsSavedAsGiven) {
    VolumeListHelper::save(mac.userDefaults, std::make_shared<const std::vector<std::string>>(
                                                 std::vector<std::string>{"A", "B"}));
    EXPECT_THAT(newLines(), ElementsAre("default: volumeList = (A, B)", "synchronize"));
}

}  // namespace
}  // namespace brisel::tests
