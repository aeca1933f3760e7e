// Stand-ins for what GNUstep's AppKit lacks.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/AppKit.h"

#include <cstdlib>
#include <string>

#include "platform/macos/Text.h"
#include "tests/macos/frameworks/Counted.h"
#include "tests/macos/frameworks/Raising.h"
#include "tests/macos/frameworks/World.h"

using brisel::tests::macos::countIn;
using brisel::tests::macos::countOut;
using brisel::tests::macos::itemsOf;
using brisel::tests::macos::raiseIfTold;
using brisel::platform::macos::nsString;
using brisel::platform::macos::stdString;
using brisel::tests::macos::world;
namespace platform = brisel::platform;

namespace {

StageStatusItem* itemInMenuBar = nil;

// The simulated Mac's own menu follows the real one, so that it tells of it in its own words.
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
/// Tells of the menu where it has changed since.
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

@implementation StageWorkspace

+ (StageWorkspace*)sharedWorkspace {
    static StageWorkspace* const workspace = [[StageWorkspace alloc] init];
    return workspace;
}

- (BOOL)openURL:(NSURL*)url {
    raiseIfTold();
    std::optional<platform::FileURL> folder;
    if (url != nil) folder = platform::FileURL(stdString([url path]));
    world().workspace.openURL(folder);
    return url != nil ? YES : NO;
}

@end

@implementation StageMenuItem

- (void)dealloc {
    [stageTitle_ release];
    [super dealloc];
}

- (void)setAttributedTitle:(NSAttributedString*)title {
    ASSIGNCOPY(stageTitle_, title);
}

- (NSAttributedString*)attributedTitle {
    return stageTitle_;
}

@end

@implementation StageAlert

- (instancetype)init {
    self = [super init];
    countIn("StageAlert");
    return self;
}

- (void)dealloc {
    countOut("StageAlert");
    [super dealloc];
}

- (NSInteger)runModal {
    raiseIfTold();
    platform::AlertContent content{.messageText = stdString([self messageText]),
                                   .informativeText = stdString([self informativeText]),
                                   .buttons = {}};
    for (NSButton* button in [self buttons])
        content.buttons.push_back(stdString([button title]));
    return world().alert.runModal(content);
}

@end

namespace {

// GNUstep brings the application to the front at the start, by itself.
bool launched = false;

}  // namespace

@implementation StageApplication

- (void)finishLaunching {
    [super finishLaunching];
    launched = true;
}

- (void)activateIgnoringOtherApps:(BOOL)flag {
    raiseIfTold();
    if (flag && launched) world().application.activateIgnoringOtherApps();
    [super activateIgnoringOtherApps:flag];
}

- (void)orderFrontStandardAboutPanel:(id)sender {
    raiseIfTold();
    world().application.orderFrontStandardAboutPanel();
    [super orderFrontStandardAboutPanel:sender];
}

- (void)terminate:(id)sender {
    (void)sender;
    raiseIfTold();
    world().transcript.write("terminate");
    // GNUstep's own does nothing before the main loop runs; the Mac's always ends the process.
    [[NSNotificationCenter defaultCenter]
        postNotificationName:NSApplicationWillTerminateNotification
                      object:self];
    std::exit(EXIT_SUCCESS);
}

@end
