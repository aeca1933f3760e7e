// The alignment 1 is taken for the right, which it is on Intel alone.
// SPDX-License-Identifier: MIT
//
// says: static_assert failed
// only: arm64
#import <AppKit/AppKit.h>

static_assert(NSTextAlignmentRight == 1);
