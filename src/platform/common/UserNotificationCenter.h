// Base of the notification centers of platforms without User Notifications.
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
    /// Always granted; these platforms have no permission request.
    void requestAuthorization(unsigned options, AuthorizationHandler handler) final;

  protected:
    /// The actions of the request's category; empty if the category is unknown.
    [[nodiscard]] const std::vector<NotificationAction>& actionsOf(
        const NotificationRequest& request) const;
    /// Passes the response to the delegate.
    void respond(const NotificationResponse& response) const;

  private:
    std::vector<NotificationCategory> categories_;
    Signal<const NotificationResponse&, CompletionHandler> responses_;
};

}  // namespace brisel::platform::common
