// Notifications shown to the user, with buttons.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Error.h"
#include "platform/Subscription.h"

namespace brisel::platform {

struct NotificationAction {
    std::string identifier;
    std::string title;
};

struct NotificationCategory {
    std::string identifier;
    std::vector<NotificationAction> actions;
};

/// Bits of UNAuthorizationOptions.
inline constexpr unsigned AuthorizationOptionSound = 2;
inline constexpr unsigned AuthorizationOptionAlert = 4;

/// Action identifiers of a click on the body and of a dismissal (UNNotificationResponse.h).
inline constexpr const char* NotificationDefaultActionIdentifier =
    "com.apple.UNNotificationDefaultActionIdentifier";
inline constexpr const char* NotificationDismissActionIdentifier =
    "com.apple.UNNotificationDismissActionIdentifier";

using UserInfo = std::map<std::string, std::string>;

struct NotificationRequest {
    /// A request replaces any earlier request with this identifier.
    std::string identifier;
    std::string title;
    std::string body;
    std::string soundName;
    std::string categoryIdentifier;
    UserInfo userInfo;
    std::chrono::milliseconds delay{};
};

struct NotificationResponse {
    std::string requestIdentifier;
    std::string actionIdentifier;
    UserInfo userInfo;
};

class UserNotificationCenter {
  public:
    using CompletionHandler = std::function<void()>;
    /// Runs on the main thread.
    using ResponseHandler = std::function<void(const NotificationResponse&, CompletionHandler)>;
    /// May run on any thread, and before the call returns.
    using AuthorizationHandler = std::function<void(bool granted, const std::optional<Error>&)>;
    /// May run on any thread, and before the call returns.
    using AddHandler = std::function<void(const std::optional<Error>&)>;

    virtual ~UserNotificationCenter() = default;

    /// Main thread. `handler` receives the responses until the subscription ends.
    [[nodiscard]] virtual Subscription setDelegate(ResponseHandler handler) = 0;
    /// Main thread. Replaces all earlier categories.
    virtual void setNotificationCategories(const std::vector<NotificationCategory>& categories) = 0;
    /// Any thread. `options`: bits of AuthorizationOptionSound and AuthorizationOptionAlert.
    virtual void requestAuthorization(unsigned options, AuthorizationHandler handler) = 0;
    /// Any thread.
    virtual void addNotificationRequest(const NotificationRequest& request, AddHandler handler) = 0;
};

}  // namespace brisel::platform
