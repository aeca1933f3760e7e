// Named notifications within the process, for platforms without NSNotificationCenter.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/common/Signal.h"
#include "platform/NotificationCenter.h"

namespace brisel::platform::common {

class NotificationCenter final : public platform::NotificationCenter {
  public:
    [[nodiscard]] Subscription addObserver(std::string_view name, Observer observer) override;
    void postNotificationName(std::string_view name, const void* object) override;

  private:
    std::map<std::string, Signal<const void*>, std::less<>> signals_;
};

}  // namespace brisel::platform::common
