// The status item adapter.
// SPDX-License-Identifier: MIT
#include "platform/macos/StatusItem.h"

#import "platform/macos/Text.h"
#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

using platform::macos::stdString;

class StatusItemAdapter : public AdapterTest {
  protected:
    platform::macos::Bundle bundle;
    platform::macos::Menu menu;
    platform::macos::StatusItem adapter{menu, bundle};
    int changes = 0;

    void create() { adapter.create(platform::VariableStatusItemLength); }
    [[nodiscard]] std::string label() {
        return stdString([[statusItem() button] accessibilityLabel]);
    }
    [[nodiscard]] std::string labelOf(const std::string& colour) {
        adapter.setImage("brisel-status-" + colour + "-dark");
        return label();
    }
    [[nodiscard]] platform::Subscription observe() {
        return adapter.observeEffectiveAppearance([this] { ++changes; });
    }
    /// Shows another image for another appearance, as the program does.
    [[nodiscard]] platform::Subscription redrawOnChanges() {
        return adapter.observeEffectiveAppearance([this] { redraw(); });
    }
    void redraw() {
        const bool dark = adapter.effectiveAppearanceName().find("Dark") != std::string::npos;
        adapter.setImage(dark ? "brisel-status-grey-dark" : "brisel-status-grey-light");
    }
    void change(const char* appearance, NSString* mode = NSDefaultRunLoopMode) {
        mac.statusItem.setAppearance(appearance);
        turn(mode, LongerThanCoalescing);
    }
    [[nodiscard]] static NSUInteger assignments() {
        return [[statusItem() button] imageAssignments];
    }
    static constexpr NSTimeInterval LongerThanCoalescing = 0.25;
};

TEST_F(StatusItemAdapter, IsMadeAsWideAsTold) {
    create();
    EXPECT_EQ(mac.statusItem.length(), -1.0);
    EXPECT_NE(statusItem(), nil);
}

TEST_F(StatusItemAdapter, StaysInTheMenuBarAsLongAsItsOwner) {
    std::optional<platform::macos::StatusItem> owner(std::in_place, menu, bundle);
    @autoreleasepool {
        owner->create(-1);
    }
    EXPECT_NE(statusItem(), nil);
    owner.reset();
    EXPECT_EQ(statusItem(), nil);
}

TEST_F(StatusItemAdapter, ShowsTheStatusMenu) {
    [StageApplication sharedApplication];
    NSMenu* const nibMenu = [[[NSMenu alloc] initWithTitle:@"Status"] autorelease];
    menu.connect(nibMenu, nil, mac.bundle);
    create();
    EXPECT_EQ([statusItem() menu], nil);
    adapter.showStatusMenu();
    EXPECT_EQ([statusItem() menu], nibMenu);
}

TEST_F(StatusItemAdapter, ShowsTheImageOfThatNameOrNone) {
    create();
    adapter.setImage("brisel-status-blue-dark");
    adapter.setImage("brisel-status-pink-dark");
    adapter.setImage(std::nullopt);
    EXPECT_THAT(lines(),
                ElementsAre("icon: brisel-status-blue-dark", "icon: (none)", "icon: (none)"));
}

TEST_F(StatusItemAdapter, SaysEachStateInWordsOfTheUsersLanguage) {
    create();
    EXPECT_EQ(labelOf("grey"), "Brisel: kein NTFS-Volume");
    EXPECT_EQ(labelOf("green"), "Brisel: ein Volume ist schreibgeschützt");
    EXPECT_EQ(labelOf("blue"), "Brisel: ein Volume ist beschreibbar");
    EXPECT_EQ(labelOf("orange"), "Brisel: in Arbeit");
    EXPECT_EQ(labelOf("red"), "Brisel: etwas ist fehlgeschlagen");
}

TEST_F(StatusItemAdapter, IsLabelledWithTheNameAloneWithoutAState) {
    create();
    EXPECT_EQ(labelOf("pink"), "Brisel");
    adapter.setImage(std::nullopt);
    EXPECT_EQ(label(), "Brisel");
}

TEST_F(StatusItemAdapter, NamesTheAppearanceOfItsButton) {
    EXPECT_EQ(adapter.effectiveAppearanceName(), "");
    create();
    EXPECT_EQ(adapter.effectiveAppearanceName(), "NSAppearanceNameAqua");
    mac.statusItem.setAppearance("NSAppearanceNameVibrantDark");
    EXPECT_EQ(adapter.effectiveAppearanceName(), "NSAppearanceNameVibrantDark");
}

