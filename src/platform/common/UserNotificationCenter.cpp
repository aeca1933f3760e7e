// Base of the notification centers of platforms without User Notifications.
// SPDX-License-Identifier: MIT
#include "platform/common/UserNotificationCenter.h"

#include <utility>

namespace brisel::platform::common {

Subscription UserNotificationCenter::setDelegate(ResponseHandler handler) {
    return responses_.subscribe(std::move(handler));
}

void UserNotificationCenter::setNotificationCategories(
    const std::vector<NotificationCategory>& categories) {
    categories_ = categories;
}

void UserNotificationCenter::requestAuthorization(unsigned /*options*/,
                                                  AuthorizationHandler handler) {
    handler(true, std::nullopt);
}

const std::vector<NotificationAction>& UserNotificationCenter::actionsOf(
    const NotificationRequest& request) const {
    static const std::vector<NotificationAction> none;
    for (const auto& category : categories_) {
        if (category.identifier == request.categoryIdentifier) return category.actions;
    }
    return none;
}

void UserNotificationCenter::respond(const NotificationResponse& response) const {
    responses_(response, [] {});
}

}  // namespace brisel::platform::common
