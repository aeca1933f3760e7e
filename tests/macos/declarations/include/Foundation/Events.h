// The process, its main loop and what is told through it.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Collections.h>

NS_ASSUME_NONNULL_BEGIN

// AppleScript.
@class NSURL;

@interface NSAppleEventDescriptor : NSObject <NSCopying, NSSecureCoding>
@end

// Main thread only.
@interface NSAppleScript : NSObject <NSCopying>
- (nullable instancetype)initWithSource:(NSString*)source NS_DESIGNATED_INITIALIZER;
@property(nullable, readonly, copy) NSString* source;
// Nil on failure, although the type excludes it.
- (NSAppleEventDescriptor*)executeAndReturnError:
    (NSDictionary<NSString*, id>* _Nullable* _Nullable)errorInfo;
@end

// Being told of changes by key.
typedef NSString* NSKeyValueChangeKey;

typedef NS_OPTIONS(NSUInteger, NSKeyValueObservingOptions) {
    NSKeyValueObservingOptionNew = 0x01,
};

@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(nullable void*)context;
@end

// Removing an observer that is not registered raises an exception.
@interface NSObject (NSKeyValueObserverRegistration)
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer
            forKeyPath:(NSString*)keyPath
               context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath;
@end

// Notifications inside the process.
typedef NSString* NSNotificationName;

@interface NSNotification : NSObject <NSCopying, NSCoding>
@property(readonly, copy) NSNotificationName name;
@property(nullable, readonly, retain) id object;
@property(nullable, readonly, copy) NSDictionary* userInfo;
@end

@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)postNotificationName:(NSNotificationName)name object:(nullable id)object;
- (void)addObserver:(id)observer
           selector:(SEL)selector
               name:(nullable NSNotificationName)name
             object:(nullable id)object;
- (void)removeObserver:(id)observer;
- (void)removeObserver:(id)observer
                  name:(nullable NSNotificationName)name
                object:(nullable id)object;
@end

// The process and the system that it runs on.
typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly, copy) NSArray<NSString*>* arguments;
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version
    API_AVAILABLE(macos(10.10));
@end

// Keeps its target alive until it is invalidated.
@interface NSTimer : NSObject
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
- (void)invalidate;
@property(nullable, readonly, retain) id userInfo;
@end

// Run loops and their modes.
extern NSRunLoopMode const NSDefaultRunLoopMode;

// The target is retained until the call.
@interface NSObject (NSDelayedPerforming)
- (void)performSelector:(SEL)selector
             withObject:(nullable id)argument
             afterDelay:(NSTimeInterval)delay
                inModes:(NSArray<NSRunLoopMode>*)modes;
+ (void)cancelPreviousPerformRequestsWithTarget:(id)target;
@end

@interface NSRunLoop : NSObject
@end

@interface NSRunLoop (NSRunLoopConveniences)
- (void)run;
@end

// Threads, and the way to the main one.
@interface NSThread : NSObject
@property(class, readonly) BOOL isMainThread;
@property(readonly) BOOL isMainThread;
@end

@interface NSObject (NSThreadPerformAdditions)
- (void)performSelectorOnMainThread:(SEL)selector
                         withObject:(nullable id)argument
                      waitUntilDone:(BOOL)wait
                              modes:(nullable NSArray<NSString*>*)modes;
- (void)performSelectorOnMainThread:(SEL)selector
                         withObject:(nullable id)argument
                      waitUntilDone:(BOOL)wait;
@end

NS_ASSUME_NONNULL_END
