// Hostile volume names: they do no harm and are shown unchanged.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

std::string characters(std::size_t count) {
    std::string text;
    while (count-- > 0)
        text += "\xC3\xA9";
    return text;
}

const std::string Names[] = {" leading and trailing ",
                             "\"double\" and 'single'",
                             "line\nbreak",
                             "tab\tand\rreturn",
                             "a/b/c",
                             "..",
                             "../../etc",
                             "%@ %s %i %lu %n %%",
                             "$(reboot); `x` && | > <",
                             "\\",
                             characters(255),
                             "\xFF\xFE invalid \xC3",
                             "(null)",
                             std::string("null\0inside", 11),
                             ""};

class HostileLabel : public testing::TestWithParam<std::string>, public SimulatedProgram {
  protected:
    void SetUp() override {
        start();
        mac.diskArbitration.attach("disk4s1", ntfsDisk(GetParam(), SomeUUID));
        turn();
    }
};

TEST_P(HostileLabel, IsShownAsItIs) {
    EXPECT_EQ(volume()->label(), GetParam());
    EXPECT_EQ(mac.statusMenu.items().front().title, "re-mount " + GetParam());
    EXPECT_EQ(mac.userNotificationCenter.lastPrompt()->title, GetParam() + " detected");
}

TEST_P(HostileLabel, IsShownAsItIsInAnAlert) {
    mac.diskArbitration.refuseUnmount("disk4s1", 1);
    choose("re-mount " + GetParam());
    EXPECT_EQ(person.alertsSeen.at(0).messageText, "Volume \"" + GetParam() + "\" not unmountable");
}

TEST_P(HostileLabel, NamesItsMountPoint) {
    choose("re-mount " + GetParam());
    ASSERT_EQ(manager().volumes().size(), 1U);
    EXPECT_TRUE(volume()->writable());
    EXPECT_EQ(volume()->label(), GetParam());
    const platform::FileURL expected("/Users/user/.brisel/" + GetParam());
    EXPECT_EQ(volume()->volumePath(), expected);
    EXPECT_EQ(mac.statusMenu.items().front().title, "show " + GetParam() + " in Finder");
}

TEST_P(HostileLabel, GoesThroughEveryActionUnharmed) {
    choose("re-mount " + GetParam());
    choose("show " + GetParam() + " in Finder");
    choose("mount automatically");
    choose("remove all extended attributes");
    choose("unmount");
    EXPECT_FALSE(manager().inProgress());
}

TEST_P(HostileLabel, IsMadeUniqueLikeAnyOther) {
    mac.diskArbitration.attach("disk5s1", ntfsDisk(GetParam()));
    turn();
    EXPECT_EQ(volume(1)->label(), GetParam() + "-disk5s1");
}

INSTANTIATE_TEST_SUITE_P(OfEachSort, HostileLabel, testing::ValuesIn(Names));

class HostileText : public RunningProgram {};

TEST_F(HostileText, InAnErrorIsLoggedAsItIs) {
    attachQuietly("disk4s1", "Data");
    mac.fileManager.fail(
        platform::simulated::FileManager::Call::Create,
        {.localizedDescription = "%@ and %s", .localizedFailureReason = "\"%lu\"\nmore"});
    choose("re-mount Data");
    EXPECT_THAT(newLines(),
                Contains(R"(log: Unable to create folder: %@ and %s, reason: "%lu"\nmore)"));
}

TEST_F(HostileText, FromTheToolIsLoggedAsItIs) {
    attachQuietly("disk4s1", "Data");
    mac.authorization.setToolEnd({.exitStatus = 0, .signal = 0, .output = "100%@ \xFF%s"});
    choose("re-mount Data");
    EXPECT_THAT(newLines(), Contains("log: mount command output: 100%@ \xFF%s"));
}

}  // namespace
}  // namespace brisel::tests
