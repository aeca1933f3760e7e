// The stand-in menu bar and its one item.
// SPDX-License-Identifier: MIT
#include <optional>
#include <utility>
#include <vector>

#include "platform/macos/Text.h"
#import "tests/macos/frameworks/AppKit.h"
#include "tests/macos/frameworks/World.h"

using brisel::platform::macos::nsString;
using brisel::platform::macos::stdString;
using brisel::tests::macos::itemsOf;
using brisel::tests::macos::world;

namespace {

StageStatusItem* itemInMenuBar = nil;

// Mirrors the AppKit menu in the simulated Mac, which writes it to the transcript.
void copyToWorld(NSMenu* menu) {
    auto& copy = world().statusMenu;
    std::vector<int> tags;
    for (const auto& item : copy.items())
        tags.push_back(item.tag);
    copy.removeItemsWithTags(tags);
    for (auto& item : itemsOf(menu))
        copy.insertItem(std::move(item), copy.items().size());
}

}  // namespace

namespace brisel::tests::macos {

StageStatusItem* statusItem() {
    return itemInMenuBar;
}

}  // namespace brisel::tests::macos

@implementation StageAppearance

- (instancetype)initWithName:(NSString*)name {
    self = [super init];
    name_ = [name copy];
    return self;
}

- (void)dealloc {
    [name_ release];
    [super dealloc];
}

- (NSString*)name {
    return name_;
}

@end

@interface StageStatusItem (Menu)
/// Mirrors the menu if it has changed since the last call.
- (void)tellMenu;
@end

@implementation StageStatusBarButton

- (void)dealloc {
    [accessibilityLabel_ release];
    [super dealloc];
}

- (void)setImage:(NSImage*)image {
    [itemInMenuBar tellMenu];
    world().statusItem.setImage(image != nil ? std::optional(stdString([image name]))
                                             : std::nullopt);
}

- (void)setAccessibilityLabel:(NSString*)label {
    ASSIGNCOPY(accessibilityLabel_, label);
}

- (NSString*)accessibilityLabel {
    return accessibilityLabel_;
}

- (StageAppearance*)effectiveAppearance {
    NSString* const name = nsString(world().statusItem.effectiveAppearanceName());
    return [[[StageAppearance alloc] initWithName:name] autorelease];
}

@end

@implementation StageStatusItem

- (instancetype)init {
    self = [super init];
    StageStatusBarButton* const button = [[StageStatusBarButton alloc] init];
    button_ = button;
    observation_ = world().statusItem.observeEffectiveAppearance([button] {
        [button willChangeValueForKey:@"effectiveAppearance"];
        [button didChangeValueForKey:@"effectiveAppearance"];
    });
    return self;
}

- (void)dealloc {
    if (itemInMenuBar == self) itemInMenuBar = nil;
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    observation_.reset();
    [menu_ release];
    [button_ release];
    [super dealloc];
}

- (void)menuDidChange:(NSNotification*)notification {
    (void)notification;
    menuChanged_ = YES;
}

- (void)tellMenu {
    if (!menuChanged_) return;
    menuChanged_ = NO;
    copyToWorld(menu_);
}

- (void)setMenu:(NSMenu*)menu {
    ASSIGN(menu_, menu);
    world().statusItem.showStatusMenu();
    NSNotificationCenter* const center = [NSNotificationCenter defaultCenter];
    for (NSString *name in [NSArray
             arrayWithObjects:NSMenuDidAddItemNotification, NSMenuDidRemoveItemNotification, nil]) {
        [center addObserver:self selector:@selector(menuDidChange:) name:name object:menu];
    }
}

- (NSMenu*)menu {
    return menu_;
}

- (StageStatusBarButton*)button {
    return button_;
}

@end

@implementation StageStatusBar

+ (StageStatusBar*)systemStatusBar {
    static StageStatusBar* const bar = [[StageStatusBar alloc] init];
    return bar;
}

- (StageStatusItem*)statusItemWithLength:(CGFloat)length {
    world().statusItem.create(length);
    itemInMenuBar = [[[StageStatusItem alloc] init] autorelease];
    return itemInMenuBar;
}

@end
