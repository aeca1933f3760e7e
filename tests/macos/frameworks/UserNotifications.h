// The stand-in User Notifications.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

#include <functional>

#include "platform/UserNotificationCenter.h"

namespace brisel::tests::macos {

/// Calls the handlers delayed by orders().answersWait, on another thread.
void deliverAnswers();

/// Delivers a response to the center's delegate on another thread, then calls `delivered` there.
/// Returns when both are done.
void deliverResponse(const platform::NotificationResponse& response,
                     const std::function<void()>& delivered);
/// Delivers a response to the center's delegate on this thread, with user information of any kind.
void deliverResponseHere(const platform::NotificationResponse& response, NSDictionary* userInfo);

}  // namespace brisel::tests::macos
