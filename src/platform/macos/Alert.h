// Modal alerts, by NSAlert.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alert.h"

namespace brisel::platform::macos {

class Alert final : public platform::Alert {
  public:
    /// 0 when the system showed no alert.
    int runModal(const AlertContent& content) override;
};

}  // namespace brisel::platform::macos