TEST_F(StatusItemAdapter, SetsOnlyTheImageThatDiffers) {
    create();
    for (const char* name : {"blue-dark", "blue-dark", "red-dark"})
        adapter.setImage(std::string("brisel-status-") + name);
    adapter.setImage(std::nullopt);
    adapter.setImage(std::nullopt);
    EXPECT_EQ(assignments(), 3U);
}

TEST_F(StatusItemAdapter, SetsAnImageAgainThatTheSystemRefused) {
    create();
    const auto observation = observe();
    for (const bool raises : {true, false}) {
        orders().nextCallRaises = raises;
        adapter.setImage("brisel-status-blue-dark");
    }
    EXPECT_EQ(assignments(), 1U);
    EXPECT_THAT(logLines(), ElementsAre("The system refused to show the icon: raised as told"));
    change("NSAppearanceNameDarkAqua");
    EXPECT_EQ(changes, 1);
}

TEST_F(StatusItemAdapter, TellsOfAChangeOnceUntilTheObservationEnds) {
    create();
    auto observation = observe();
    change("NSAppearanceNameDarkAqua");
    EXPECT_EQ(changes, 1);
    change("NSAppearanceNameAqua");
    EXPECT_EQ(changes, 2);
    mac.statusItem.setAppearance("NSAppearanceNameDarkAqua");
    observation.reset();
    change("NSAppearanceNameAqua");
    EXPECT_EQ(changes, 2);
    EXPECT_THAT(logLines(), ElementsAre());
}

TEST_F(StatusItemAdapter, TellsOfAChangeWhileAnAlertIsUp) {
    create();
    const auto observation = observe();
    change("NSAppearanceNameDarkAqua", NSModalPanelRunLoopMode);
    EXPECT_EQ(changes, 1);
}

TEST_F(StatusItemAdapter, ShowsTheSettledAppearanceAndThenRests) {
    orders().hasSecondDisplay = true;
    create();
    redraw();
    const auto observation = redrawOnChanges();
    for (const char* appearance : {"NSAppearanceNameVibrantDark", "NSAppearanceNameVibrantLight"}) {
        const auto before = assignments();
        change(appearance);
        EXPECT_LE(assignments(), before + 2);
        const auto settled = assignments();
        turn(NSDefaultRunLoopMode, 2 * LongerThanCoalescing);
        EXPECT_EQ(assignments(), settled);
    }
    EXPECT_EQ(stdString([[[statusItem() button] image] name]), "brisel-status-grey-light");
}

TEST_F(StatusItemAdapter, DoesNotDrawMoreForManyNotifications) {
    create();
    redraw();
    const auto observation = redrawOnChanges();
    for (int notification = 0; notification < 100; ++notification) {
        [[statusItem() button] appearanceDidChange];
        turn(NSDefaultRunLoopMode, 0.01);
    }
    EXPECT_EQ(assignments(), 1U);
}

TEST_F(StatusItemAdapter, TellsEachObserver) {
    create();
    auto first = observe();
    const auto second = observe();
    change("NSAppearanceNameDarkAqua");
    EXPECT_EQ(changes, 2);
    first.reset();
    change("NSAppearanceNameAqua");
    EXPECT_EQ(changes, 3);
}

TEST_F(StatusItemAdapter, LetsAnObservationEndItself) {
    create();
    platform::Subscription own;
    own = adapter.observeEffectiveAppearance([&, by = std::make_shared<int>(1)] {
        own.reset();
        changes += *by;
    });
    change("NSAppearanceNameDarkAqua");
    change("NSAppearanceNameAqua");
    EXPECT_EQ(changes, 1);
}

TEST_F(StatusItemAdapter, LetsGoOfWhatObservedIt) {
    create();
    const auto held = std::make_shared<int>();
    auto observation = adapter.observeEffectiveAppearance([held] {});
    EXPECT_GT(held.use_count(), 1);
    observation.reset();
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(StatusItemAdapter, EndsAnObservationMadeBeforeItsCreation) {
    auto observation = observe();
    create();
    change("NSAppearanceNameDarkAqua");
    observation.reset();
    EXPECT_EQ(changes, 0);
    EXPECT_THAT(logLines(), ElementsAre());
}

TEST_F(StatusItemAdapter, DoesNothingBeforeItIsThere) {
    adapter.setImage("brisel-status-blue-dark");
    adapter.showStatusMenu();
    EXPECT_THAT(lines(), ElementsAre());
}

}  // namespace
}  // namespace brisel::tests::macos
