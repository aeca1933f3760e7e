// Declares NSThread.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSDate.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSThread : NSObject
@property(class, readonly, strong) NSThread* currentThread;
@property(class, readonly, strong) NSThread* mainThread;
@property(class, readonly) BOOL isMainThread;
@property(readonly) BOOL isMainThread;
+ (void)detachNewThreadSelector:(SEL)selector toTarget:(id)target withObject:(nullable id)argument;
+ (void)sleepForTimeInterval:(NSTimeInterval)seconds;
@end

@interface NSObject (NSThreadPerformAdditions)
- (void)performSelectorOnMainThread:(SEL)selector
                         withObject:(nullable id)argument
                      waitUntilDone:(BOOL)wait
                              modes:(nullable NSArray<NSString*>*)modes;
- (void)performSelectorOnMainThread:(SEL)selector
                         withObject:(nullable id)argument
                      waitUntilDone:(BOOL)wait;
- (void)performSelectorInBackground:(SEL)selector withObject:(nullable id)argument;
@end

NS_ASSUME_NONNULL_END
