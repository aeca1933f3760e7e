// Notifications with buttons, shown by the desktop's notification server.
// SPDX-License-Identifier: MIT
#include "platform/desktop/UserNotificationCenter.h"

#include <utility>

namespace brisel::platform::desktop {

namespace {

// Used for every macOS sound name; the freedesktop sound theme has none of them.
constexpr const char* AnySound = "device-added";

}  // namespace

UserNotificationCenter::UserNotificationCenter(NotificationServer& server) : server_(server) {
    actions_ = server_.onActionInvoked(
        [this](std::uint32_t number, const std::string& key) { respondFor(number, key); });
    closings_ = server_.onClosed([this](std::uint32_t number, std::uint32_t reason) {
        if (reason == NotificationServer::Dismissed) {
            respondFor(number, NotificationDismissActionIdentifier);
        }
    });
    // A new server assigns IDs anew.
    vanishing_ = server_.onVanished([this] {
        for (auto& [identifier, popUp] : popUps_)
            popUp.number = 0;
    });
}

void UserNotificationCenter::addNotificationRequest(const NotificationRequest& request,
                                                    AddHandler handler) {
    // A repeated request that is still waiting is shown only once.
    for (auto& waiting : waiting_) {
        if (waiting.request.identifier != request.identifier ||
            waiting.request.userInfo != request.userInfo)
            continue;
        waiting.handlers.push_back(std::move(handler));
        return;
    }
    waiting_.push_back({.request = request, .handlers = {std::move(handler)}});
    if (waiting_.size() == 1) showNext();
}

void UserNotificationCenter::showNext() {
    if (waiting_.empty()) return;
    server_.show(notificationFor(waiting_.front().request),
                 [this](auto number, const auto& error) { finishShow(number, error); });
}

void UserNotificationCenter::finishShow(std::uint32_t number, const std::optional<Error>& error) {
    const auto shown = std::exchange(waiting_.front().handlers, {});
    const auto& request = waiting_.front().request;
    if (!error) {
        popUps_[request.identifier] = {.number = number, .userInfo = request.userInfo};
    }
    for (const auto& handler : shown)
        handler(error);
    // Kept in the queue while the handlers run, so that requests they add wait their turn.
    if (waiting_.front().handlers.empty()) waiting_.pop_front();
    showNext();
}

Notification UserNotificationCenter::notificationFor(const NotificationRequest& request) const {
    Notification notification{.summary = request.title, .body = request.body};
    for (const auto& [identifier, title] : actionsOf(request))
        notification.actions.emplace_back(identifier, title);
    if (!request.soundName.empty()) notification.soundName = AnySound;
    const auto before = popUps_.find(request.identifier);
    if (before != popUps_.end()) notification.replaces = before->second.number;
    return notification;
}

void UserNotificationCenter::respondFor(std::uint32_t number, const std::string& action) {
    for (auto& [identifier, popUp] : popUps_) {
        if (number == 0 || popUp.number != number) continue;
        // Ignores later signals: servers also close a notification after a choice.
        popUp.number = 0;
        // A copy: the response may replace the map entry.
        const NotificationResponse response{.requestIdentifier = identifier,
                                            .actionIdentifier = action,
                                            .userInfo = popUp.userInfo};
        respond(response);
        return;
    }
}

}  // namespace brisel::platform::desktop
