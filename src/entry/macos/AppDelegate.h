// The application's delegate as the nib makes it: hands everything on to the core's.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

@interface AppDelegate : NSObject <NSApplicationDelegate> {
  @private
    IBOutlet NSMenu* statusMenu;
    IBOutlet NSMenuItem* startAtLogin;
}
- (IBAction)toggleStartAtLogin:(id)sender;
- (IBAction)bringToFront:(id)sender;
@end
