// Declares NSPoint, NSSize and NSRect.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObjCRuntime.h>

typedef double CGFloat;
#define CGFLOAT_IS_DOUBLE 1

typedef struct CGPoint {
    CGFloat x;
    CGFloat y;
} CGPoint;

typedef struct CGSize {
    CGFloat width;
    CGFloat height;
} CGSize;

typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

static inline NSSize NSMakeSize(CGFloat width, CGFloat height) {
    NSSize size = {width, height};
    return size;
}

static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    NSRect rect = {{x, y}, {width, height}};
    return rect;
}
