// The alignment 1 is taken for the center, which it is not on Intel.
// SPDX-License-Identifier: MIT
//
// says: due to requirement 'NSTextAlignmentCenter == 1'
// only: x86_64
#import <AppKit/AppKit.h>

static_assert(NSTextAlignmentCenter == 1);
