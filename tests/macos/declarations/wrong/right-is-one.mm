// The alignment 1 is taken for the right, which it is on Intel alone.
// SPDX-License-Identifier: MIT
//
// says: due to requirement 'NSTextAlignmentRight == 1'
// only: arm64
#import <AppKit/AppKit.h>

static_assert(NSTextAlignmentRight == 1);
