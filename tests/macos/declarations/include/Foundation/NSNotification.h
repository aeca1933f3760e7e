// Declares NSNotification.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSNotificationName;

@interface NSNotification : NSObject <NSCopying, NSCoding>
@property(readonly, copy) NSNotificationName name;
@property(nullable, readonly, retain) id object;
@property(nullable, readonly, copy) NSDictionary* userInfo;
- (instancetype)initWithName:(NSNotificationName)name
                      object:(nullable id)object
                    userInfo:(nullable NSDictionary*)userInfo NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)selector
               name:(nullable NSNotificationName)name
             object:(nullable id)object;
- (void)postNotification:(NSNotification*)notification;
- (void)postNotificationName:(NSNotificationName)name object:(nullable id)object;
- (void)postNotificationName:(NSNotificationName)name
                      object:(nullable id)object
                    userInfo:(nullable NSDictionary*)userInfo;
- (void)removeObserver:(id)observer;
- (void)removeObserver:(id)observer
                  name:(nullable NSNotificationName)name
                object:(nullable id)object;
@end

NS_ASSUME_NONNULL_END
