// Declares NSRunningApplication.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>
#include <sys/types.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};

typedef NS_OPTIONS(NSUInteger, NSApplicationActivationOptions) {
    NSApplicationActivateAllWindows = 1 << 0,
    NSApplicationActivateIgnoringOtherApps API_DEPRECATED("has no effect in macOS 14",
                                                          macos(10.6, 14.0)) = 1 << 1,
};

@interface NSRunningApplication : NSObject
@property(class, readonly, strong) NSRunningApplication* currentApplication;
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:
    (NSString*)bundleIdentifier;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSURL* bundleURL;
@property(readonly) pid_t processIdentifier;
@property(readonly, getter=isTerminated) BOOL terminated;
@property(readonly, getter=isActive) BOOL active;
@property(readonly) NSApplicationActivationPolicy activationPolicy;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
- (BOOL)terminate;
@end

NS_ASSUME_NONNULL_END
