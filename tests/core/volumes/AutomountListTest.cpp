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
    static std::vector<std::string> numbered(int count) {
        std::vector<std::string> list;
        for (int number = 1; number <= count; ++number)
            list.push_back(std::to_string(number));
        return list;
    }
};

TEST_F(AutomountList, IsAbsentUntilTheFirstChange) {
    EXPECT_EQ(VolumeListHelper::obtain(mac.userDefaults), nullptr);
    EXPECT_FALSE(VolumeListHelper::contains(mac.userDefaults, SomeUUID));
}

TEST_F(AutomountList, KeepsTheOrderOfAdding) {
    add("B");
    add("A");
    EXPECT_THAT(entries(), ElementsAre("B", "A"));
}

TEST_F(AutomountList, LogsItsCountThenIsWrittenToDisk) {
    add("A");
    EXPECT_THAT(newLines(),
                ElementsAre("log: List count: 1", "default: volumeList = (A)", "synchronize"));
}

TEST_F(AutomountList, HoldsTheSameEntryTwice) {
    add("A");
    add("A");
    EXPECT_THAT(entries(), ElementsAre("A", "A"));
}

TEST_F(AutomountList, DropsItsOldestEntryForThe129th) {
    for (const auto& uuid : numbered(129))
        add(uuid);
    EXPECT_EQ(entries().size(), 128U);
    EXPECT_EQ(entries().front(), "2");
    EXPECT_EQ(entries().back(), "129");
    EXPECT_EQ(newLogLines().back(), "List count: 128");
}

TEST_F(AutomountList, DropsNothingForThe128th) {
    storeAutomountList(numbered(127));
    add("128");
    EXPECT_EQ(entries().front(), "1");
    EXPECT_EQ(newLogLines().back(), "List count: 128");
}

TEST_F(AutomountList, DropsOneEntryOnlyFromALongerList) {
    storeAutomountList(numbered(200));
    add("new");
    EXPECT_EQ(entries().size(), 200U);
    EXPECT_EQ(entries().front(), "2");
    EXPECT_EQ(newLogLines().back(), "List count: 200");
}

TEST_F(AutomountList, LosesEveryEqualEntryInOneRemoval) {
    storeAutomountList({"A", "B", "A"});
    remove("A");
    EXPECT_THAT(entries(), ElementsAre("B"));
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
