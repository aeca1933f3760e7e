// What is on the screen fits what the program knows.
// SPDX-License-Identifier: MIT
#include "tests/rules/ScreenRules.h"

#include <algorithm>
#include <array>

#include "platform/Format.h"

namespace brisel::tests {

namespace {

using platform::MenuItem;
using Actions = std::vector<std::string>;

constexpr std::array FixedActions{"toggleStartAtLogin:", "bringToFront:", "terminate:"};

template <typename Items>
Actions actionsFor(const Items& items, const std::shared_ptr<NTFSVolume>& volume) {
    Actions actions;
    for (const auto& item : items) {
        if (volumeOf(item) == volume) actions.emplace_back(item.action);
    }
    return actions;
}

Actions actionsWanted(const NTFSVolume& volume, bool listed) {
    if (!volume.writable()) return {"remountVolume:"};
    Actions actions{"showInFinder:", "unmountVolume:", "cleanupFinderInfo:"};
    if (volume.uuid()) {
        actions.emplace_back(listed ? "unsaveVolumeForAutomount:" : "saveVolumeForAutomount:");
    }
    return actions;
}

}  // namespace

void MenuRule::hear(const std::string& line) {
    if (!after("menu: ", line)) return;
    if (inProgress() || manager()->volumes().empty()) {
        checkStatusLine();
    } else {
        checkVolumes();
    }
}

void MenuRule::rest(bool /*blocked*/) {
    if (manager() == nullptr) return;
    const auto& items = mac().statusMenu.items();
    Actions fixed;
    for (const auto& item : items) {
        if (item.tag == 0 && !item.separator) fixed.emplace_back(item.action);
    }
    require(std::equal(fixed.begin(), fixed.end(), FixedActions.begin(), FixedActions.end()),
            "The menu has lost a fixed item.");
}

void MenuRule::checkStatusLine() const {
    const auto& items = mac().statusMenu.items();
    const auto* const title =
        inProgress() ? "Brisel is operating ..." : "No NTFS Volumes to re-mount";
    require(items.front().title == mac().bundle.localizedString(title) && items[1].separator,
            std::string("The menu does not say: ") + title);
    const bool none = std::none_of(items.begin(), items.end(),
                                   [](const MenuItem& item) { return item.representedObject; });
    require(none, "The menu shows a volume beside its status line.");
}

void MenuRule::checkVolumes() const {
    const auto& items = mac().statusMenu.items();
    VolumeRecords shown;
    for (const auto& item : items) {
        const auto volume = volumeOf(item);
        if (volume && (shown.empty() || shown.back() != volume)) shown.push_back(volume);
    }
    // The volume found last stands at the top.
    std::reverse(shown.begin(), shown.end());
    require(shown == manager()->volumes(), "The menu does not show the volumes of the list.");
    const auto listed = mac().userDefaults.stringArrayForKey("volumeList");
    for (const auto& volume : manager()->volumes()) {
        const bool automatic = listed && volume->uuid() &&
                               std::count(listed->begin(), listed->end(), *volume->uuid()) > 0;
        require(
            actionsFor(items, volume) == actionsWanted(*volume, automatic),
            "The menu offers something else for " + platform::orNullText(volume->label()) + ".");
    }
}

void IconRule::hear(const std::string& line) {
    if (unexplained_) {
        require(after("alert: ", line) || after("log: ", line), "Nothing explains the red icon.");
        unexplained_ = after("log: ", line).has_value();
    }
    if (rebuilt_) require(after("icon: ", line).has_value(), "No icon came with the menu.");
    if (const auto name = after("icon: ", line)) hearIcon(*name);
    rebuilt_ = after("menu: ", line).has_value();
}

void IconRule::hearIcon(const std::string& name) {
    const auto before = shown_;
    if (rebuilt_) {
        shown_ = colour();
    } else if (name.find("-red-") != std::string::npos) {
        shown_ = "red";
        // An icon that is drawn anew for a changed appearance tells of no new failure.
        unexplained_ = before != "red";
    }
    const auto appearance = platform::lowercased(mac().statusItem.effectiveAppearanceName());
    const bool dark = appearance.find("dark") != std::string::npos;
    const auto wanted = "brisel-status-" + shown_ + (dark ? "-dark" : "-light");
    require(name == wanted, "The icon is not " + wanted + ".");
}

std::string IconRule::colour() const {
    if (inProgress()) return "orange";
    if (manager()->volumes().empty()) return "grey";
    return manager()->volumes().back()->writable() ? "blue" : "green";
}

void AlertRule::hear(const std::string& line) {
    pressed_ = line.starts_with("> press ");
    if (pressed_) {
        --up_;
    } else if (after("alert: ", line)) {
        ++up_;
        require(up_ == 1, "Two alerts are up.");
    }
}

void AlertRule::refuse() {
    if (pressed_) ++up_;
}

void AlertRule::rest(bool blocked) {
    require(blocked || up_ == 0, "An alert was not dismissed.");
}

}  // namespace brisel::tests
