// Unique labels in the list, and stale records of a disk.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class UniqueLabel : public RunningProgram {};

TEST_F(UniqueLabel, AppendsTheDeviceNode) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Data");
    EXPECT_THAT(labels(), ElementsAre("Data", "Data-disk5s1"));
}

TEST_F(UniqueLabel, IsComparedCaseSensitively) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "data");
    EXPECT_THAT(labels(), ElementsAre("Data", "data"));
}

TEST_F(UniqueLabel, AppendsTheDeviceNodeTwiceIfALaterLabelCollides) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Data-disk6s1");
    attachQuietly("disk6s1", "Data");
    EXPECT_THAT(labels(), ElementsAre("Data", "Data-disk6s1", "Data-disk6s1-disk6s1"));
}

TEST_F(UniqueLabel, IgnoresACollisionWithAnEarlierLabel) {
    attachQuietly("disk5s1", "Data-disk6s1");
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk6s1", "Data");
    EXPECT_THAT(labels(), ElementsAre("Data-disk6s1", "Data", "Data-disk6s1"));
}

TEST_F(UniqueLabel, IsNotComparedWithTheStaleRecord) {
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_THAT(labels(), ElementsAre("Data"));
}

TEST_F(UniqueLabel, IsMadeUniqueBeforeTheStaleRecordIsRemoved) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Data");
    mac.diskArbitration.report("disk5s1");
    turn();
    EXPECT_THAT(labels(), ElementsAre("Data", "Data-disk5s1"));
}

TEST_F(UniqueLabel, FindsTheStaleRecordByItsDeviceNode) {
    attachQuietly("disk4s1", "Data");
    changeDiskData(*volume(), [](auto& data) { data.mediaBSDName = "disk9s9"; });
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_THAT(labels(), ElementsAre("Data"));
}

TEST_F(UniqueLabel, IsMadeUniqueForNamelessVolumesToo) {
    auto nameless = ntfsDisk("");
    nameless.description.volumeName.reset();
    mac.diskArbitration.attach("disk4s1", nameless);
    mac.diskArbitration.attach("disk5s1", nameless);
    turn();
    EXPECT_THAT(labels(), ElementsAre("(null)", "(null)-disk5s1"));
}

class StaleRecord : public RunningProgram {};

TEST_F(StaleRecord, IsReplacedAtTheEndOfTheList) {
    attachQuietly("disk3s1", "Other");
    attachQuietly("disk4s1", "Data");
    const auto stale = volume(1);
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_THAT(devices(), ElementsAre("disk3s1", "disk4s1"));
    EXPECT_NE(volume(1), stale);
    EXPECT_THAT(newLines(), Contains(StartsWith("menu:")));
}

TEST_F(StaleRecord, StopsTheHandlingIfItIsNotLast) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Other");
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 appeared"));
}

TEST_F(StaleRecord, StopsTheHandlingOfAListedVolumeToo) {
    attachQuietly("disk4s1", "Data", SomeUUID);
    attachQuietly("disk5s1", "Other");
    storeAutomountList({SomeUUID});
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 appeared"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(StaleRecord, EndsTheLoopWithTheFirstRemoval) {
    attachQuietly("disk4s1", "Data");
    const auto twin = NTFSVolume::initWithVolume({});
    twin->setDeviceNode("disk4s1");
    manager().volumes().push_back(twin);
    mac.diskArbitration.report("disk4s1");
    turn();
    ASSERT_EQ(manager().volumes().size(), 1U);
    EXPECT_EQ(volume(), twin);
}

}  // namespace
}  // namespace brisel::tests
