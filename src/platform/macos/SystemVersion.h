// The version of macOS.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SystemVersion.h"

namespace brisel::platform::macos {

class SystemVersion final : public platform::SystemVersion {
  public:
    [[nodiscard]] bool isMacOS12OrLater() const override;
};

}  // namespace brisel::platform::macos
