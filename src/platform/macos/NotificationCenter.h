// Named notifications within the process, by NSNotificationCenter.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/NotificationCenter.h"

namespace brisel::platform::macos {

/// The default center. The object of a notification is an NSValue with the object's address.
class NotificationCenter final : public platform::NotificationCenter {
  public:
    [[nodiscard]] Subscription addObserver(std::string_view name, Observer observer) override;
    void postNotificationName(std::string_view name, const void* object) override;
};

}  // namespace brisel::platform::macos
