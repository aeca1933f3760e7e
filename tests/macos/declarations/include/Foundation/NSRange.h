// Declares NSRange.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObjCRuntime.h>

CF_EXTERN_C_BEGIN

typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;

static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
    NSRange range = {location, length};
    return range;
}

CF_EXTERN_C_END
