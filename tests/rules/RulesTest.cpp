// The rules, each on a program that breaks it.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/rules/Rule.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {

namespace {

/// A program at rest with two volumes; a test makes it say or be what must not be.
class ARule : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        mac.transcript.setListener([this](const std::string& line) { hear(line); });
        attachNTFS("disk4s1", "Data", SomeUUID);
        attachNTFS("disk5s1", "Music");
        turn();
        rest();
        ASSERT_THAT(broken_, IsEmpty());
    }

    /// A record of the same volume.
    static std::shared_ptr<NTFSVolume> another(const NTFSVolume& volume) {
        const auto record = NTFSVolume::initWithVolume(volume.diskData());
        record->setLabel(volume.label());
        record->setDeviceNode(volume.deviceNode());
        return record;
    }

    void hear(const std::string& line) {
        for (const auto& rule : rules_)
            rule->hear(line);
    }
    void rest() {
        for (const auto& rule : rules_)
            rule->rest(false);
    }
    void expectBroken(const std::string& words) const {
        EXPECT_THAT(broken_, Contains(HasSubstr(words)));
    }

    std::vector<std::string> broken_;
    Rules rules_ = allRules(mac, program,
                            [this](const std::string& sentence) { broken_.push_back(sentence); });
};

TEST_F(ARule, HoldsWhileARemountGoesWell) {
    choose("re-mount Music");
    choose("show Music in Finder");
    rest();
    EXPECT_THAT(broken_, IsEmpty());
}

TEST_F(ARule, SeesRecordsThatChangeTheirOrder) {
    std::reverse(manager().volumes().begin(), manager().volumes().end());
    rest();
    expectBroken("changed their order");
}

TEST_F(ARule, SeesARecordThatGoesWithoutAReason) {
    hear("log: disk disk9s1 disappeared");
    manager().volumes().pop_back();
    rest();
    expectBroken("The record of disk5s1 has gone without a reason.");
}

TEST_F(ARule, SeesARecordThatComesWithoutAReason) {
    hear("log: disk disk9s1 appeared");
    manager().volumes().push_back(another(*manager().volumes().front()));
    manager().volumes().back()->setDeviceNode("disk8s1");
    rest();
    expectBroken("A record of disk8s1 came without a reason.");
}

TEST_F(ARule, SeesARecordThatIsReplacedByOneLikeIt) {
    hear("> show volumes");
    manager().volumes().front() = another(*manager().volumes().front());
    rest();
    expectBroken("changed their order");
}

TEST_F(ARule, SeesTwoRecordsOfOneDevice) {
    hear("log: disk disk4s1 appeared");
    manager().volumes().push_back(another(*manager().volumes().front()));
    rest();
    expectBroken("Two records have the device disk4s1.");
}

TEST_F(ARule, SeesAMenuWithoutAVolumeOfTheList) {
    manager().volumes().pop_back();
    hear("menu: ");
    expectBroken("The menu does not show the volumes of the list.");
}

TEST_F(ARule, SeesAMenuThatOffersWhatTheVolumeIsNot) {
    manager().volumes().front()->setWritable(true);
    hear("menu: ");
    expectBroken("The menu offers something else for Data.");
}

TEST_F(ARule, SeesAMenuThatDoesNotSayThatTheProgramIsBusy) {
    manager().setInProgress(true);
    hear("menu: ");
    expectBroken("The menu does not say: Brisel is operating ...");
}

TEST_F(ARule, SeesThatAFixedItemIsLost) {
    mac.statusMenu.load({});
    rest();
    expectBroken("The menu has lost a fixed item.");
}

TEST_F(ARule, SeesAnIconThatDoesNotFitTheMenu) {
    hear("menu: ");
    hear("icon: brisel-status-blue-light");
    expectBroken("The icon is not brisel-status-green-light.");
}

TEST_F(ARule, SeesAnIconThatChangesWithoutAMenu) {
    hear("icon: brisel-status-grey-light");
    expectBroken("The icon is not brisel-status-green-light.");
}

TEST_F(ARule, SeesAnIconOfTheOtherAppearance) {
    hear("icon: brisel-status-green-dark");
    expectBroken("The icon is not brisel-status-green-light.");
}

TEST_F(ARule, SeesAMenuWithoutAnIcon) {
    hear("menu: ");
    hear("> show menu");
    expectBroken("No icon came with the menu.");
}

TEST_F(ARule, SeesARedIconThatNothingExplains) {
    hear("icon: brisel-status-red-light");
    hear("> show menu");
    expectBroken("Nothing explains the red icon.");
}

TEST_F(ARule, SeesAnAlertThatIsNotDismissed) {
    hear("alert: Volume not mounted");
    rest();
    expectBroken("An alert was not dismissed.");
}

TEST_F(ARule, SeesTwoAlertsAtOnce) {
    hear("alert: Volume not mounted");
    hear("alert: Volume not mounted");
    expectBroken("Two alerts are up.");
}

TEST_F(ARule, SeesAProgramThatStaysBusyAfterItsEnd) {
    manager().setInProgress(true);
    hear("open: file:///Volumes/Data/");
    hear("menu: ");
    expectBroken("The program is busy after open: ");
}

TEST_F(ARule, SeesAProgramThatIsBusyAfterAFailure) {
    hear("icon: brisel-status-red-light");
    hear("alert: Volume not mounted");
    manager().setInProgress(true);
    hear("> press OK");
    hear("> show menu");
    expectBroken("The program is busy after press OK.");
}

TEST_F(ARule, SeesAProgramThatIsNotBusyWhenItShouldBe) {
    hear("> choose \"re-mount Data\"");
    hear("menu: ");
    expectBroken("The program is not busy after choose");
}

TEST_F(ARule, SeesABusyStateThatEndsWhereItIsKept) {
    manager().setInProgress(true);
    hear("log: Disk not mountable!");
    manager().setInProgress(false);
    hear("> show menu");
    expectBroken("The program is not busy after log: Disk not mountable!");
}

TEST_F(ARule, SeesAFolderThatIsMadeElsewhere) {
    hear("mkdir: /Users/user/Data");
    expectBroken("A folder elsewhere is touched: /Users/user/Data");
}

TEST_F(ARule, SeesAFolderDeletedThatIsNotEmpty) {
    mac.fileSystem.makeFile("/Users/user/.brisel/Data/f");
    hear("delete: /Users/user/.brisel/Data");
    expectBroken("A folder that is not empty is deleted");
}

TEST_F(ARule, SeesAnAutomountListThatGrowsTooLong) {
    storeAutomountList(std::vector<std::string>(129, SomeUUID));
    rest();
    expectBroken("The automount list has grown to 129.");
}

}  // namespace

}  // namespace brisel::tests
