// The status item in the desktop's tray.
// SPDX-License-Identifier: MIT
#include "platform/desktop/StatusItem.h"

#include <utility>

#include "platform/common/StatusWords.h"
#include "platform/desktop/TrayIcon.h"
#include "platform/desktop/TrayMenu.h"
#include "platform/headless/MainContext.h"

namespace brisel::platform::desktop {

/// What lives on the tray's thread.
struct StatusItem::Tray {
    Tray(const Dependencies& dependencies, TrayMenu::Chosen chosen,
         const std::function<void(ColourScheme::Scheme)>& changed)
        : menu(std::move(chosen)),
          icon(dependencies.bus, dependencies.log, TrayMenu::ObjectPath),
          colourScheme(dependencies.bus, changed) {}

    TrayMenu menu;
    TrayIcon icon;
    ColourScheme colourScheme;
};

StatusItem::StatusItem(const Dependencies& dependencies) : dependencies_(dependencies) {
    dependencies_.menu.setChanged([this] { showMenuSoon(); });
}

StatusItem::~StatusItem() {
    dependencies_.menu.setChanged({});
    trayThread_.post([this] { tray_.reset(); });
}

StatusItem::Tray& StatusItem::tray() {
    if (!tray_) {
        const auto chosen = [this](int number) {
            headless::handTo(mainContext_, ifAlive([this, number] { choose(number); }));
        };
        tray_ = std::make_unique<Tray>(dependencies_, chosen,
                                       [this](auto scheme) { noteScheme(scheme); });
    }
    return *tray_;
}

std::function<void()> StatusItem::ifAlive(std::function<void()> work) const {
    return [work = std::move(work), here = std::weak_ptr(here_)] {
        if (!here.expired()) work();
    };
}

void StatusItem::setImage(const std::optional<std::string>& name) {
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
