// Stand-ins for AppKit classes that GNUstep lacks or implements differently.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

#include <vector>

#include "platform/Menu.h"
#include "platform/Subscription.h"

@interface StageAppearance : NSObject {
  @private
    NSString* name_;
}
- (instancetype)initWithName:(NSString*)name;
- (NSString*)name;
@end

/// The button of a status item; effectiveAppearance is key-value observable.
@interface StageStatusBarButton : NSObject {
  @private
    NSString* accessibilityLabel_;
}
- (void)setImage:(NSImage*)image;
- (void)setAccessibilityLabel:(NSString*)label;
- (NSString*)accessibilityLabel;
- (StageAppearance*)effectiveAppearance;
@end

@interface StageStatusItem : NSObject {
  @private
    NSMenu* menu_;
    StageStatusBarButton* button_;
    BOOL menuChanged_;
    brisel::platform::Subscription observation_;
}
- (void)setMenu:(NSMenu*)menu;
- (NSMenu*)menu;
- (StageStatusBarButton*)button;
@end

@interface StageStatusBar : NSObject
+ (StageStatusBar*)systemStatusBar;
- (StageStatusItem*)statusItemWithLength:(CGFloat)length;
@end

@interface StageWorkspace : NSObject
+ (StageWorkspace*)sharedWorkspace;
- (BOOL)openURL:(NSURL*)url;
@end

/// Keeps the attributes of the title, which GNUstep drops.
@interface StageMenuItem : NSMenuItem {
  @private
    NSAttributedString* stageTitle_;
}
@end

/// Answered by the simulated Mac's alert, with the main loop in the modal mode meanwhile.
@interface StageAlert : NSAlert
@end

/// Records activation, About panel and termination in the transcript, and performs them.
@interface StageApplication : NSApplication
@end

namespace brisel::tests::macos {

/// The items of a menu as values, in order.
std::vector<platform::MenuItem> itemsOf(NSMenu* menu);
/// The status item in the menu bar, or nil.
StageStatusItem* statusItem();

}  // namespace brisel::tests::macos
