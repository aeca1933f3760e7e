// The user's preferences, by NSUserDefaults.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

namespace brisel::platform::macos {

class UserDefaults final : public platform::UserDefaults {
  public:
    void registerDefaults(const std::map<std::string, bool>& defaults) override;
    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    [[nodiscard]] StringArray stringArrayForKey(std::string_view key) const override;
    void setBool(std::string_view key, bool value) override;
    void setStringArray(std::string_view key, StringArray value) override;
    void synchronize() override;
};

}  // namespace brisel::platform::macos
