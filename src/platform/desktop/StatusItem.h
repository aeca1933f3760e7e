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

/// Main thread. What the tray needs of it is handed to the tray's thread at once, so that the state
/// shows also while the main thread is busy.
class StatusItem final : public platform::StatusItem {
  public:
    /// All of them must outlive the item. `menu` is the one to show.
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

    /// The tray takes no icon without an image; it gets this one with the first.
    void create(double /*length*/) override {}
    void showStatusMenu() override {}
    void setImage(const std::optional<std::string>& name) override;
    [[nodiscard]] std::string effectiveAppearanceName() const override;
    [[nodiscard]] Subscription observeEffectiveAppearance(std::function<void()> changed) override;

    /// `show` shows the menu in a window, for a host that opens no menu at a click.
    void setMenuWindow(std::function<void()> show) { showWindow_ = std::move(show); }
    /// What the menu holds now.
    [[nodiscard]] const std::vector<MenuEntry>& menuEntries();
    /// Does what choosing the entry does; nothing if it has left the menu.
    void choose(int number);

  private:
    struct Tray;

    void showMenu();
    void showMenuSoon();
    void noteScheme(ColourScheme::Scheme scheme);
    /// On the tray's thread.
    [[nodiscard]] Tray& tray();
    /// Runs `work` there, unless the item has gone. Any thread.
    void onMainThread(std::function<void()> work) const;
    /// `work` for the main thread, which may come to it when the item has gone: nothing then.
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
    /// There as long as the item.
    std::shared_ptr<void> here_ = std::make_shared<char>();
    std::unique_ptr<Tray> tray_;
    TrayThread trayThread_;
};

}  // namespace brisel::platform::desktop
