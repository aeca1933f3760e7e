// Unmounting a volume from the menu.
// SPDX-License-Identifier: MIT
#include "mounting/Unmount.h"

#include <algorithm>

#include "app/UnplugNotice.h"
#include "platform/common/Bundle.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class Unmount : public RunningProgram {};

TEST_F(Unmount, PostsANotificationOnceTheVolumeIsUnmounted) {
    std::vector<std::string> posted;
    const auto observer = mac.notificationCenter.addObserver(
        NTFSVolumeDidUnmountNotification, [&posted](const void* object) {
            const UnplugNotice notice(platform::common::Bundle(),
                                      *static_cast<const NTFSVolume*>(object));
            posted = {notice.title, notice.body};
        });
    attachWritable("disk4s1", "Data");
    mac.diskArbitration.refuseUnmount("disk4s1", platform::DAReturn::Busy);
    choose("unmount");
    EXPECT_THAT(posted, ElementsAre());
    choose("unmount");
    EXPECT_THAT(posted, ElementsAre("Data unmounted", "You may unplug the device now."));
}

TEST_F(Unmount, RebuildsTheMenuBeforeItEndsTheBusyState) {
    attachWritable("disk4s1", "Data");
    manager().unmountVolume(senderFor(volume()));
    EXPECT_FALSE(manager().inProgress());
    manager().setInProgress(true);
    turn();
    EXPECT_FALSE(manager().inProgress());
    EXPECT_THAT(newLines(), ElementsAre("unmount: disk4s1", busyMenuLine(),
                                        "icon: brisel-status-orange-light"));
}

TEST_F(Unmount, OnlyLogsAVolumeWithoutAnyPath) {
    manager().unmountVolume(senderFor(NTFSVolume::initWithVolume({})));
    EXPECT_THAT(newLines(), ElementsAre("log: Unmount failed for volume at URL (null)"));
}

TEST_F(Unmount, DropsEveryRecordOfTheDisk) {
    attachWritable("disk4s1", "Data");
    attachWritable("disk5s1", "Other");
    for (int copies = 0; copies < 3; ++copies)
        addRecord("disk4s1");
    manager().unmountVolume(senderFor(volume()));
    turn();
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
    const auto lines = newLines();
    EXPECT_EQ(
        std::ranges::count_if(lines, [](const auto& line) { return line.starts_with("menu:"); }),
        4);
}

TEST_F(Unmount, CompletesForAnUnknownDisk) {
    attachWritable("disk4s1", "Data");
    unmountDidFinish(manager(), {.bsdName = "disk9"}, std::nullopt);
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
    EXPECT_THAT(newLines(), ElementsAre());
}

}  // namespace
}  // namespace brisel::tests
