// Stand-ins for what GNUstep's AppKit lacks.
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

/// The button of a status item; its appearance can be observed by key.
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

/// GNUstep's own drops the attributes of a title.
@interface StageMenuItem : NSMenuItem {
  @private
    NSAttributedString* stageTitle_;
}
@end

/// Runs the main loop in the modal mode while the scenario is asked for an answer.
@interface StageAlert : NSAlert
@end

/// Tells of what the application does on its own behalf, and does it.
@interface StageApplication : NSApplication
@end

namespace brisel::tests::macos {

/// The items of a menu as values, from the top.
std::vector<platform::MenuItem> itemsOf(NSMenu* menu);
/// The status item that is in the menu bar; nil as long as there is none.
StageStatusItem* statusItem();

}  // namespace brisel::tests::macos
