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

class StartUp : public testing::Test, public SimulatedProgram {};

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

TEST_F(StartUp, CountsAnyOtherResponseAsARefusal) {
    for (const int button : {-1000, 1, 2}) {
        SimulatedProgram other;
        other.person.whenAlertShows = [button](const auto&) { return button; };
        EXPECT_THROW(other.program.start(), ProgramEnded);
    }
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
    person.whenAlertShows = [](const auto&) { return 1; };
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

TEST_F(Termination, LeavesMountsAndRecordsAlone) {
    attachQuietly("disk4s1", "Data");
    choose("re-mount Data");
    EXPECT_THROW(choose("Quit Brisel"), ProgramEnded);
    EXPECT_TRUE(mac.fileSystem.hasFolder("/Users/user/.brisel/Data"));
    EXPECT_TRUE(mac.diskArbitration.properties("disk4s1").writable);
}

class About : public RunningProgram {};

TEST_F(About, StaysAvailableWhileItsMenuItemExists) {
    auto items = mainMenuItems(std::make_shared<AppDelegate>(mac.platform), mac.platform);
    const auto about = items.at(1);
    items.clear();
    about.target(about);
    EXPECT_THAT(newLines(), ElementsAre("activate", "about"));
}

}  // namespace
}  // namespace brisel::tests
