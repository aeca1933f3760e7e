// The ordered list of volume records: search and removal.
// SPDX-License-Identifier: MIT
#include "volumes/VolumeList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brisel::tests {
namespace {

std::shared_ptr<NTFSVolume> record(const std::string& device) {
    const auto volume = NTFSVolume::initWithVolume({});
    volume->deviceNode = device;
    return volume;
}

TEST(VolumeList, FindsTheFirstMatch) {
    const VolumeList list{record("disk1"), record("disk2"), record("disk2")};
    EXPECT_EQ(findVolume(list, "disk2"), list[1]);
}

TEST(VolumeList, FindsNothingForAnUnknownOrMissingDevice) {
    const VolumeList list{record("disk1"), NTFSVolume::initWithVolume({})};
    EXPECT_EQ(findVolume(list, "disk10"), nullptr);
    EXPECT_EQ(findVolume(list, std::nullopt), nullptr);
}

TEST(VolumeList, RemovesByIdentity) {
    const auto one = record("disk1");
    const auto equal = record("disk1");
    VolumeList list{one, equal};
    removeVolume(list, *equal);
    EXPECT_THAT(list, testing::ElementsAre(one));
}

TEST(VolumeList, IgnoresTheRemovalOfAnUnknownRecord) {
    VolumeList list{record("disk1")};
    removeVolume(list, *record("disk1"));
    EXPECT_EQ(list.size(), 1U);
}

TEST(VolumeList, RemovesOnlyTheFirstOfADevice) {
    const auto second = record("disk1");
    VolumeList list{record("disk1"), second};
    removeFirstVolume(list, "disk1");
    EXPECT_THAT(list, testing::ElementsAre(second));
    removeFirstVolume(list, "disk2");
    EXPECT_EQ(list.size(), 1U);
}

}  // namespace
}  // namespace brisel::tests
