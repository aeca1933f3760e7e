// The "Start at Login" menu item.
// SPDX-License-Identifier: MIT
#include "platform/Bundle.h"
#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class StartAtLogin : public RunningProgram {
  protected:
    void refuse() { mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Refuse); }
};

/// Returns each key as its text and records the keys.
class NotedTexts final : public platform::Bundle {
  public:
    mutable std::vector<std::string> keys;
    std::string localizedString(std::string_view key) const override {
        return keys.emplace_back(key);
    }
    bool hasImage(const std::string& /*name*/) const override { return true; }
};

TEST_F(StartAtLogin, LooksUpTheActionOfAFailureButDoesNotShowIt) {
    NotedTexts texts;
    AppDelegate delegate(platformWith(mac.platform, {.bundle = &texts}));
    refuse();
    delegate.toggleStartAtLogin();
    EXPECT_THAT(texts.keys,
                ElementsAre("remove", "An error ocurred",
                            "Couldn't %@ Helper App to launch at login item list.", "OK"));

    mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Accept);
    delegate.toggleStartAtLogin();
    texts.keys.clear();
    refuse();
    delegate.toggleStartAtLogin();
    EXPECT_EQ(texts.keys.at(0), "add");
}

TEST_F(StartAtLogin, NamesTheLoginHelper) {
    EXPECT_THAT(std::string(LoginHelperIdentifier), EndsWith(".BriselHelper"));
}

}  // namespace
}  // namespace brisel::tests
