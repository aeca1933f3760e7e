// The busy state after each outcome of a remount.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"
#include "volumes/DiskEvents.h"

namespace brisel::tests {
namespace {

enum class System { MacOS11, MacOS12 };
enum class Busy { Yes, No };

struct Way {
    const char* name;
    System system;
    /// Sets up the outcome; called after the disk is attached.
    void (*prepare)(SimulatedProgram& program);
    Busy afterwards;
};

// Names the case in GoogleTest's output.
void PrintTo(const Way& way, std::ostream* stream) {
    *stream << way.name;
}

using Call = platform::simulated::FileManager::Call;

void makeUnmountable(SimulatedProgram& program) {
    program.mac.diskArbitration.hold();
    program.manager().remountVolumeNamed("disk4s1");
    auto changed = program.mac.diskArbitration.properties("disk4s1");
    changed.description.volumeMountable = false;
    program.mac.diskArbitration.change("disk4s1", changed);
    program.mac.diskArbitration.release();
    program.turn();
}

const Way Ways[] = {
    {"NoDisk", System::MacOS12,
     [](SimulatedProgram& program) {
         changeDiskData(*program.volume(), [](auto& data) { data.mediaBSDName.reset(); });
     },
     Busy::No},
    {"UnmountRefused", System::MacOS12,
     [](SimulatedProgram& program) {
         program.mac.diskArbitration.refuseUnmount("disk4s1", 0xF8DA0001);
     },
     Busy::No},
    {"NotMountable", System::MacOS12, makeUnmountable, Busy::Yes},
    {"NoMountPoint", System::MacOS12,
     [](SimulatedProgram& program) { program.mac.fileManager.fail(Call::Create, {}); }, Busy::Yes},
    {"Cancelled", System::MacOS12,
     [](SimulatedProgram& program) {
         program.person.whenPasswordIsAsked = [] { return platform::errAuthorizationCanceled; };
     },
     Busy::No},
    {"LaunchFailed", System::MacOS12,
     [](SimulatedProgram& program) { program.mac.authorization.failLaunch(-1); }, Busy::No},
    {"ToolFailed", System::MacOS12,
     [](SimulatedProgram& program) {
         program.mac.authorization.setToolEnd({.exitStatus = 1, .signal = 0, .output = ""});
     },
     Busy::No},
    {"ToolSucceeded", System::MacOS12, [](SimulatedProgram&) {}, Busy::No},
    {"MountRefused", System::MacOS11,
     [](SimulatedProgram& program) {
         program.mac.diskArbitration.refuseMount("disk4s1", 0xF8DA0001);
     },
     Busy::No},
    {"MountSucceeded", System::MacOS11, [](SimulatedProgram&) {}, Busy::No},
};

class BusyState : public testing::TestWithParam<Way>, public SimulatedProgram {};

TEST_P(BusyState, MatchesTheOutcomeOfTheRemount) {
    mac.systemVersion.setMacOS12OrLater(GetParam().system == System::MacOS12);
    start();
    attachQuietly("disk4s1", "Data");
    GetParam().prepare(*this);
    if (!manager().inProgress()) manager().remountVolume(senderFor(volume()));
    turn();
    EXPECT_EQ(manager().inProgress(), GetParam().afterwards == Busy::Yes);
}

std::string nameOf(const testing::TestParamInfo<Way>& way) {
    return way.param.name;
}

INSTANTIATE_TEST_SUITE_P(OfARemount, BusyState, testing::ValuesIn(Ways), nameOf);

class BusyMoment : public RunningProgram {};

TEST_F(BusyMoment, BeginsWithTheRequestFromTheMenu) {
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.hold();
    choose("re-mount Data");
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(BusyMoment, BeginsWithTheRequestByName) {
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.hold();
    manager().remountVolumeNamed("disk4s1");
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(BusyMoment, BeginsWithAnAutomaticRemount) {
    storeAutomountList({SomeUUID});
    mac.diskArbitration.hold();
    attachNTFS("disk4s1", "Data", SomeUUID);
    turn();
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(BusyMoment, DoesNotBeginIfAnAutomaticRemountFindsNoDisk) {
    storeAutomountList({SomeUUID});
    bool busy = true;
    person.whenAlertShows = [&](const auto&) {
        busy = manager().inProgress();
        return 0;
    };
    diskAppeared(manager(), {.bsdName = "disk4s1"}, ntfsDisk("Data", SomeUUID).description);
    EXPECT_EQ(person.alertsSeen.size(), 1U);
    EXPECT_FALSE(busy);
}

TEST_F(BusyMoment, LastsWhileAFailureIsShown) {
    attachQuietly("disk4s1", "Data");
    bool busy = false;
    person.whenAlertShows = [&](const auto&) {
        busy = manager().inProgress();
        return 0;
    };
    mac.diskArbitration.refuseUnmount("disk4s1", 1);
    choose("re-mount Data");
    EXPECT_TRUE(busy);
    EXPECT_FALSE(manager().inProgress());
}

}  // namespace
}  // namespace brisel::tests
