// A number stands for an alignment without a cast.
// SPDX-License-Identifier: MIT
//
// says: cannot initialize a parameter of type 'NSTextAlignment'
#import <AppKit/AppKit.h>

void align(NSMutableAttributedString* title, int alignment) {
    [title setAlignment:alignment range:NSMakeRange(0, [title length])];
}
