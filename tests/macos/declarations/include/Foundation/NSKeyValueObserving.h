// Declares key-value observing.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSKeyValueChangeKey;

typedef NS_OPTIONS(NSUInteger, NSKeyValueObservingOptions) {
    NSKeyValueObservingOptionNew = 0x01,
    NSKeyValueObservingOptionOld = 0x02,
    NSKeyValueObservingOptionInitial = 0x04,
    NSKeyValueObservingOptionPrior = 0x08,
};

extern NSKeyValueChangeKey const NSKeyValueChangeNewKey;
extern NSKeyValueChangeKey const NSKeyValueChangeOldKey;

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

@interface NSObject (NSKeyValueObserverNotification)
- (void)willChangeValueForKey:(NSString*)key;
- (void)didChangeValueForKey:(NSString*)key;
@end

NS_ASSUME_NONNULL_END
