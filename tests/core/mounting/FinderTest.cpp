// Opening volumes in the file manager, and removing their extended attributes.
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class Finder : public RunningProgram {
  protected:
    static std::shared_ptr<NTFSVolume> record(const std::string& label) {
        const auto made = NTFSVolume::initWithVolume({});
        made->setLabel(label);
        return made;
    }
    std::string scriptFor(const std::string& label) {
        manager().cleanupFinderInfo(senderFor(record(label)));
        const auto lines = newLines();
        const auto found = std::ranges::find_if(
            lines, [](const auto& line) { return line.starts_with("script: "); });
        return found == lines.end() ? "" : *found;
    }
};

TEST_F(Finder, OpensWhereTheProgramMountedTheVolume) {
    const auto volume = record("Data");
    volume->setVolumePath(platform::FileURL("/Users/user/.brisel/Data"));
    changeDiskData(*volume,
                   [](auto& data) { data.volumePath = platform::FileURL("/Volumes/Data"); });
    manager().showInFinder(senderFor(volume));
    EXPECT_THAT(newLines(), ElementsAre("open: file:///Users/user/.brisel/Data/", emptyMenuLine(),
                                        "icon: brisel-status-grey-light"));
}

TEST_F(Finder, OpensWhereThePlatformMountedTheVolume) {
    const auto volume = record("Data");
    changeDiskData(*volume,
                   [](auto& data) { data.volumePath = platform::FileURL("/Volumes/My Data"); });
    manager().showInFinder(senderFor(volume));
    EXPECT_THAT(newLines(), Contains("open: file:///Volumes/My%20Data/"));
}

TEST_F(Finder, OpensNothingForAVolumeWithoutAPath) {
    manager().setInProgress(true);
    manager().showInFinder(senderFor(record("Data")));
    EXPECT_THAT(newLines(),
                ElementsAre("open: (null)", emptyMenuLine(), "icon: brisel-status-grey-light"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(Finder, EndsTheBusyStateEvenWithNothingToOpen) {
    manager().setInProgress(true);
    manager().openInFinder(std::nullopt);
    EXPECT_FALSE(manager().inProgress());
    EXPECT_THAT(newLines(), Contains(emptyMenuLine()));
}

class CleanUp : public Finder {};

TEST_F(CleanUp, RunsBetweenExactlyTwoRebuilds) {
    manager().cleanupFinderInfo(senderFor(record("Data")));
    EXPECT_THAT(newLines(),
                ElementsAre(busyMenuLine(), "icon: brisel-status-orange-light",
                            "script: do shell script \"xattr -cr /Users/user/.brisel/Data\"",
                            emptyMenuLine(), "icon: brisel-status-grey-light"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(CleanUp, WorksBelowVolumesOnAnOlderSystem) {
    mac.systemVersion.setMacOS12OrLater(false);
    EXPECT_EQ(scriptFor("Data"), "script: do shell script \"xattr -cr /Volumes/Data\"");
}

TEST_F(CleanUp, QuotesNothingForTheShell) {
    EXPECT_EQ(scriptFor("My \"Data\"; $(x) 'y'"),
              "script: do shell script \"xattr -cr /Users/user/.brisel/My \"Data\"; $(x) 'y'\"");
}

TEST_F(CleanUp, LeavesASpaceInALabelUnquoted) {
    EXPECT_EQ(scriptFor("My Data"),
              "script: do shell script \"xattr -cr /Users/user/.brisel/My Data\"");
}

TEST_F(CleanUp, DoesNotConsultTheRecordsOwnPath) {
    const auto volume = record("Data");
    volume->setVolumePath(platform::FileURL("/elsewhere"));
    changeDiskData(*volume, [](auto& data) { data.volumePath = platform::FileURL("/elsewhere"); });
    manager().cleanupFinderInfo(senderFor(volume));
    EXPECT_THAT(newLines(),
                Contains("script: do shell script \"xattr -cr /Users/user/.brisel/Data\""));
}

TEST_F(CleanUp, LogsANilResultThenEachEntryOfTheError) {
    mac.scriptRunner.failNext({{"NSAppleScriptErrorNumber", "1"},
                               {"A", "first in no alphabet"},
                               {"NSAppleScriptErrorMessage", "No such file"}});
    manager().cleanupFinderInfo(senderFor(record("Data")));
    EXPECT_THAT(newLogLines(), ElementsAre("Error executing Apple Script: (null)",
                                           "key: NSAppleScriptErrorNumber, value: 1",
                                           "key: A, value: first in no alphabet",
                                           "key: NSAppleScriptErrorMessage, value: No such file"));
    EXPECT_FALSE(manager().inProgress());
    EXPECT_TRUE(person.alertsSeen.empty());
}

TEST_F(CleanUp, RebuildsTheMenuAfterAFailureToo) {
    mac.scriptRunner.failNext({});
    manager().cleanupFinderInfo(senderFor(record("Data")));
    EXPECT_THAT(newLines(),
                ElementsAre(busyMenuLine(), "icon: brisel-status-orange-light",
                            StartsWith("script: "), "log: Error executing Apple Script: (null)",
                            emptyMenuLine(), "icon: brisel-status-grey-light"));
}

TEST_F(CleanUp, LogsNothingWhereItSucceeds) {
    manager().cleanupFinderInfo(senderFor(record("Data")));
    EXPECT_THAT(newLogLines(), ElementsAre());
}

TEST_F(CleanUp, ShowsASenderWithoutAVolumeAsMissing) {
    manager().cleanupFinderInfo(platform::MenuItem());
    EXPECT_THAT(newLines(),
                Contains("script: do shell script \"xattr -cr /Users/user/.brisel/(null)\""));
}

}  // namespace
}  // namespace brisel::tests
