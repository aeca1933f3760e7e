// The alignment 1 is taken for the center, which it is not on Intel.
// SPDX-License-Identifier: MIT
//
// says: static_assert failed
// only: x86_64
#import <AppKit/AppKit.h>

static_assert(NSTextAlignmentCenter == 1);
