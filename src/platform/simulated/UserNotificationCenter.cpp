// The notification center of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/UserNotificationCenter.h"

#include <sstream>
#include <utility>

namespace brisel::platform::simulated {

namespace {

std::string secondsText(std::chrono::milliseconds time) {
    std::ostringstream text;
    text << std::chrono::duration<double>(time).count();
    return text.str();
}

std::string valueOf(const UserInfo& userInfo, const std::string& key) {
    const auto found = userInfo.find(key);
    return found == userInfo.end() ? std::string(NullText) : found->second;
}

}  // namespace

UserNotificationCenter::UserNotificationCenter(Transcript& transcript, Faults& faults)
    : transcript_(transcript), faults_(faults) {}

Subscription UserNotificationCenter::setDelegate(ResponseHandler handler) {
    return responses_.subscribe(std::move(handler));
}

void UserNotificationCenter::setNotificationCategories(
    const std::vector<NotificationCategory>& categories) {
    categories_ = categories;
}

void UserNotificationCenter::requestAuthorization(unsigned options, AuthorizationHandler handler) {
    std::string event = "permission:";
    if ((options & AuthorizationOptionAlert) != 0) event += " alert";
    if ((options & AuthorizationOptionSound) != 0) event += " sound";
    transcript_.write(event);
    if (faults_.strikes("requestAuthorization") || permission_ == Permission::Error) {
        handler(false, Faults::error());
    } else {
        handler(permission_ == Permission::Allow, std::nullopt);
    }
}

void UserNotificationCenter::addNotificationRequest(const NotificationRequest& request,
                                                    AddHandler handler) {
    const bool refused = std::exchange(refusesNext_, false);
    if (faults_.strikes("addNotification") || refused) {
        handler(Faults::error());
        return;
    }
    lastPrompt_ = request;
    transcript_.record(
        R"(notify: id=%@ category=%@ volume=%@ sound=%@ delay=%@ title="%@" body="%@")",
        request.identifier, request.categoryIdentifier, valueOf(request.userInfo, "volume"),
        request.soundName, secondsText(request.delay), request.title, request.body);
    handler(std::nullopt);
}

void UserNotificationCenter::respond(const NotificationResponse& response) const {
    responses_(response, [this] { ++completedResponses_; });
}

}  // namespace brisel::platform::simulated
