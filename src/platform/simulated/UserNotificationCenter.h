// The simulated notification center, which calls its handlers at once.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "platform/common/Signal.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/Transcript.h"
#include "platform/UserNotificationCenter.h"

namespace brisel::platform::simulated {

class UserNotificationCenter final : public platform::UserNotificationCenter {
  public:
    UserNotificationCenter(Transcript& transcript, Faults& faults);

    [[nodiscard]] Subscription setDelegate(ResponseHandler handler) override;
    void setNotificationCategories(const std::vector<NotificationCategory>& categories) override;
    void requestAuthorization(unsigned options, AuthorizationHandler handler) override;
    void addNotificationRequest(const NotificationRequest& request, AddHandler handler) override;

    // Test controls.
    enum class Permission { Allow, Deny, Error };
    void setPermission(Permission permission) { permission_ = permission; }
    void refuseNextRequest() { refusesNext_ = true; }
    [[nodiscard]] const std::vector<NotificationCategory>& categories() const {
        return categories_;
    }
    /// The last accepted request.
    [[nodiscard]] const std::optional<NotificationRequest>& lastPrompt() const {
        return lastPrompt_;
    }
    void respond(const NotificationResponse& response) const;
    /// Number of completion handler calls for responses.
    [[nodiscard]] int completedResponses() const { return completedResponses_; }

  private:
    Transcript& transcript_;
    Faults& faults_;
    Permission permission_ = Permission::Allow;
    bool refusesNext_ = false;
    std::vector<NotificationCategory> categories_;
    std::optional<NotificationRequest> lastPrompt_;
    mutable int completedResponses_ = 0;
    common::Signal<const NotificationResponse&, CompletionHandler> responses_;
};

}  // namespace brisel::platform::simulated
