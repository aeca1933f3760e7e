// What notification centers without a framework have in common.
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/common/Signal.h"
#include "platform/UserNotificationCenter.h"

namespace brisel::platform::common {

/// Main thread only.
class UserNotificationCenter : public platform::UserNotificationCenter {
  public:
    [[nodiscard]] Subscription setDelegate(ResponseHandler handler) final;
    void setNotificationCategories(const std::vector<NotificationCategory>& categories) final;
    /// Granted: who does not want notifications here says so elsewhere.
    void requestAuthorization(unsigned options, AuthorizationHandler handler) final;

  protected:
    /// The actions of the request's category; none for an unknown one.
    [[nodiscard]] const std::vector<NotificationAction>& actionsOf(
        const NotificationRequest& request) const;
    /// Tells the delegate what was chosen.
    void respond(const NotificationResponse& response) const;

  private:
    std::vector<NotificationCategory> categories_;
    Signal<const NotificationResponse&, CompletionHandler> responses_;
};

}  // namespace brisel::platform::common
