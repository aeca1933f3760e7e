// Opening volumes in the file manager, and removing their extended attributes.
// SPDX-License-Identifier: MIT
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
};

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

TEST_F(CleanUp, DoesNotConsultTheRecordsOwnPath) {
    const auto volume = record("Data");
    volume->setVolumePath(platform::FileURL("/elsewhere"));
    changeDiskData(*volume, [](auto& data) { data.volumePath = platform::FileURL("/elsewhere"); });
    manager().cleanupFinderInfo(senderFor(volume));
    EXPECT_THAT(newLines(),
                Contains("script: do shell script \"xattr -cr /Users/user/.brisel/Data\""));
}

TEST_F(CleanUp, ShowsASenderWithoutAVolumeAsMissing) {
    manager().cleanupFinderInfo(platform::MenuItem());
    EXPECT_THAT(newLines(),
                Contains("script: do shell script \"xattr -cr /Users/user/.brisel/(null)\""));
}

}  // namespace
}  // namespace brisel::tests
