// Declares NSDictionary.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSEnumerator.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (nullable ObjectType)objectForKey:(KeyType)key;
- (NSEnumerator<KeyType>*)keyEnumerator;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                        forKeys:(const KeyType<NSCopying> _Nonnull[_Nullable])keys
                          count:(NSUInteger)count NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSDictionary <KeyType, ObjectType>(NSExtendedDictionary)
@property(readonly, copy) NSArray<KeyType>* allKeys;
@property(readonly, copy) NSArray<ObjectType>* allValues;
- (BOOL)isEqualToDictionary:(NSDictionary<KeyType, ObjectType>*)other;
- (NSEnumerator<ObjectType>*)objectEnumerator;
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)key;
- (void)enumerateKeysAndObjectsUsingBlock:(void(NS_NOESCAPE ^)(KeyType key, ObjectType object,
                                                               BOOL* stop))block;
@end

@interface NSDictionary <KeyType, ObjectType>(NSDictionaryCreation)
+ (instancetype)dictionary;
+ (instancetype)dictionaryWithObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
+ (instancetype)dictionaryWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                              forKeys:(const KeyType<NSCopying> _Nonnull[_Nullable])keys
                                count:(NSUInteger)count;
+ (instancetype)dictionaryWithObjectsAndKeys:(id)first, ... NS_REQUIRES_NIL_TERMINATION;
+ (instancetype)dictionaryWithDictionary:(NSDictionary<KeyType, ObjectType>*)dictionary;
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary <KeyType, ObjectType>
- (void)removeObjectForKey:(KeyType)key;
- (void)setObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCapacity:(NSUInteger)capacity NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSMutableDictionary <KeyType, ObjectType>(NSExtendedMutableDictionary)
- (void)addEntriesFromDictionary:(NSDictionary<KeyType, ObjectType>*)other;
- (void)removeAllObjects;
- (void)setObject:(nullable ObjectType)object forKeyedSubscript:(KeyType<NSCopying>)key;
+ (instancetype)dictionaryWithCapacity:(NSUInteger)capacity;
@end

NS_ASSUME_NONNULL_END
