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

/// Main thread only. A request replaces the notification of an earlier one with its identifier.
/// Ignores the delay: the Notifications interface has no timed trigger.
class UserNotificationCenter final : public common::UserNotificationCenter {
  public:
    explicit UserNotificationCenter(NotificationServer& server);

    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

  private:
    struct Waiting {
        NotificationRequest request;
        /// One for each call with this request.
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
    /// The first is being shown. One at a time, because the next may replace it and needs its ID.
    std::deque<Waiting> waiting_;
    /// Latest notification of each request identifier.
    std::map<std::string, PopUp> popUps_;
    Subscription actions_;
    Subscription closings_;
    Subscription vanishing_;
};

}  // namespace brisel::platform::desktop
