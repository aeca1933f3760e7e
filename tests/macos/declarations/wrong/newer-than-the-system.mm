// A method of macOS 14 is called without a test for it.
// SPDX-License-Identifier: MIT
//
// says: 'activate' is only available on macOS 14.0 or newer
#import <AppKit/AppKit.h>

void comeToTheFront(NSApplication* application) {
    [application activate];
}
