// The main bundle's localized strings and images.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Bundle.h"

namespace brisel::platform::macos {

class Bundle final : public platform::Bundle {
  public:
    [[nodiscard]] std::string localizedString(std::string_view key) const override;
    [[nodiscard]] bool hasImage(const std::string& name) const override;
};

}  // namespace brisel::platform::macos
