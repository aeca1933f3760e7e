// The icon in the desktop's tray, as org.kde.StatusNotifierItem.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <chrono>
#include <string>

#include "platform/desktop/BusClient.h"
#include "platform/headless/GLibOwners.h"
#include "platform/headless/MainContext.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// What the icon shows: an icon name of the theme, and the same state in words.
struct TrayLook {
    std::string iconName;
    std::string words;

    bool operator==(const TrayLook&) const = default;
};

/// Registers with whatever watches for such icons, now, later and again; a tray that starts after
/// the program, or anew, shows the icon too. To be used on the thread that turns GLib's default
/// context.
class TrayIcon {
  public:
    static constexpr const char* ObjectPath = "/StatusNotifierItem";

    /// Long enough for a session to start its panel.
    static constexpr std::chrono::seconds UsualPatience{15};

    /// `menuPath` is the object on the same connection that holds the menu. The log tells once when
    /// nothing shows the icon for as long as `patience`.
    TrayIcon(GDBusConnection* bus, platform::SystemLog& log, std::string menuPath,
             std::chrono::milliseconds patience = UsualPatience);
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;
    ~TrayIcon();

    void show(TrayLook look);

    /// The value of a property of the interface, floating; null for one that it lacks.
    [[nodiscard]] GVariant* property(const std::string& name) const;

  private:
    /// The registration of the object; 0 without one.
    [[nodiscard]] guint exportObject();
    void registerWithWatcher();
    void waitForHost(std::chrono::milliseconds patience);
    [[nodiscard]] std::string title() const;
    [[nodiscard]] GVariant* toolTip() const;

    headless::OwnedObject<GDBusConnection> bus_;
    platform::SystemLog& log_;
    std::string menuPath_;
    std::string themePath_;
    std::string busName_;
    TrayLook look_;
    guint object_;
    guint ownName_;
    BusClient watcher_;
    Subscription watching_;
    Subscription hostComing_;
    Subscription patience_;
};

}  // namespace brisel::platform::desktop
