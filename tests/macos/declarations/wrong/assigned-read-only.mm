// A property is set that can only be read.
// SPDX-License-Identifier: MIT
//
// says: assignment to readonly property
#import <AppKit/AppKit.h>

void rename(NSBundle* bundle) {
    bundle.bundleIdentifier = @"";
}
