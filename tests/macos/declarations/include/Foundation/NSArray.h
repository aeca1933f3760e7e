// Declares NSArray.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSEnumerator.h>
#import <Foundation/NSRange.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString, NSIndexSet;

@interface NSArray<__covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndex:(NSUInteger)index;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                          count:(NSUInteger)count NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSArray <ObjectType>(NSExtendedArray)
- (NSArray<ObjectType>*)arrayByAddingObject:(ObjectType)object;
- (NSArray<ObjectType>*)arrayByAddingObjectsFromArray:(NSArray<ObjectType>*)other;
- (NSString*)componentsJoinedByString:(NSString*)separator;
- (BOOL)containsObject:(ObjectType)object;
- (NSUInteger)indexOfObject:(ObjectType)object;
- (BOOL)isEqualToArray:(NSArray<ObjectType>*)other;
@property(nullable, nonatomic, readonly) ObjectType firstObject;
@property(nullable, nonatomic, readonly) ObjectType lastObject;
- (NSEnumerator<ObjectType>*)objectEnumerator;
- (NSEnumerator<ObjectType>*)reverseObjectEnumerator;
- (NSArray<ObjectType>*)subarrayWithRange:(NSRange)range;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)index;
- (void)enumerateObjectsUsingBlock:(void(NS_NOESCAPE ^)(ObjectType object, NSUInteger index,
                                                        BOOL* stop))block;
@end

@interface NSArray <ObjectType>(NSArrayCreation)
+ (instancetype)array;
+ (instancetype)arrayWithObject:(ObjectType)object;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects
                           count:(NSUInteger)count;
+ (instancetype)arrayWithObjects:(ObjectType)first, ... NS_REQUIRES_NIL_TERMINATION;
+ (instancetype)arrayWithArray:(NSArray<ObjectType>*)array;
- (instancetype)initWithObjects:(ObjectType)first, ... NS_REQUIRES_NIL_TERMINATION;
- (instancetype)initWithArray:(NSArray<ObjectType>*)array;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
- (void)addObject:(ObjectType)object;
- (void)insertObject:(ObjectType)object atIndex:(NSUInteger)index;
- (void)removeLastObject;
- (void)removeObjectAtIndex:(NSUInteger)index;
- (void)replaceObjectAtIndex:(NSUInteger)index withObject:(ObjectType)object;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCapacity:(NSUInteger)capacity NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSMutableArray <ObjectType>(NSExtendedMutableArray)
- (void)addObjectsFromArray:(NSArray<ObjectType>*)other;
- (void)removeAllObjects;
- (void)removeObject:(ObjectType)object;
- (void)setObject:(ObjectType)object atIndexedSubscript:(NSUInteger)index;
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
@end

NS_ASSUME_NONNULL_END
