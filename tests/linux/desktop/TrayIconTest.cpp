// The tray icon on the bus: registration, properties, and the notice without a tray.
// SPDX-License-Identifier: MIT
#include "platform/desktop/TrayIcon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::platform::desktop {

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::FakeTray;
using tests::turnUntil;

constexpr milliseconds Brief{1};
constexpr const char* UnknownMethod = "org.freedesktop.DBus.Error.UnknownMethod";

class TheTrayIcon : public testing::Test {
  protected:
    void start(milliseconds patience = TrayIcon::UsualPatience) {
        icon_ =
            std::make_unique<TrayIcon>(TrayIcon::Dependencies{.bus = bus_,
                                                              .log = log_,
                                                              .activationToken = activationToken_,
                                                              .menuPath = "/TheMenu",
                                                              .clicked = [this] { ++clicks_; }},
                                       patience);
    }
    void waitForRegistrations(const FakeTray& tray, std::size_t count) {
        turnUntil([&] { return tray.registered().size() >= count; });
    }
    /// Turns the loop much longer than the timeouts used here.
    void waitLongEnough() {
        int ticks = 0;
        const auto ticking = headless::RunLoop().scheduledTimer(Brief, [&ticks] { ++ticks; });
        turnUntil([&ticks] { return ticks > 50; });
    }

    GDBusConnection* bus_ = tests::SessionBus::shared().program();
    tests::TestLoop loop_;
    tests::RecordedLog log_;
    ActivationToken activationToken_;
    int clicks_ = 0;
    /// The program's unique name. GNOME's extension may miss an item of any other name.
    const std::string address_ = g_dbus_connection_get_unique_name(bus_);
    const std::string name_ = "org.kde.StatusNotifierItem-" + std::to_string(getpid()) + "-1";
    std::unique_ptr<TrayIcon> icon_;
};

TEST_F(TheTrayIcon, RegistersAgainWithARestartedTray) {
    auto first = std::make_unique<FakeTray>(FakeTray::Host::There);
    first->service.appear();
    start();
    waitForRegistrations(*first, 1);
    first.reset();
    FakeTray second(FakeTray::Host::There);
    second.service.appear();
    waitForRegistrations(second, 1);
    EXPECT_THAT(second.registered(), ElementsAre(address_));
}

TEST_F(TheTrayIcon, RegistersAgainOnceForAFloodOfPanelsThatComeToAWatcher) {
    FakeTray tray(FakeTray::Host::None);
    tray.service.appear();
    start();
    waitForRegistrations(tray, 1);
    for (int times = 0; times < 1000; ++times)
        tray.registerHost();
    waitForRegistrations(tray, 2);
    waitLongEnough();
    EXPECT_THAT(tray.registered(), ElementsAre(address_, address_));
}

// A host may look at the item at once.
TEST_F(TheTrayIcon, RegistersOnlyOnceItOwnsItsName) {
    FakeTray tray(FakeTray::Host::There);
    tray.service.appear();
    const auto other = tests::SessionBus::shared().connect();
    tests::requestName(other.get(), name_);
    start();
    waitLongEnough();
    EXPECT_THAT(tray.registered(), IsEmpty());
    g_dbus_connection_close_sync(other.get(), nullptr, nullptr);
    waitForRegistrations(tray, 1);
    EXPECT_THAT(tray.registered(), ElementsAre(address_));
}

TEST_F(TheTrayIcon, ReportsOnceThatNothingShowsIt) {
    start(Brief);
    turnUntil([this] { return !log_.entries().empty(); });
    waitLongEnough();
    EXPECT_THAT(log_.entries(),
                ElementsAre(HasSubstr("This desktop has no tray for status icons.")));
}

TEST_F(TheTrayIcon, ReportsThatNothingShowsItIfTheWatcherHasNoHost) {
    FakeTray tray(FakeTray::Host::None);
    tray.service.appear();
    start(milliseconds(30));
    turnUntil([this] { return !log_.entries().empty(); });
    EXPECT_THAT(tray.registered(), ElementsAre(address_));
}

