// The status item in the desktop's tray: the icon and the menu behind it.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Bundle.h"
#include "platform/common/Menu.h"
#include "platform/common/Signal.h"
#include "platform/desktop/ActivationToken.h"
#include "platform/desktop/ColourScheme.h"
#include "platform/desktop/MainThreadQueue.h"
#include "platform/desktop/NumberedMenu.h"
#include "platform/desktop/TrayThread.h"
#include "platform/StatusItem.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// Main thread only. Passes icon and menu to the tray's thread, which shows them even while the
/// main thread is busy.
class StatusItem final : public platform::StatusItem {
  public:
    /// The references must outlive the item. `menu` is the status menu.
    struct Dependencies {
        GDBusConnection* bus;
        platform::SystemLog& log;
        const platform::Bundle& bundle;
        common::Menu& menu;
        MainThreadQueue& mainThread;
        ActivationToken& activationToken;
    };

    explicit StatusItem(const Dependencies& dependencies);
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;
    ~StatusItem() override;

    /// Does nothing: the first image creates the tray icon.
    void create(double /*length*/) override {}
    void showStatusMenu() override {}
    void setImage(const std::optional<std::string>& name) override;
    [[nodiscard]] std::string effectiveAppearanceName() const override;
    [[nodiscard]] Subscription observeEffectiveAppearance(std::function<void()> changed) override;

    /// `show` opens the menu in a window, for hosts that open no menu when the icon is clicked.
    void setMenuWindow(std::function<void()> show) { showWindow_ = std::move(show); }
    /// The menu's current entries.
    [[nodiscard]] const std::vector<MenuEntry>& menuEntries();
    /// Performs the entry's action; does nothing if the entry has left the menu.
    void choose(int number);

  private:
    struct Tray;

    void showMenu();
    void showMenuSoon();
    void noteScheme(ColourScheme::Scheme scheme);
    /// Tray's thread only. Created on first use.
    [[nodiscard]] Tray& tray();
    /// Runs `work` on the main thread, unless the item is destroyed before. Any thread.
    void onMainThread(std::function<void()> work) const;
    /// Returns `work`, to be called on the main thread; it then does nothing once the item is
    /// destroyed.
    [[nodiscard]] std::function<void()> ifAlive(std::function<void()> work) const;

    Dependencies dependencies_;
    std::function<void()> showWindow_ = [] {};
    NumberedMenu numbered_;
    std::vector<MenuEntry> entries_;
    bool menuChanged_ = true;
    Subscription menuChanges_;
    Subscription pending_;
    common::Signal<> appearanceChanged_;
    std::atomic<bool> dark_ = false;
    GMainContext* mainContext_ = g_main_context_get_thread_default();
    /// Expires with the item.
    std::shared_ptr<void> here_ = std::make_shared<char>();
    std::unique_ptr<Tray> tray_;
    TrayThread trayThread_;
};

}  // namespace brisel::platform::desktop
