// Pools of what is to be released later.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSAutoreleasePool : NSObject
+ (void)addObject:(id)object;
- (void)addObject:(id)object;
- (void)drain;
@end

NS_ASSUME_NONNULL_END
