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

/// The button of a status item; effectiveAppearance is key-value observable. An assigned image
/// makes it resolve its appearance anew: observers are notified with the application's appearance,
/// then with the settled one, and again a moment later if there is a second display.
@interface StageStatusBarButton : NSObject {
  @private
    NSImage* image_;
    NSString* accessibilityLabel_;
    NSString* passingAppearance_;
    NSDate* refreshIsDue_;
    NSUInteger imageAssignments_;
    BOOL resolves_;
}
- (void)setImage:(NSImage*)image;
- (NSImage*)image;
- (void)setAccessibilityLabel:(NSString*)label;
/// The program compares the label last when it shows a state, so this writes the image that is up
/// to the transcript.
- (NSString*)accessibilityLabel;
- (StageAppearance*)effectiveAppearance;
- (void)appearanceDidChange;
/// Whether the program has yet to show a state after a change of the appearance; NO after 5
/// seconds.
- (BOOL)awaitsRefresh;
- (NSUInteger)imageAssignments;
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

/// The window of an alert.
@interface StageAlertWindow : NSObject {
  @private
    BOOL isInFront_;
}
- (void)center;
- (void)orderFrontRegardless;
- (BOOL)isInFront;
@end

/// Answered by the simulated Mac's alert, with the main loop in the modal mode meanwhile. Before
/// each alert the user is in another application, behind which it is a misuse to open.
@interface StageAlert : NSAlert {
  @private
    StageAlertWindow* alertWindow_;
}
/// GNUstep lays an alert out when it runs.
- (void)layout;
- (StageAlertWindow*)window;
@end

/// Records activation, About panel and termination in the transcript, and performs them. Activation
/// while there is an alert is part of the alert.
@interface StageApplication : NSApplication
@end

namespace brisel::tests::macos {

/// The items of a menu as values, in order.
std::vector<platform::MenuItem> itemsOf(NSMenu* menu);
/// The status item in the menu bar, or nil.
StageStatusItem* statusItem();

}  // namespace brisel::tests::macos
