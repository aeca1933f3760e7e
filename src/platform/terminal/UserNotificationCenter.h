// Notifications as questions on the terminal that do not wait for an answer.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/common/UserNotificationCenter.h"
#include "platform/terminal/Terminal.h"

namespace brisel::platform::terminal {

/// Only the latest notification can be answered, by the letter of one of its actions.
class UserNotificationCenter final : public common::UserNotificationCenter {
  public:
    explicit UserNotificationCenter(Terminal& terminal) : terminal_(terminal) {}

    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

    /// False if `line` is not such a letter.
    [[nodiscard]] bool answer(const std::string& line);

  private:
    Terminal& terminal_;
    std::optional<NotificationRequest> latest_;
};

}  // namespace brisel::platform::terminal
