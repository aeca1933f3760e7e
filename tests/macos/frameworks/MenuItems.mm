// The items of a menu as values.
// SPDX-License-Identifier: MIT
#import "platform/macos/Menu.h"
#import "platform/macos/Text.h"

namespace brisel::tests::macos {

namespace {

std::optional<int> alignmentOf(NSAttributedString* title) {
    if ([title length] == 0) return std::nullopt;
    NSParagraphStyle* const style = [title attribute:NSParagraphStyleAttributeName
                                             atIndex:0
                                      effectiveRange:nullptr];
    return style != nil ? std::optional(static_cast<int>([style alignment])) : std::nullopt;
}

platform::MenuItem valueOf(NSMenuItem* menuItem) {
    platform::MenuItem item;
    item.tag = static_cast<int>([menuItem tag]);
    item.separator = [menuItem isSeparatorItem];
    if (item.separator) return item;
    item.title = platform::macos::stdString([menuItem title]);
    item.alignment = alignmentOf([menuItem attributedTitle]);
    // The name of a selector is never freed.
    if ([menuItem action] != nullptr) item.action = sel_getName([menuItem action]);
    item.checked = [menuItem state] == NSControlStateValueOn;
    if (const auto* const inserted = platform::macos::insertedItem(menuItem)) {
        item.representedObject = inserted->representedObject;
    }
    return item;
}

}  // namespace

std::vector<platform::MenuItem> itemsOf(NSMenu* menu) {
    std::vector<platform::MenuItem> items;
    for (NSMenuItem* menuItem in [menu itemArray])
        items.push_back(valueOf(menuItem));
    return items;
}

}  // namespace brisel::tests::macos
