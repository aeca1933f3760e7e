// The status item on the bus: image, description and appearance.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/linux/desktop/FakeDesktop.h"
#include "tests/linux/desktop/StatusItemOnBus.h"

namespace brisel::platform::desktop {

namespace {

using testing::IsEmpty;
using tests::FakePortal;
using tests::turnUntil;

constexpr std::uint32_t NoPreference = 0;
constexpr std::uint32_t PreferDark = 1;

class TheStatusItem : public tests::StatusItemOnBus {
  protected:
    tests::BusCaller icon_{g_dbus_connection_get_unique_name(bus_), "/StatusNotifierItem",
                           "org.kde.StatusNotifierItem"};
};

TEST_F(TheStatusItem, ShowsTheImageIfThereIsOneAndWhatItMeans) {
    item_->setImage("brisel-status-blue-light");
    tests::waitForDesk();
    EXPECT_EQ(icon_.text("IconName"), "brisel-status-blue-light");
    EXPECT_EQ(icon_.text("Title"), "Brisel: a volume is writable");
    item_->setImage(std::nullopt);
    tests::waitForDesk();
    EXPECT_EQ(icon_.text("IconName"), "");
    EXPECT_EQ(icon_.text("Title"), "Brisel");
}

TEST_F(TheStatusItem, IsDescribedInTheUsersLanguage) {
    bundle_.setLanguage("de");
    item_->setImage("brisel-status-grey-light");
    tests::waitForDesk();
    const auto words = icon_.text("IconAccessibleDesc");
    EXPECT_EQ(words, bundle_.localizedString("no NTFS volume"));
    EXPECT_NE(words, "no NTFS volume");
}

TEST_F(TheStatusItem, ShowsAnImageWhileTheMainThreadIsBusy) {
    item_->setImage("brisel-status-orange-dark");
    tests::waitForDesk();
    tests::BusCaller properties(g_dbus_connection_get_unique_name(bus_), "/StatusNotifierItem",
                                "org.freedesktop.DBus.Properties");
    const auto answer = properties.callBlocking(
        "Get", g_variant_new("(ss)", "org.kde.StatusNotifierItem", "IconName"));
    ASSERT_TRUE(answer);
    const headless::OwnedText text(g_variant_print(answer.get(), FALSE));
    EXPECT_STREQ(text.get(), "(<'brisel-status-orange-dark'>,)");
}

TEST_F(TheStatusItem, TakesTheActivationTokenOfAClick) {
    item_->setImage("brisel-status-blue-light");
    tests::waitForDesk();
    EXPECT_TRUE(icon_.call("ProvideXdgActivationToken", g_variant_new("(s)", "of-the-click")));
    EXPECT_EQ(activationToken_.take(), "of-the-click");
}

class TheAppearance : public tests::StatusItemOnBus {
  protected:
    FakePortal portal_{NoPreference};
    std::vector<std::string> seen_;
    Subscription observation_ = item_->observeEffectiveAppearance(
        [this] { seen_.push_back(item_->effectiveAppearanceName()); });
};

TEST_F(TheAppearance, IsLightUntilTheDesktopSaysOtherwise) {
    EXPECT_EQ(item_->effectiveAppearanceName(), "NSAppearanceNameAqua");
}

TEST_F(TheAppearance, IsNotReportedAfterTheSubscription) {
    observation_.reset();
    portal_.change(PreferDark);
    portal_.service.appear();
    item_->setImage("brisel-status-blue-light");
    turnUntil([this] { return item_->effectiveAppearanceName() == "NSAppearanceNameDarkAqua"; });
    mainThread_.work();
    EXPECT_THAT(seen_, IsEmpty());
}

// The queue may outlive the item and still hold the change.
TEST_F(TheAppearance, ThatChangesAtTheEndIsNotReported) {
    item_->setImage("brisel-status-blue-light");
    portal_.change(PreferDark);
    portal_.service.appear();
    turnUntil([this] { return portal_.timesAsked() > 0; });
    for (int rest = 0; rest < 20; ++rest)
        tests::waitForDesk();
    item_.reset();
    mainThread_.work();
    EXPECT_LE(seen_.size(), 1U);
}

}  // namespace

}  // namespace brisel::platform::desktop
