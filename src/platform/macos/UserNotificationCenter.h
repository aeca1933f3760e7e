// Notifications with buttons, by the User Notifications framework.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

#include "platform/macos/Owned.h"
#include "platform/UserNotificationCenter.h"

@class BriselNotificationDelegate;

namespace brisel::platform::macos {

/// Outside an application bundle every request fails, because the system would raise an exception.
class UserNotificationCenter final : public platform::UserNotificationCenter {
  public:
    UserNotificationCenter();

    [[nodiscard]] Subscription setDelegate(ResponseHandler handler) override;
    void setNotificationCategories(const std::vector<NotificationCategory>& categories) override;
    void requestAuthorization(unsigned options, AuthorizationHandler handler) override;
    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

  private:
    /// The center does not retain its delegate.
    Owned<BriselNotificationDelegate*> delegate_;
};

}  // namespace brisel::platform::macos
