// Notifications as questions that need no answer, on the terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/common/Signal.h"
#include "platform/terminal/Terminal.h"
#include "platform/UserNotificationCenter.h"

namespace brisel::platform::terminal {

/// The latest prompt can be answered by the letter of one of its category's actions.
class UserNotificationCenter final : public platform::UserNotificationCenter {
  public:
    explicit UserNotificationCenter(Terminal& terminal) : terminal_(terminal) {}

    [[nodiscard]] Subscription setDelegate(ResponseHandler handler) override;
    void setNotificationCategories(const std::vector<NotificationCategory>& categories) override;
    /// Granted: who runs a program in a terminal reads what it prints.
    void requestAuthorization(unsigned options, AuthorizationHandler handler) override;
    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

    /// Answers the latest prompt; false when the line is no answer or nothing was asked.
    [[nodiscard]] bool answer(const std::string& line);

  private:
    [[nodiscard]] const std::vector<NotificationAction>& actionsOf(
        const NotificationRequest& request) const;

    Terminal& terminal_;
    std::vector<NotificationCategory> categories_;
    std::optional<NotificationRequest> latest_;
    common::Signal<const NotificationResponse&, CompletionHandler> responses_;
};

}  // namespace brisel::platform::terminal
