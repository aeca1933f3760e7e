// Disk Arbitration statuses as log messages and alert texts.
// SPDX-License-Identifier: MIT
#include "mounting/StatusMessages.h"

#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

struct Row {
    std::uint32_t status;
    const char* format;
};

constexpr const char* Unspecified = "no error specified by DADissenter for volume %@";

const Row Rows[] = {{0xF8DA0001, "kDAReturnError for volume %@"},
                    {0xF8DA0002, "kDAReturnBusy for volume %@"},
                    {0xF8DA0003, "kDAReturnBadArgument for volume %@"},
                    {0xF8DA0004, "kDAReturnExclusiveAccess for volume %@"},
                    {0xF8DA0005, "kDAReturnNoResources for volume %@"},
                    {0xF8DA0006, "kDAReturnNotFound for volume %@"},
                    {0xF8DA0007, "kDAReturnNotMounted for volume %@"},
                    {0xF8DA0008, "kDAReturnNotPermitted for volume %@"},
                    {0xF8DA0009, "kDAReturnNotPrivileged for volume %@"},
                    {0xF8DA000A, "kDAReturnNotReady for volume %@"},
                    {0xF8DA000B, "kDAReturnNotWritable for volume %@"},
                    {0xF8DA000C, "kDAReturnUnsupported for volume %@"},
                    {0, "kDAReturnSuccess for volume %@"},
                    {0xF8DA0000, Unspecified},
                    {0xF8DA000D, Unspecified},
                    {1, Unspecified},
                    {0x0000C010, Unspecified},
                    {0x7FFFFFFF, Unspecified},
                    {0x80000000, Unspecified},
                    {0xFFFFFFFF, Unspecified}};

TEST(StatusMessage, MatchesTheTable) {
    for (const auto& row : Rows)
        EXPECT_EQ(dissenterStatusMessage(row.status), row.format) << std::hex << row.status;
}

class FailureReport : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        attachQuietly("disk4s1", "Data");
        attachQuietly("disk5s1", "Other");
        manager().setInProgress(true);
        description_ = mac.diskArbitration.properties("disk4s1").description;
    }
    platform::DiskDescription description_;
};

TEST_F(FailureReport, OfARemountRemovesTheFirstMatchOnly) {
    addRecord("disk4s1");
    reportRemountFailure(manager(), std::nullopt, description_);
    EXPECT_THAT(devices(), ElementsAre("disk5s1", "disk4s1"));
}

TEST_F(FailureReport, OfARemountRemovesNothingWhereNothingMatches) {
    description_.mediaBSDName = "disk9";
    reportRemountFailure(manager(), std::nullopt, description_);
    EXPECT_THAT(devices(), ElementsAre("disk4s1", "disk5s1"));
}

TEST_F(FailureReport, LogsNoStatusWithoutADissenter) {
    reportRemountFailure(manager(), std::nullopt, description_);
    EXPECT_THAT(newLogLines(), ElementsAre());
    EXPECT_EQ(person.alertsSeen.size(), 1U);
    EXPECT_FALSE(manager().inProgress());
    reportUnmountFailure(manager(), std::nullopt, description_);
    EXPECT_THAT(newLogLines(), ElementsAre());
}

TEST_F(FailureReport, ShowsAMissingNameAsNull) {
    description_.volumeName.reset();
    description_.mediaBSDName.reset();
    reportUnmountFailure(manager(), platform::Dissenter{0xF8DA000D}, description_);
    EXPECT_THAT(newLogLines(), ElementsAre("no error specified by DADissenter for volume (null)"));
    ASSERT_EQ(person.alertsSeen.size(), 1U);
    EXPECT_EQ(person.alertsSeen[0].messageText, "Volume \"(null)\" not unmountable");
}

}  // namespace
}  // namespace brisel::tests
