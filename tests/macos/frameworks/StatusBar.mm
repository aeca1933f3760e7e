// The stand-in menu bar and its one item.
// SPDX-License-Identifier: MIT
#include <utility>
#include <vector>

#include "platform/macos/Text.h"
#import "tests/macos/frameworks/AppKit.h"
#import "tests/macos/frameworks/Raising.h"
#include "tests/macos/frameworks/World.h"

using brisel::platform::macos::nsString;
using brisel::platform::macos::optionalString;
using brisel::tests::macos::complain;
using brisel::tests::macos::itemsOf;
using brisel::tests::macos::orders;
using brisel::tests::macos::raiseIfTold;
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
    [image_ release];
    [accessibilityLabel_ release];
    [refreshIsDue_ release];
    [super dealloc];
}

- (void)setImage:(NSImage*)image {
    raiseIfTold();
    if (image != nil && image == image_) complain("the image that is up was assigned again");
    ++imageAssignments_;
    ASSIGN(image_, image);
    [self resolveAppearance];
}

- (NSImage*)image {
    return image_;
}

- (void)setAccessibilityLabel:(NSString*)label {
    ASSIGNCOPY(accessibilityLabel_, label);
}

- (NSString*)accessibilityLabel {
    DESTROY(refreshIsDue_);
    [itemInMenuBar tellMenu];
    world().statusItem.setImage(optionalString([image_ name]));
    return accessibilityLabel_;
}

- (StageAppearance*)effectiveAppearance {
    NSString* const settled = nsString(world().statusItem.effectiveAppearanceName());
    NSString* const name = passingAppearance_ != nil ? passingAppearance_ : settled;
    return [[[StageAppearance alloc] initWithName:name] autorelease];
}

- (void)notifyWhilePassing:(NSString*)appearance {
    passingAppearance_ = appearance;
    [self willChangeValueForKey:@"effectiveAppearance"];
    [self didChangeValueForKey:@"effectiveAppearance"];
    passingAppearance_ = nil;
}

- (void)notifyOfPassingAndSettled {
    [self notifyWhilePassing:@"NSAppearanceNameDarkAqua"];
    [self notifyWhilePassing:nil];
}

// GNUstep has no common modes.
- (void)performSoon:(SEL)selector {
    [NSObject cancelPreviousPerformRequestsWithTarget:self selector:selector object:nil];
    [self performSelector:selector
               withObject:nil
               afterDelay:0
                  inModes:[NSArray
                              arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, nil]];
}

- (void)resolveAppearance {
    if (resolves_) {
        [self performSoon:@selector(resolveAppearance)];
        return;
    }
    resolves_ = YES;
    [self notifyOfPassingAndSettled];
    resolves_ = NO;
    if (orders().hasSecondDisplay) [self performSoon:@selector(notifyOfPassingAndSettled)];
}

- (void)appearanceDidChange {
    constexpr NSTimeInterval LongestWait = 5;
    if ([self observationInfo] != nullptr) {
        ASSIGN(refreshIsDue_, [NSDate dateWithTimeIntervalSinceNow:LongestWait]);
    }
    [self resolveAppearance];
}

- (BOOL)awaitsRefresh {
    return [refreshIsDue_ timeIntervalSinceNow] > 0 ? YES : NO;
}

- (NSUInteger)imageAssignments {
    return imageAssignments_;
}

@end

@implementation StageStatusItem

- (instancetype)init {
    self = [super init];
    StageStatusBarButton* const button = [[StageStatusBarButton alloc] init];
    button_ = button;
    observation_ =
        world().statusItem.observeEffectiveAppearance([button] { [button appearanceDidChange]; });
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
