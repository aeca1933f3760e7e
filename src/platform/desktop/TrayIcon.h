// The icon in the desktop's tray, as org.kde.StatusNotifierItem.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <chrono>
#include <functional>
#include <string>

#include "platform/desktop/ActivationToken.h"
#include "platform/desktop/BusClient.h"
#include "platform/headless/GLibOwners.h"
#include "platform/headless/MainContext.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// `iconName` is a theme icon; `words` is the state as text.
struct TrayLook {
    std::string iconName;
    std::string words;

    bool operator==(const TrayLook&) const = default;
};

/// Registers with every StatusNotifierWatcher that appears, so that a tray that starts or restarts
/// later shows the icon too. Use only on the thread that runs GLib's default context.
class TrayIcon {
  public:
    static constexpr const char* ObjectPath = "/StatusNotifierItem";

    /// Long enough for a session to start its panel.
    static constexpr std::chrono::seconds UsualPatience{15};

    /// The bus on which the icon and its menu are, and what the icon hands on to.
    struct Dependencies {
        GDBusConnection* bus;
        platform::SystemLog& log;
        /// Gets the tokens that come with clicks.
        ActivationToken& activationToken;
        /// The menu's object path.
        std::string menuPath;
        /// Runs after each click, which fails on the bus so that the host opens the menu.
        std::function<void()> clicked;
    };

    /// Logs once if no host shows the icon within `patience`.
    explicit TrayIcon(Dependencies dependencies,
                      std::chrono::milliseconds patience = UsualPatience);
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;
    ~TrayIcon();

    void show(TrayLook look);
    /// Handles a method call of a host.
    void answer(const std::string& method, GDBusMethodInvocation* invocation);

    /// Floating value of a StatusNotifierItem property; null if unknown.
    [[nodiscard]] GVariant* property(const std::string& name) const;

  private:
    /// The registration ID, 0 on failure.
    [[nodiscard]] guint exportObject();
    /// Runs once the name is owned.
    static void noteName(GDBusConnection* bus, const gchar* name, gpointer icon);
    void watchForHosts();
    void registerWithWatcher();
    /// Registers when there was no call for a moment.
    void registerSoon();
    void waitForHost(std::chrono::milliseconds patience);
    [[nodiscard]] std::string title() const;
    [[nodiscard]] GVariant* toolTip() const;

    Dependencies dependencies_;
    headless::OwnedObject<GDBusConnection> bus_;
    std::string themePath_;
    std::string busName_;
    TrayLook look_;
    guint object_;
    guint ownName_;
    BusClient watcher_;
    Subscription watching_;
    Subscription hostComing_;
    Subscription registration_;
    Subscription patience_;
};

}  // namespace brisel::platform::desktop
