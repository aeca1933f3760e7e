// The status icon: colour and appearance.
// SPDX-License-Identifier: MIT
#include "platform/Bundle.h"
#include "platform/StatusItem.h"
#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class StatusIcon : public RunningProgram {
  protected:
    /// Name of the image shown for a status code.
    std::string imageOf(int code) {
        program.delegate()->setStatusIcon(static_cast<AppDelegate::StatusIcon>(code));
        forgetLines();
        program.delegate()->refreshIcon();
        return newLines().back();
    }
};

TEST_F(StatusIcon, HasAColourForEachCode) {
    EXPECT_EQ(imageOf(0), "icon: brisel-status-grey-light");
    EXPECT_EQ(imageOf(1), "icon: brisel-status-green-light");
    EXPECT_EQ(imageOf(2), "icon: brisel-status-blue-light");
    EXPECT_EQ(imageOf(3), "icon: brisel-status-orange-light");
    EXPECT_EQ(imageOf(4), "icon: brisel-status-red-light");
}

TEST_F(StatusIcon, IsGreyForAnyOtherCode) {
    EXPECT_EQ(imageOf(5), "icon: brisel-status-grey-light");
    EXPECT_EQ(imageOf(-1), "icon: brisel-status-grey-light");
}

TEST_F(StatusIcon, IsDarkInTheDarkForEachCode) {
    mac.statusItem.setAppearance("NSAppearanceNameDarkAqua");
    EXPECT_EQ(imageOf(0), "icon: brisel-status-grey-dark");
    EXPECT_EQ(imageOf(1), "icon: brisel-status-green-dark");
    EXPECT_EQ(imageOf(2), "icon: brisel-status-blue-dark");
    EXPECT_EQ(imageOf(3), "icon: brisel-status-orange-dark");
    EXPECT_EQ(imageOf(4), "icon: brisel-status-red-dark");
}

TEST_F(StatusIcon, TreatsAnyAppearanceNamedDarkAsDark) {
    for (const auto* const name : {"NSAppearanceNameVibrantDark", "dark", "xDARKx",
                                   "NSAppearanceNameAccessibilityHighContrastDarkAqua"}) {
        mac.statusItem.setAppearance(name);
        EXPECT_EQ(newLines().back(), "icon: brisel-status-grey-dark") << name;
    }
    for (const auto* const name : {"NSAppearanceNameAqua", "", "dar k"}) {
        mac.statusItem.setAppearance(name);
        EXPECT_EQ(newLines().back(), "icon: brisel-status-grey-light") << name;
    }
}

TEST_F(StatusIcon, IgnoresOtherKeyPaths) {
    program.delegate()->observeValueForKeyPath("appearance");
    program.delegate()->observeValueForKeyPath("");
    EXPECT_THAT(newLines(), ElementsAre());
    program.delegate()->observeValueForKeyPath("effectiveAppearance");
    EXPECT_THAT(newLines(), ElementsAre("icon: brisel-status-grey-light"));
}

/// A bundle without images.
class BareBundle final : public platform::Bundle {
  public:
    std::string localizedString(std::string_view key) const override { return std::string(key); }
    bool hasImage(const std::string& /*name*/) const override { return false; }
};

TEST_F(StatusIcon, IsEmptyIfTheImageIsMissing) {
    BareBundle bundle;
    const auto delegate =
        std::make_shared<AppDelegate>(platformWith(mac.platform, {.bundle = &bundle}));
    delegate->refreshIcon();
    EXPECT_THAT(newLines(), ElementsAre("icon: (none)"));
}

}  // namespace
}  // namespace brisel::tests
