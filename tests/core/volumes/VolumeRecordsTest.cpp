// The ordered list of volume records: search and removal.
// SPDX-License-Identifier: MIT
#include "volumes/VolumeRecords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brisel::tests {
namespace {

std::shared_ptr<NTFSVolume> record(const std::string& device) {
    const auto volume = NTFSVolume::initWithVolume({});
    volume->setDeviceNode(device);
    return volume;
}

TEST(VolumeRecords, FindsTheFirstMatch) {
    const VolumeRecords list{record("disk1"), record("disk2"), record("disk2")};
    EXPECT_EQ(findVolume(list, "disk2"), list[1]);
}

TEST(VolumeRecords, FindsNothingForAnUnknownOrMissingDevice) {
    const VolumeRecords list{record("disk1"), NTFSVolume::initWithVolume({})};
    EXPECT_EQ(findVolume(list, "disk10"), nullptr);
    EXPECT_EQ(findVolume(list, std::nullopt), nullptr);
}

TEST(VolumeRecords, RemovesByIdentity) {
    const auto one = record("disk1");
    const auto equal = record("disk1");
    VolumeRecords list{one, equal};
    removeVolume(list, *equal);
    EXPECT_THAT(list, testing::ElementsAre(one));
}

TEST(VolumeRecords, IgnoresTheRemovalOfAnUnknownRecord) {
    VolumeRecords list{record("disk1")};
    removeVolume(list, *record("disk1"));
    EXPECT_EQ(list.size(), 1U);
}

TEST(VolumeRecords, RemovesOnlyTheFirstOfADevice) {
    const auto second = record("disk1");
    VolumeRecords list{record("disk1"), second};
    removeFirstVolume(list, "disk1");
    EXPECT_THAT(list, testing::ElementsAre(second));
    removeFirstVolume(list, "disk2");
    EXPECT_EQ(list.size(), 1U);
}

}  // namespace
}  // namespace brisel::tests
