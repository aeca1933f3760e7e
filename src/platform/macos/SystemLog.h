// The system log, by NSLog.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SystemLog.h"

namespace brisel::platform::macos {

class SystemLog final : public platform::SystemLog {
  public:
    void write(const std::string& text) override;
};

}  // namespace brisel::platform::macos
