// The status menu in a window.
// SPDX-License-Identifier: MIT
#include "platform/desktop/MenuWindow.h"

#include <string>

namespace brisel::platform::desktop {

namespace {

// Parsed by tools/dialog/MenuLines.cpp.
const char* kindOf(const MenuEntry& entry) {
    switch (entry.kind) {
        case MenuEntry::Kind::Separator:
            return "separator";
        case MenuEntry::Kind::Text:
            return "text";
        case MenuEntry::Kind::Choosable:
            break;
    }
    return entry.checked ? "checked" : "item";
}

}  // namespace

void MenuWindow::show() {
    std::string lines;
    for (const auto& entry : statusItem_.menuEntries()) {
        lines += std::to_string(entry.number) + '\t' + kindOf(entry) + '\t' + entry.title + '\n';
    }
    window_.show({"menu", "Brisel"}, lines, [this](int number) { statusItem_.choose(number); });
}

}  // namespace brisel::platform::desktop
