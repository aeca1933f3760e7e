// Declares NSTimer.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDate.h>

NS_ASSUME_NONNULL_BEGIN

// Retains its target until invalidated.
@interface NSTimer : NSObject
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                           target:(id)target
                         selector:(SEL)selector
                         userInfo:(nullable id)userInfo
                          repeats:(BOOL)repeats;
+ (NSTimer*)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                    target:(id)target
                                  selector:(SEL)selector
                                  userInfo:(nullable id)userInfo
                                   repeats:(BOOL)repeats;
+ (NSTimer*)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                   repeats:(BOOL)repeats
                                     block:(void (^)(NSTimer* timer))block
    API_AVAILABLE(macos(10.12));
- (void)fire;
@property(copy) NSDate* fireDate;
@property(readonly) NSTimeInterval timeInterval;
@property NSTimeInterval tolerance API_AVAILABLE(macos(10.9));
- (void)invalidate;
@property(readonly, getter=isValid) BOOL valid;
@property(nullable, readonly, retain) id userInfo;
@end

NS_ASSUME_NONNULL_END
