// A status item is asked for what its button has had since macOS 10.14.
// SPDX-License-Identifier: MIT
//
// says: 'setImage:' is deprecated: first deprecated in macOS 10.14
#import <AppKit/AppKit.h>

void show(NSStatusItem* item, NSImage* image) {
    [item setImage:image];
}
