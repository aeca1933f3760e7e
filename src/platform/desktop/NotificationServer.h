// Client of the desktop's notification server, org.freedesktop.Notifications.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
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

/// One notification. Its strings are plain text, not markup, and may be invalid UTF-8.
struct Notification {
    enum class Urgency : unsigned char { Low = 0, Normal = 1, Critical = 2 };

    std::string summary;
    std::string body;
    /// Action keys and button labels. "default" is the action of a click on the notification.
    std::vector<std::pair<std::string, std::string>> actions{};
    /// Sound name in the freedesktop sound theme; empty for none.
    std::string soundName{};
    Urgency urgency = Urgency::Normal;
    /// When the server closes it, and keeps no trace of it; zero for never.
    std::chrono::milliseconds lifetime{};
    /// ID of the notification to replace; 0 for none.
    std::uint32_t replaces = 0;
};

/// Main thread only. The server may be missing or restart, which loses its notifications.
class NotificationServer {
  public:
    /// `number` is the notification's ID, valid without an error.
    using Shown = std::function<void(std::uint32_t number, const std::optional<Error>& error)>;
    using ActionInvoked = std::function<void(std::uint32_t number, const std::string& key)>;
    using Closed = std::function<void(std::uint32_t number, std::uint32_t reason)>;
    using TokenGiven = std::function<void(std::uint32_t number, const std::string& token)>;

    /// NotificationClosed reason: dismissed by the user.
    static constexpr std::uint32_t Dismissed = 2;

    explicit NotificationServer(GDBusConnection* bus);

    /// Shows the notification, with sound and markup as the server's capabilities allow. Asks a new
    /// server for its name and capabilities first; that also activates it over D-Bus.
    void show(const Notification& notification, Shown shown);
    /// Shows a critical notification, which stays until dismissed. Blocks up to 5 seconds per call,
    /// because the program may be about to exit.
    void showCritical(const std::string& summary, const std::string& body);
    /// Closes a notification, if it is still open.
    void withdraw(std::uint32_t number);

    [[nodiscard]] Subscription onActionInvoked(ActionInvoked invoked);
    /// A server sends the activation token of a click just before its action.
    [[nodiscard]] Subscription onActivationToken(TokenGiven given);
    [[nodiscard]] Subscription onClosed(Closed closed);
    /// Calls `vanished` when the server leaves the bus, or if there is none.
    [[nodiscard]] Subscription onVanished(std::function<void()> vanished);

  private:
    void askForName(std::function<void()> known);
    void askForCapabilities(std::function<void()> known);
    [[nodiscard]] bool can(const char* capability) const {
        return capabilities_ && capabilities_->contains(capability);
    }
    [[nodiscard]] Subscription onNumberAndText(
        const char* signal, std::function<void(std::uint32_t, const std::string&)> received);
    void notify(const Notification& notification, Shown shown);
    [[nodiscard]] GVariant* argumentsFor(const Notification& notification) const;
    [[nodiscard]] GVariant* hintsFor(const Notification& notification) const;

    BusClient server_;
    std::string name_;
    /// Absent until the server answers.
    std::optional<std::set<std::string, std::less<>>> capabilities_;
    Subscription watching_;
};

}  // namespace brisel::platform::desktop
