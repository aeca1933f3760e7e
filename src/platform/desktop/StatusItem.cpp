// The status item in the desktop's tray.
// SPDX-License-Identifier: MIT
#include "platform/desktop/StatusItem.h"

#include <chrono>
#include <utility>

#include "platform/common/StatusWords.h"
#include "platform/desktop/TrayIcon.h"
#include "platform/desktop/TrayMenu.h"
#include "platform/headless/MainContext.h"

namespace brisel::platform::desktop {

// Longer than a host takes to open the menu after a click.
constexpr std::chrono::milliseconds TimeToOpen{500};

/// Lives on the tray's thread.
struct StatusItem::Tray {
    explicit Tray(StatusItem& statusItem)
        : item(statusItem),
          menu(
              [this](int number) {
                  item.onMainThread([&item = item, number] { item.choose(number); });
              },
              [this] { missingMenu.reset(); }),
          icon({.bus = item.dependencies_.bus,
                .log = item.dependencies_.log,
                .activationToken = item.dependencies_.activationToken,
                .menuPath = TrayMenu::ObjectPath,
                .clicked = [this] { expectMenu(); }}),
          colourScheme(item.dependencies_.bus, [this](auto scheme) { item.noteScheme(scheme); }) {}

    // LXQt 1.2 and MATE 1.26 do nothing when Activate fails.
    void expectMenu() {
        missingMenu = headless::RunLoop().scheduledTimer(TimeToOpen, [this] {
            const auto once = std::move(missingMenu);
            item.onMainThread([&item = item] { item.showWindow_(); });
        });
    }

    StatusItem& item;
    Subscription missingMenu;
    TrayMenu menu;
    TrayIcon icon;
    ColourScheme colourScheme;
};

StatusItem::StatusItem(const Dependencies& dependencies) : dependencies_(dependencies) {
    menuChanges_ = dependencies_.menu.observeChanges([this] { showMenuSoon(); });
}

StatusItem::~StatusItem() {
    trayThread_.post([this] { tray_.reset(); });
}

StatusItem::Tray& StatusItem::tray() {
    if (!tray_) tray_ = std::make_unique<Tray>(*this);
    return *tray_;
}

void StatusItem::onMainThread(std::function<void()> work) const {
    headless::handTo(mainContext_, ifAlive(std::move(work)));
}

std::function<void()> StatusItem::ifAlive(std::function<void()> work) const {
    return [work = std::move(work), here = std::weak_ptr(here_)] {
        if (!here.expired()) work();
    };
}

void StatusItem::setImage(const std::optional<std::string>& name) {
    // The core sets the image after each refresh of the menu, and may then block the main loop,
    // where showMenuSoon would show it.
    showMenu();
    const auto key = common::statusWords(name.value_or(""));
    TrayLook look{.iconName = name.value_or(""),
                  .words = dependencies_.bundle.localizedString(key)};
    trayThread_.post([this, look = std::move(look)] { tray().icon.show(look); });
}

std::string StatusItem::effectiveAppearanceName() const {
    return dark_ ? "NSAppearanceNameDarkAqua" : "NSAppearanceNameAqua";
}

Subscription StatusItem::observeEffectiveAppearance(std::function<void()> changed) {
    return appearanceChanged_.subscribe(std::move(changed));
}

void StatusItem::noteScheme(ColourScheme::Scheme scheme) {
    dark_ = scheme == ColourScheme::Scheme::Dark;
    dependencies_.mainThread.post(ifAlive([this] { appearanceChanged_(); }));
}

void StatusItem::showMenuSoon() {
    if (std::exchange(menuChanged_, true)) return;
    pending_ = headless::whenMainLoopTurns([this] { showMenu(); });
}

void StatusItem::showMenu() {
    if (!std::exchange(menuChanged_, false)) return;
    pending_.reset();
    auto entries = numbered_.update(dependencies_.menu.items());
    if (entries == entries_) return;
    entries_ = std::move(entries);
    trayThread_.post([this, shown = entries_] { tray().menu.show(shown); });
}

const std::vector<MenuEntry>& StatusItem::menuEntries() {
    showMenu();
    return entries_;
}

void StatusItem::choose(int number) {
    showMenu();
    if (const auto* const item = numbered_.itemWithNumber(number)) common::choose(*item);
}

}  // namespace brisel::platform::desktop
