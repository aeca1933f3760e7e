// Notifications as questions on the terminal that do not wait for an answer.
// SPDX-License-Identifier: MIT
#include "platform/terminal/UserNotificationCenter.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace brisel::platform::terminal {

namespace {

// The keys of the first two actions.
constexpr std::string_view Letters = "yn";

}  // namespace

void UserNotificationCenter::addNotificationRequest(const NotificationRequest& request,
                                                    AddHandler handler) {
    latest_ = request;
    std::string question = "? " + request.title + ". " + request.body;
    const auto& actions = actionsOf(request);
    for (std::size_t index = 0; index < std::min(actions.size(), Letters.size()); ++index) {
        question += std::string("  ") + Letters[index] + " = " + actions[index].title;
    }
    terminal_.print(question);
    handler(std::nullopt);
}

bool UserNotificationCenter::answer(const std::string& line) {
    if (!latest_ || line.size() != 1) return false;
    const auto index = Letters.find(line.front());
    const auto& actions = actionsOf(*latest_);
    if (index >= actions.size()) return false;
    const auto request = *std::exchange(latest_, std::nullopt);
    respond({.requestIdentifier = request.identifier,
             .actionIdentifier = actions[index].identifier,
             .userInfo = request.userInfo});
    return true;
}

}  // namespace brisel::platform::terminal
