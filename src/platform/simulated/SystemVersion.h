// The system version of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SystemVersion.h"

namespace brisel::platform::simulated {

class SystemVersion final : public platform::SystemVersion {
  public:
    [[nodiscard]] bool isMacOS12OrLater() const override { return macOS12OrLater_; }
    void setMacOS12OrLater(bool answer) { macOS12OrLater_ = answer; }

  private:
    bool macOS12OrLater_ = true;
};

}  // namespace brisel::platform::simulated
