// Notifications as questions that need no answer, on the terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/common/UserNotificationCenter.h"
#include "platform/terminal/Terminal.h"

namespace brisel::platform::terminal {

/// The latest prompt can be answered by the letter of one of its category's actions.
class UserNotificationCenter final : public common::UserNotificationCenter {
  public:
    explicit UserNotificationCenter(Terminal& terminal) : terminal_(terminal) {}

    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

    /// Answers the latest prompt; false when the line is no answer or nothing was asked.
    [[nodiscard]] bool answer(const std::string& line);

  private:
    Terminal& terminal_;
    std::optional<NotificationRequest> latest_;
};

}  // namespace brisel::platform::terminal
