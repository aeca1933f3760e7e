// Declares NSTextAlignment.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

// Center and right have swapped values on Intel.
typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
#if __arm64__
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
#else
    NSTextAlignmentRight = 1,
    NSTextAlignmentCenter = 2,
#endif
    NSTextAlignmentJustified = 3,
    NSTextAlignmentNatural = 4,
};

NS_ASSUME_NONNULL_END
