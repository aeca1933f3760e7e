// Declares NSUserDefaults.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (instancetype)init;
- (nullable instancetype)initWithSuiteName:(nullable NSString*)name NS_DESIGNATED_INITIALIZER;
- (nullable id)objectForKey:(NSString*)key;
- (void)setObject:(nullable id)value forKey:(NSString*)key;
- (void)removeObjectForKey:(NSString*)key;
- (nullable NSString*)stringForKey:(NSString*)key;
- (nullable NSArray*)arrayForKey:(NSString*)key;
- (nullable NSDictionary<NSString*, id>*)dictionaryForKey:(NSString*)key;
// Nil if an element is not a string.
- (nullable NSArray<NSString*>*)stringArrayForKey:(NSString*)key;
- (NSInteger)integerForKey:(NSString*)key;
- (double)doubleForKey:(NSString*)key;
- (BOOL)boolForKey:(NSString*)key;
- (void)setInteger:(NSInteger)value forKey:(NSString*)key;
- (void)setDouble:(double)value forKey:(NSString*)key;
- (void)setBool:(BOOL)value forKey:(NSString*)key;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)defaults;
- (NSDictionary<NSString*, id>*)dictionaryRepresentation;
- (BOOL)synchronize;
@end

NS_ASSUME_NONNULL_END
