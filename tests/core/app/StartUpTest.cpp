// Start-up, the warning notice, the About action and termination.
// SPDX-License-Identifier: MIT
#include "app/MainMenu.h"
#include "platform/Application.h"
#include "platform/simulated/ProgramEnded.h"
#include "platform/StatusItem.h"
#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

using platform::simulated::ProgramEnded;

constexpr const char* NoticeText =
    "Brisel reveals the already exsisting write function of the macOS NTFS kernel driver. The "
    "function is hidden by default for a good reason: Because it is experimental. You may "
    "encounter problems when the device is removed unexpectly, without proper unmount action."
    "\n\nPlease make sure to always have a good backup in place."
    "\n\nThe usage of Brisel is at your own risk."
    "\nYou will find further information on Brisel website.";

class StartUp : public testing::Test, public SimulatedProgram {
  protected:
    void SetUp() override { accept(); }
    void accept() {
        person.whenAlertShows = [](const auto&) { return 0; };
    }
    void refuse() {
        person.whenAlertShows = [](const auto&) { return 1; };
    }
    void expectEndAtStart() { EXPECT_THROW(program.start(), ProgramEnded); }
};

TEST_F(StartUp, ShowsTheNoticeAtTheFirstStart) {
    program.start();
    ASSERT_EQ(person.alertsSeen.size(), 1U);
    const auto& notice = person.alertsSeen[0];
    EXPECT_EQ(notice.messageText, "A Warning Notice - Please Read Carefully");
    EXPECT_EQ(notice.informativeText, NoticeText);
    EXPECT_THAT(notice.buttons,
                ElementsAre("OK, I understand.", "I am worried, please take me out."));
}

TEST_F(StartUp, ContinuesInOrderAfterTheNoticeIsAccepted) {
    program.start();
    EXPECT_THAT(
        newLines(),
        ElementsAre("alert: A Warning Notice - Please Read Carefully",
                    StartsWith("text: Brisel reveals"),
                    "buttons: OK, I understand. | I am worried, please take me "
                    "out.",
                    "log: User accepted the potential risk.", "default: showDisclaimer = NO",
                    std::string("menu: No NTFS Volumes to re-mount | --- | ") + FixedItems,
                    "icon: brisel-status-grey-light"));
}

TEST_F(StartUp, CreatesTheManagerAndTheStatusItemBeforeTheNotice) {
    bool ready = false;
    person.whenAlertShows = [&](const auto&) {
        ready = program.manager() != nullptr && mac.statusItem.length() == -1.0 &&
                mac.statusItem.showsMenu() && mac.userNotificationCenter.categories().size() == 1;
        return 0;
    };
    program.start();
    EXPECT_TRUE(ready);
}

TEST_F(StartUp, ShowsNoNoticeOnceOneWasAccepted) {
    program.start();
    SimulatedProgram next;
    next.mac.userDefaults.store("showDisclaimer", false);
    EXPECT_THAT(mac.userDefaults.stored(), ElementsAre("showDisclaimer = NO"));
    next.program.start();
    EXPECT_TRUE(next.person.alertsSeen.empty());
    EXPECT_THAT(next.newLines(),
                ElementsAre(std::string("menu: No NTFS Volumes to re-mount | --- | ") + FixedItems,
                            "icon: brisel-status-grey-light"));
}

TEST_F(StartUp, EndsWhereTheNoticeIsRefused) {
    refuse();
    expectEndAtStart();
    auto lines = newLines();
    lines.erase(lines.begin(), lines.begin() + 3);
    EXPECT_THAT(lines, ElementsAre("log: User did not accept risk, app will terminate.",
                                   "default: showDisclaimer = YES", "terminate", "synchronize"));
    EXPECT_THAT(mac.userDefaults.stored(), ElementsAre("showDisclaimer = YES"));
}

TEST_F(StartUp, CountsAnyOtherResponseAsARefusal) {
    for (const int button : {-1000, 1, 2}) {
        SimulatedProgram other;
        other.person.whenAlertShows = [button](const auto&) { return button; };
        EXPECT_THROW(other.program.start(), ProgramEnded);
    }
}

TEST_F(StartUp, TreatsMissingPreferencesAsUncheckedAndNotAccepted) {
    program.start();
    EXPECT_EQ(person.alertsSeen.size(), 1U);
    EXPECT_FALSE(mac.statusMenu.items().at(2).checked);
}

