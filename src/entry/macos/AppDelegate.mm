// The application's delegate as the nib makes it.
// SPDX-License-Identifier: MIT
#import "entry/macos/AppDelegate.h"

#include "entry/macos/MenuBarApplication.h"

using brisel::macos::MenuBarApplication;

@implementation AppDelegate

// Also runs for a subclass without its own; registering the defaults again does no harm.
+ (void)initialize {
    brisel::AppDelegate::initialize(MenuBarApplication::shared().platform());
}

- (void)dealloc {
    [statusMenu release];
    [startAtLogin release];
    [super dealloc];
}

- (void)awakeFromNib {
    auto& application = MenuBarApplication::shared();
    application.connect(statusMenu, startAtLogin);
    application.delegate().awakeFromNib();
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    (void)notification;
    MenuBarApplication::shared().delegate().applicationWillTerminate();
}

// There is no window to restore; newer systems ask.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application {
    (void)application;
    return YES;
}

- (IBAction)toggleStartAtLogin:(id)sender {
    (void)sender;
    MenuBarApplication::shared().delegate().toggleStartAtLogin();
}

- (IBAction)bringToFront:(id)sender {
    (void)sender;
    MenuBarApplication::shared().delegate().bringToFront();
}

@end
