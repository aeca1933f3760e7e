// Declares NSRunLoop.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSDate.h>
#import <Foundation/NSTimer.h>

NS_ASSUME_NONNULL_BEGIN

extern NSRunLoopMode const NSDefaultRunLoopMode;
extern NSRunLoopMode const NSRunLoopCommonModes;

@interface NSRunLoop : NSObject
@property(class, readonly, strong) NSRunLoop* currentRunLoop;
@property(class, readonly, strong) NSRunLoop* mainRunLoop;
@property(nullable, readonly, copy) NSRunLoopMode currentMode;
- (CFRunLoopRef)getCFRunLoop;
- (void)addTimer:(NSTimer*)timer forMode:(NSRunLoopMode)mode;
@end

@interface NSRunLoop (NSRunLoopConveniences)
- (void)run;
- (void)runUntilDate:(NSDate*)limit;
- (BOOL)runMode:(NSRunLoopMode)mode beforeDate:(NSDate*)limit;
- (void)performBlock:(void (^)(void))block API_AVAILABLE(macos(10.12));
@end

@interface NSObject (NSDelayedPerforming)
- (void)performSelector:(SEL)selector
             withObject:(nullable id)argument
             afterDelay:(NSTimeInterval)delay
                inModes:(NSArray<NSRunLoopMode>*)modes;
- (void)performSelector:(SEL)selector
             withObject:(nullable id)argument
             afterDelay:(NSTimeInterval)delay;
+ (void)cancelPreviousPerformRequestsWithTarget:(id)target;
@end

NS_ASSUME_NONNULL_END
