// A method's name is misspelt.
// SPDX-License-Identifier: MIT
//
// says: instance method '-removeItems:' not found
#import <AppKit/AppKit.h>

void removeFrom(NSMenu* menu, NSMenuItem* menuItem) {
    [menu removeItems:menuItem];
}
