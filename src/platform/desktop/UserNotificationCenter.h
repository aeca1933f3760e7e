// Notifications with buttons, shown by the desktop's notification server.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/common/UserNotificationCenter.h"
#include "platform/desktop/ActivationToken.h"
#include "platform/desktop/NotificationServer.h"

namespace brisel::platform::desktop {

/// Main thread only. A request replaces the open notification of an earlier one with its
/// identifier. Notifications stay until answered or withdrawn. Ignores the delay: the Notifications
/// interface has no timed trigger.
class UserNotificationCenter final : public common::UserNotificationCenter {
  public:
    using Moot = std::function<bool(const UserInfo&)>;

    UserNotificationCenter(NotificationServer& server, ActivationToken& activationToken);

    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

    /// `moot` tells by its user info whether a notification is to be withdrawn once it is shown,
    /// and at each withdrawMoot.
    void setMoot(Moot moot) { moot_ = std::move(moot); }
    void withdrawMoot();

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
    /// Forgets the notification; its response with `action`, if it is one of ours.
    [[nodiscard]] std::optional<NotificationResponse> close(std::uint32_t number,
                                                            const std::string& action);
    void answer(std::uint32_t number, const std::string& key);
    [[nodiscard]] Notification notificationFor(const NotificationRequest& request) const;

    NotificationServer& server_;
    /// The first is being shown. One at a time, because the next may replace it and needs its ID.
    std::deque<Waiting> waiting_;
    /// The open notification of each request identifier.
    std::map<std::string, PopUp> popUps_;
    Moot moot_ = [](const UserInfo& /*userInfo*/) { return false; };
    Subscription tokens_;
    Subscription actions_;
    Subscription closings_;
    Subscription vanishing_;
};

}  // namespace brisel::platform::desktop
