// Notifications with buttons, shown by the desktop's notification server.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/common/UserNotificationCenter.h"
#include "platform/desktop/NotificationServer.h"

namespace brisel::platform::desktop {

/// Main thread only. A request takes the place of the pop-up of an earlier one with the same
/// identifier. Its delay is not kept: nothing here takes a trigger in the future, and the sooner
/// the user is asked the better.
class UserNotificationCenter final : public common::UserNotificationCenter {
  public:
    explicit UserNotificationCenter(NotificationServer& server);

    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

  private:
    struct Waiting {
        NotificationRequest request;
        /// Of everybody who has asked for the same.
        std::vector<AddHandler> handlers;
    };
    struct PopUp {
        std::uint32_t number = 0;
        UserInfo userInfo;
    };

    void showNext();
    void finishShow(std::uint32_t number, const std::optional<Error>& error);
    void respondFor(std::uint32_t number, const std::string& action);
    [[nodiscard]] Notification notificationFor(const NotificationRequest& request) const;

    NotificationServer& server_;
    /// The first of them is being shown, one at a time: what the next is to replace is known once
    /// that one has its number.
    std::deque<Waiting> waiting_;
    /// The latest pop-up of each request identifier.
    std::map<std::string, PopUp> popUps_;
    Subscription actions_;
    Subscription closings_;
    Subscription vanishing_;
};

}  // namespace brisel::platform::desktop
