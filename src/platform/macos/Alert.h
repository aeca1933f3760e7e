// Modal alerts, by NSAlert.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alert.h"

namespace brisel::platform::macos {

class Alert final : public platform::Alert {
  public:
    /// Brings the alert to the front. Returns 0 if AppKit raised an exception.
    int runModal(const AlertContent& content) override;
};

}  // namespace brisel::platform::macos
