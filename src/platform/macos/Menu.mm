// The status menu, an NSMenu from the nib.
// SPDX-License-Identifier: MIT
#import "platform/macos/Menu.h"

#import <objc/runtime.h>

#include <algorithm>
#include <utility>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Text.h"

using brisel::platform::MenuItem;

/// Wraps a MenuItem as a represented object.
@interface BriselInsertedItem : NSObject {
  @public
    MenuItem item;
}
@end

@implementation BriselInsertedItem
@end

/// Target of all inserted items. Gets a method for each action at its first use, because AppKit
/// disables an item whose target lacks it.
@interface BriselMenuTarget : NSObject
@end

@implementation BriselMenuTarget
@end

namespace brisel::platform::macos {

namespace {

void performAction(id /*self*/, SEL /*command*/, id sender) {
    const auto* const item = insertedItem(sender);
    if (item == nullptr) return;
    // A copy: the action may rebuild the menu.
    const MenuItem copy = *item;
    if (copy.target) copy.target(copy);
}

SEL actionFor(std::string_view name) {
    if (name.empty()) return nullptr;
    const SEL action = NSSelectorFromString(nsString(name));
    // No effect if the method exists.
    class_addMethod([BriselMenuTarget class], action,
                    reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(&performAction)), "v@:@");
    return action;
}

void alignTitle(NSMenuItem* menuItem, int alignment) {
    // An attributed title needs the menu font set explicitly.
    NSDictionary<NSAttributedStringKey, id>* const attributes =
        [NSDictionary dictionaryWithObject:[NSFont menuFontOfSize:0] forKey:NSFontAttributeName];
    const Owned<NSMutableAttributedString*> title(
        [[NSMutableAttributedString alloc] initWithString:[menuItem title] attributes:attributes]);
    [title.get() setAlignment:static_cast<NSTextAlignment>(alignment)
                        range:NSMakeRange(0, [title.get() length])];
    [menuItem setAttributedTitle:title.get()];
}

Owned<NSMenuItem*> makeItem(MenuItem item, BriselMenuTarget* target) {
    if (item.separator) {
        auto separator = retained(static_cast<NSMenuItem*>([NSMenuItem separatorItem]));
        [separator.get() setTag:item.tag];
        return separator;
    }
    Owned<NSMenuItem*> menuItem([[NSMenuItem alloc] initWithTitle:nsString(item.title)
                                                           action:actionFor(item.action)
                                                    keyEquivalent:@""]);
    [menuItem.get() setTag:item.tag];
    [menuItem.get() setState:item.checked ? NSControlStateValueOn : NSControlStateValueOff];
    if (!item.action.empty()) [menuItem.get() setTarget:target];
    if (item.alignment) alignTitle(menuItem.get(), *item.alignment);
    const Owned<BriselInsertedItem*> inserted([[BriselInsertedItem alloc] init]);
    inserted.get()->item = std::move(item);
    [menuItem.get() setRepresentedObject:inserted.get()];
    return menuItem;
}

}  // namespace

const MenuItem* insertedItem(NSMenuItem* menuItem) {
    const id object = [menuItem representedObject];
    if (![object isKindOfClass:[BriselInsertedItem class]]) return nullptr;
    return &static_cast<BriselInsertedItem*>(object)->item;
}

Menu::Menu() : target_([[BriselMenuTarget alloc] init]) {}

void Menu::connect(NSMenu* menu, NSMenuItem* checkItem, const platform::Bundle& bundle) {
    menu_ = retained(menu);
    checkItem_ = retained(checkItem);
    for (NSMenuItem* menuItem in [menu itemArray]) {
        if ([menuItem isSeparatorItem]) continue;
        [menuItem setTitle:nsString(bundle.localizedString(stdString([menuItem title])))];
    }
}

void Menu::removeItemsWithTags(std::span<const int> tags) {
    // A copy: the loop changes the menu.
    NSArray<NSMenuItem*>* const items = [NSArray arrayWithArray:[menu_.get() itemArray]];
    for (NSMenuItem* menuItem in items) {
        if (std::find(tags.begin(), tags.end(), [menuItem tag]) == tags.end()) continue;
        guarded("remove a menu item", [&] { [menu_.get() removeItem:menuItem]; });
    }
}

void Menu::insertItem(MenuItem item, std::size_t index) {
    const auto menuItem = makeItem(std::move(item), target_.get());
    guarded("insert a menu item",
            [&] { [menu_.get() insertItem:menuItem.get() atIndex:static_cast<NSInteger>(index)]; });
}

void Menu::setChecked(std::string_view action, bool checked) {
    if ([checkItem_.get() action] != NSSelectorFromString(nsString(action))) return;
    [checkItem_.get() setState:checked ? NSControlStateValueOn : NSControlStateValueOff];
}

}  // namespace brisel::platform::macos
