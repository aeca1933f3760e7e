// The root class and its protocol.
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <objc/objc.h>

typedef long NSInteger;
typedef unsigned long NSUInteger;

@class NSString, NSMethodSignature, NSInvocation, Protocol;
typedef struct _NSZone NSZone;

// What may be null here is not written down, as little as it is in the platform's own header.
@protocol NSObject
- (BOOL)isEqual:(id)object;
@property(readonly) NSUInteger hash;
@property(readonly) Class superclass;
- (Class)class;
- (instancetype)self;
- (id)performSelector:(SEL)selector;
- (id)performSelector:(SEL)selector withObject:(id)object;
- (id)performSelector:(SEL)selector withObject:(id)object withObject:(id)other;
- (BOOL)isProxy;
- (BOOL)isKindOfClass:(Class)cls;
- (BOOL)isMemberOfClass:(Class)cls;
- (BOOL)conformsToProtocol:(Protocol*)protocol;
- (BOOL)respondsToSelector:(SEL)selector;
- (instancetype)retain;
- (oneway void)release;
- (instancetype)autorelease;
- (NSUInteger)retainCount;
- (NSZone*)zone;
@property(readonly, copy) NSString* description;
@optional
@property(readonly, copy) NSString* debugDescription;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
+ (void)load;
+ (void)initialize;
- (instancetype)init;
+ (instancetype)new;
+ (instancetype)allocWithZone:(struct _NSZone*)zone;
+ (instancetype)alloc;
- (void)dealloc;
- (void)finalize API_DEPRECATED("no longer called", macos(10.0, 10.12));
- (id)copy;
- (id)mutableCopy;
+ (BOOL)instancesRespondToSelector:(SEL)selector;
+ (BOOL)conformsToProtocol:(Protocol*)protocol;
- (IMP)methodForSelector:(SEL)selector;
+ (IMP)instanceMethodForSelector:(SEL)selector;
- (void)doesNotRecognizeSelector:(SEL)selector;
+ (NSUInteger)hash;
+ (Class)superclass;
+ (Class)class;
+ (NSString*)description;
+ (NSString*)debugDescription;
@end
