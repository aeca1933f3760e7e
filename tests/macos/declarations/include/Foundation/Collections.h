// Collections, and what is built of them.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Values.h>

NS_ASSUME_NONNULL_BEGIN

// Walking through collections.
typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)length;
@end

// Dictionaries.
@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (nullable ObjectType)objectForKey:(KeyType)key;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

@interface NSDictionary <KeyType, ObjectType>(NSExtendedDictionary)
@property(readonly, copy) NSArray<KeyType>* allKeys;
@end

@interface NSDictionary <KeyType, ObjectType>(NSDictionaryCreation)
+ (instancetype)dictionary;
+ (instancetype)dictionaryWithObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary <KeyType, ObjectType>
- (void)setObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

@interface NSMutableDictionary <KeyType, ObjectType>(NSExtendedMutableDictionary)
- (void)setObject:(nullable ObjectType)object forKeyedSubscript:(KeyType<NSCopying>)key;
@end

// Arrays.
@class NSString, NSIndexSet;

@interface NSArray<__covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

@interface NSArray <ObjectType>(NSArrayCreation)
+ (instancetype)array;
+ (instancetype)arrayWithObject:(ObjectType)object;
+ (instancetype)arrayWithObjects:(ObjectType)object, ... NS_REQUIRES_NIL_TERMINATION;
+ (instancetype)arrayWithArray:(NSArray<ObjectType>*)array;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
- (void)addObject:(ObjectType)object;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

@interface NSMutableArray <ObjectType>(NSExtendedMutableArray)
- (void)setObject:(ObjectType)object atIndexedSubscript:(NSUInteger)index;
@end

// Strings with attributes.
typedef NSString* NSAttributedStringKey;

@interface NSAttributedString : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly, copy) NSString* string;
@end

@interface NSAttributedString (NSExtendedAttributedString)
@property(readonly) NSUInteger length;
- (instancetype)initWithString:(NSString*)string;
- (instancetype)initWithString:(NSString*)string
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
@end

@interface NSMutableAttributedString : NSAttributedString
@end

// Errors.
typedef NSString* NSErrorDomain;
typedef NSString* NSErrorUserInfoKey;

NS_ENUM(NSInteger){
    NSFileWriteNoPermissionError = 513,
};

@interface NSError : NSObject <NSCopying, NSSecureCoding>
@property(readonly, copy) NSDictionary<NSErrorUserInfoKey, id>* userInfo;
@property(readonly, copy) NSString* localizedDescription;
@property(nullable, readonly, copy) NSString* localizedFailureReason;
@end

// Exceptions.

@interface NSException : NSObject <NSCopying, NSSecureCoding>
@property(readonly, copy) NSExceptionName name;
@property(nullable, readonly, copy) NSString* reason;
@property(nullable, readonly, copy) NSDictionary* userInfo;
- (void)raise;
@end

@interface NSException (NSExceptionRaisingConveniences)
+ (void)raise:(NSExceptionName)name format:(NSString*)format, ... NS_FORMAT_FUNCTION(2, 3);
@end

// Sets.
@interface NSSet<__covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSSecureCoding, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

@interface NSSet <ObjectType>(NSExtendedSet)
+ (instancetype)set;
@end

@interface NSMutableSet<ObjectType> : NSSet <ObjectType>
- (void)addObject:(ObjectType)object;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

NS_ASSUME_NONNULL_END
