// Notifications with buttons, shown by the desktop's notification server.
// SPDX-License-Identifier: MIT
#include "platform/desktop/UserNotificationCenter.h"

#include <algorithm>
#include <utility>

namespace brisel::platform::desktop {

namespace {

// Used for every macOS sound name; the freedesktop sound theme has none of them.
constexpr const char* AnySound = "device-added";

// The action of a click on the notification itself, the only one without buttons. Servers draw no
// button for it.
constexpr const char* DefaultAction = "default";
constexpr const char* DefaultLabel = "Brisel";

}  // namespace

UserNotificationCenter::UserNotificationCenter(NotificationServer& server,
                                               ActivationToken& activationToken)
    : server_(server) {
    tokens_ = server_.onActivationToken([this, &activationToken](auto number, const auto& token) {
        for (const auto& [identifier, popUp] : popUps_) {
            if (popUp.number == number) activationToken.set(token);
        }
    });
    actions_ =
        server_.onActionInvoked([this](auto number, const auto& key) { answer(number, key); });
    // The number of a closed notification is invalid, also of one that expired.
    closings_ = server_.onClosed([this](std::uint32_t number, std::uint32_t reason) {
        const auto dismissal = close(number, NotificationDismissActionIdentifier);
        if (dismissal && reason == NotificationServer::Dismissed) respond(*dismissal);
    });
    // A new server assigns IDs anew.
    vanishing_ = server_.onVanished([this] { popUps_.clear(); });
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
    withdrawMoot();
    // Kept in the queue while the handlers run, so that requests they add wait their turn.
    if (waiting_.front().handlers.empty()) waiting_.pop_front();
    showNext();
}

Notification UserNotificationCenter::notificationFor(const NotificationRequest& request) const {
    Notification notification{.summary = request.title, .body = request.body};
    const auto& actions = actionsOf(request);
    if (!actions.empty()) notification.actions.emplace_back(DefaultAction, DefaultLabel);
    for (const auto& [identifier, title] : actions)
        notification.actions.emplace_back(identifier, title);
    if (!request.soundName.empty()) notification.soundName = AnySound;
    const auto before = popUps_.find(request.identifier);
    if (before != popUps_.end()) notification.replaces = before->second.number;
    return notification;
}

std::optional<NotificationResponse> UserNotificationCenter::close(std::uint32_t number,
                                                                  const std::string& action) {
    const auto closed = std::find_if(popUps_.begin(), popUps_.end(), [number](const auto& entry) {
        return entry.second.number == number;
    });
    if (closed == popUps_.end()) return std::nullopt;
    NotificationResponse response{.requestIdentifier = closed->first,
                                  .actionIdentifier = action,
                                  .userInfo = closed->second.userInfo};
    popUps_.erase(closed);
    return response;
}

void UserNotificationCenter::answer(std::uint32_t number, const std::string& key) {
    const auto response =
        close(number, key == DefaultAction ? NotificationDefaultActionIdentifier : key);
    if (!response) return;
    // Not every server closes an answered notification.
    server_.withdraw(number);
    respond(*response);
}

void UserNotificationCenter::withdrawMoot() {
    std::erase_if(popUps_, [this](const auto& entry) {
        const auto& popUp = entry.second;
        const bool moot = moot_(popUp.userInfo);
        if (moot) server_.withdraw(popUp.number);
        return moot;
    });
}

}  // namespace brisel::platform::desktop