TEST_F(TheTrayIcon, ReportsNothingWhenItIsShown) {
    FakeTray tray(FakeTray::Host::There);
    tray.service.appear();
    start(milliseconds(40));
    waitLongEnough();
    EXPECT_THAT(log_.entries(), IsEmpty());
}

TEST_F(TheTrayIcon, IsStillShownToATrayThatComesAfterItGaveUp) {
    start(Brief);
    turnUntil([this] { return !log_.entries().empty(); });
    FakeTray tray(FakeTray::Host::There);
    tray.service.appear();
    waitForRegistrations(tray, 1);
    EXPECT_THAT(tray.registered(), ElementsAre(address_));
    EXPECT_EQ(log_.entries().size(), 1U);
}

class TheTrayIconsFace : public TheTrayIcon {
  protected:
    TheTrayIconsFace() { start(); }

    tests::BusCaller host_{g_dbus_connection_get_unique_name(bus_), TrayIcon::ObjectPath,
                           "org.kde.StatusNotifierItem"};
};

TEST_F(TheTrayIconsFace, IsAnActiveHardwareItemThatIsAMenu) {
    EXPECT_EQ(host_.text("IconName"), "");
    EXPECT_EQ(host_.text("Category"), "Hardware");
    EXPECT_EQ(host_.text("Id"), "brisel");
    EXPECT_EQ(host_.text("Status"), "Active");
    const auto isMenu = host_.property("ItemIsMenu");
    EXPECT_TRUE(isMenu && g_variant_get_boolean(isMenu.get()));
    const auto menu = host_.property("Menu");
    ASSERT_TRUE(menu && g_variant_is_of_type(menu.get(), G_VARIANT_TYPE_OBJECT_PATH));
    EXPECT_STREQ(g_variant_get_string(menu.get(), nullptr), "/TheMenu");
}

TEST_F(TheTrayIconsFace, ShowsTheImageAndTheStateInWords) {
    icon_->show({.iconName = "brisel-status-blue-dark", .words = "a volume is writable"});
    EXPECT_EQ(host_.text("IconName"), "brisel-status-blue-dark");
    EXPECT_EQ(host_.text("Title"), "Brisel: a volume is writable");
    EXPECT_EQ(host_.text("IconAccessibleDesc"), "a volume is writable");
    const auto toolTip = host_.property("ToolTip");
    ASSERT_TRUE(toolTip);
    const headless::OwnedText text(g_variant_print(toolTip.get(), FALSE));
    EXPECT_STREQ(text.get(), "('brisel-status-blue-dark', [], 'Brisel', 'a volume is writable')");
}

TEST_F(TheTrayIconsFace, EmitsASignalOnlyForAChange) {
    icon_->show({.iconName = "blue", .words = "writable"});
    EXPECT_THAT(host_.newSignals(), ElementsAre("NewIcon", "NewTitle", "NewToolTip"));
    icon_->show({.iconName = "blue", .words = "writable"});
    EXPECT_THAT(host_.newSignals(), IsEmpty());
    icon_->show({.iconName = "red", .words = "writable"});
    EXPECT_THAT(host_.newSignals(), ElementsAre("NewIcon", "NewTitle", "NewToolTip"));
}

// Plasma opens the menu only if Activate fails.
TEST_F(TheTrayIconsFace, RefusesEveryClickSoThatTheHostOpensTheMenu) {
    for (const char* const click : {"Activate", "SecondaryActivate", "ContextMenu"})
        EXPECT_EQ(host_.errorOf(click, g_variant_new("(ii)", 3, 4)), UnknownMethod) << click;
    EXPECT_EQ(host_.errorOf("Scroll", g_variant_new("(is)", 1, "vertical")), UnknownMethod);
    // SecondaryActivate and Scroll are not offered.
    EXPECT_EQ(clicks_, 2);
}

}  // namespace

}  // namespace brisel::platform::desktop
