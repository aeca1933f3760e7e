// Notifications with buttons, by the User Notifications framework.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

#include "platform/macos/Owned.h"
#include "platform/UserNotificationCenter.h"

@class BriselNotificationDelegate;

namespace brisel::platform::macos {

/// The system raises an exception for a process that is not an application in a bundle of its own:
/// there every request ends with an error, and the system is not asked.
class UserNotificationCenter final : public platform::UserNotificationCenter {
  public:
    UserNotificationCenter();

    [[nodiscard]] Subscription setDelegate(ResponseHandler handler) override;
    void setNotificationCategories(const std::vector<NotificationCategory>& categories) override;
    void requestAuthorization(unsigned options, AuthorizationHandler handler) override;
    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

  private:
    /// The center does not keep its delegate alive.
    Owned<BriselNotificationDelegate*> delegate_;
};

}  // namespace brisel::platform::macos
