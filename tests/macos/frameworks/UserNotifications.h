// The stand-in User Notifications.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

#include <functional>

#include "platform/UserNotificationCenter.h"

namespace brisel::tests::macos {

/// Gives the answers that were told to wait, on a thread of the framework's own.
void deliverAnswers();

/// Delivers the user's response to the center's delegate, on a thread of the framework's own, and
/// calls `delivered` there.
void deliverResponse(const platform::NotificationResponse& response,
                     const std::function<void()>& delivered);
/// The same on this thread, with user information of any kind.
void deliverResponseHere(const platform::NotificationResponse& response, NSDictionary* userInfo);

}  // namespace brisel::tests::macos
