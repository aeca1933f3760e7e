// Declares NSAutoreleasePool.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSAutoreleasePool : NSObject
+ (void)addObject:(id)object;
- (void)addObject:(id)object;
- (void)drain;
@end

NS_ASSUME_NONNULL_END