TEST_F(StartUp, ShowsTheStoredCheckMark) {
    mac.userDefaults.store("shouldStartAtLogin", true);
    start();
    const auto& items = mac.statusMenu.items();
    EXPECT_EQ(items.at(2).title, "Start at Login");
    EXPECT_TRUE(items.at(2).checked);
    EXPECT_FALSE(items.at(3).checked);
}

TEST_F(StartUp, DefersDisksWhileTheNoticeIsShown) {
    std::size_t recordsMeanwhile = 1;
    person.whenAlertShows = [&](const auto&) {
        attachNTFS("disk4s1", "Data");
        recordsMeanwhile = manager().volumes().size();
        return 0;
    };
    program.start();
    EXPECT_EQ(recordsMeanwhile, 0U);
    EXPECT_TRUE(manager().volumes().empty());
    turn();
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
}

TEST_F(StartUp, DoesNotObserveTheAppearanceWhileTheNoticeIsShown) {
    person.whenAlertShows = [&](const auto&) {
        forgetLines();
        mac.statusItem.setAppearance("NSAppearanceNameDarkAqua");
        EXPECT_THAT(newLines(), ElementsAre());
        return 0;
    };
    program.start();
    EXPECT_EQ(newLines().back(), "icon: brisel-status-grey-dark");
}

TEST_F(StartUp, RegistersItsDefaultsWithoutStoringThem) {
    AppDelegate::initialize(mac.platform);
    AppDelegate::initialize(mac.platform);
    EXPECT_FALSE(mac.userDefaults.boolForKey("shouldStartAtLogin"));
    EXPECT_TRUE(mac.userDefaults.boolForKey("showDisclaimer"));
    EXPECT_TRUE(mac.userDefaults.stored().empty());
}

/// An application whose terminate() returns without ending the process.
class LateEnd final : public platform::Application {
  public:
    int terminations = 0;
    void terminate() override { ++terminations; }
    void activateIgnoringOtherApps() override {}
    void orderFrontStandardAboutPanel() override {}
};

TEST_F(StartUp, DoesNothingMoreIfTerminateReturns) {
    refuse();
    LateEnd application;
    const auto services = platformWith(mac.platform, {.application = &application});
    NTFSVolumeManager made(services);
    const auto delegate =
        std::make_shared<AppDelegate>(services, [&]() -> NTFSVolumeManager& { return made; });
    AppDelegate::initialize(services);
    delegate->awakeFromNib();
    EXPECT_EQ(application.terminations, 1);
    EXPECT_EQ(newLines().back(), "default: showDisclaimer = YES");
    mac.statusItem.setAppearance("NSAppearanceNameDarkAqua");
    EXPECT_THAT(newLines(), ElementsAre());
}

class Termination : public RunningProgram {};

TEST_F(Termination, WritesThePreferencesThenStopsObserving) {
    program.delegate()->applicationWillTerminate();
    EXPECT_THAT(newLines(), ElementsAre("synchronize"));
    mac.statusItem.setAppearance("NSAppearanceNameDarkAqua");
    EXPECT_THAT(newLines(), ElementsAre());
}

TEST_F(Termination, DoesNotFailBeforeTheStart) {
    const auto delegate = std::make_shared<AppDelegate>(mac.platform);
    delegate->applicationWillTerminate();
    EXPECT_THAT(newLines(), ElementsAre("synchronize"));
}

TEST_F(Termination, IsOfferedInTheMenu) {
    EXPECT_THROW(choose("Quit Brisel"), ProgramEnded);
    EXPECT_THAT(newLines(), ElementsAre("terminate", "synchronize"));
}

TEST_F(Termination, LeavesMountsAndRecordsAlone) {
    attachQuietly("disk4s1", "Data");
    choose("re-mount Data");
    EXPECT_THROW(choose("Quit Brisel"), ProgramEnded);
    EXPECT_TRUE(mac.fileSystem.hasFolder("/Users/user/.brisel/Data"));
    EXPECT_TRUE(mac.diskArbitration.properties("disk4s1").writable);
}

class About : public RunningProgram {};

TEST_F(About, BringsTheApplicationToTheFrontFirst) {
    choose("About Brisel");
    EXPECT_THAT(newLines(), ElementsAre("activate", "about"));
}

TEST_F(About, StaysAvailableWhileItsMenuItemExists) {
    auto items = mainMenuItems(std::make_shared<AppDelegate>(mac.platform), mac.platform);
    const auto about = items.at(1);
    items.clear();
    about.target(about);
    EXPECT_THAT(newLines(), ElementsAre("activate", "about"));
}

}  // namespace
}  // namespace brisel::tests
