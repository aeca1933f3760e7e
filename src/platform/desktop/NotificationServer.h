// The desktop's notification server, org.freedesktop.Notifications.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop/BusClient.h"
#include "platform/Error.h"

namespace brisel::platform::desktop {

/// A pop-up. Its texts are plain, of any bytes.
struct Notification {
    enum class Urgency : unsigned char { Low = 0, Normal = 1, Critical = 2 };

    std::string summary;
    std::string body;
    /// Keys and labels of the buttons.
    std::vector<std::pair<std::string, std::string>> actions{};
    /// A name of the freedesktop sound theme; empty for silence.
    std::string soundName{};
    Urgency urgency = Urgency::Normal;
    /// The pop-up to take the place of; 0 for none.
    std::uint32_t replaces = 0;
};

/// Main thread only. A server may be missing, go, and come back: nothing of it outlives it, its
/// pop-ups included.
class NotificationServer {
  public:
    /// The number of the pop-up, or the error.
    using Shown = std::function<void(std::uint32_t number, const std::optional<Error>& error)>;
    using ActionInvoked = std::function<void(std::uint32_t number, const std::string& key)>;
    using Closed = std::function<void(std::uint32_t number, std::uint32_t reason)>;

    /// The reason of a pop-up that somebody has closed.
    static constexpr std::uint32_t Dismissed = 2;

    explicit NotificationServer(GDBusConnection* bus);

    /// Shows it with whatever of it the server can do, which is asked first of a new one. Where the
    /// bus can start a server, that question starts it.
    void show(const Notification& notification, Shown shown);
    /// Shows two texts so that they stay until somebody has seen them. Waits for the server to have
    /// them, for some seconds at most: the program may be about to end.
    void showCritical(const std::string& summary, const std::string& body);

    [[nodiscard]] Subscription onActionInvoked(ActionInvoked invoked);
    [[nodiscard]] Subscription onClosed(Closed closed);
    /// Tells that the server has gone, or that there is none.
    [[nodiscard]] Subscription onVanished(std::function<void()> vanished);

  private:
    void askForCapabilities(std::function<void()> known);
    [[nodiscard]] bool can(const char* capability) const {
        return capabilities_ && capabilities_->contains(capability);
    }
    void notify(const Notification& notification, Shown shown);
    [[nodiscard]] GVariant* argumentsFor(const Notification& notification) const;
    [[nodiscard]] GVariant* hintsFor(const Notification& notification) const;

    BusClient server_;
    /// None until the server has told.
    std::optional<std::set<std::string, std::less<>>> capabilities_;
    Subscription watching_;
};

}  // namespace brisel::platform::desktop
