// Declares NSBundle.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSURL;

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
+ (nullable instancetype)bundleWithPath:(NSString*)path;
- (nullable instancetype)initWithPath:(NSString*)path NS_DESIGNATED_INITIALIZER;
+ (NSBundle*)bundleForClass:(Class)cls;
@property(readonly, copy) NSURL* bundleURL;
@property(readonly, copy) NSString* bundlePath;
@property(nullable, readonly, copy) NSString* resourcePath;
@property(nullable, readonly, copy) NSString* executablePath;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
- (nullable id)objectForInfoDictionaryKey:(NSString*)key;
- (nullable NSString*)pathForResource:(nullable NSString*)name ofType:(nullable NSString*)extension;
- (NSString*)localizedStringForKey:(NSString*)key
                             value:(nullable NSString*)value
                             table:(nullable NSString*)tableName NS_FORMAT_ARGUMENT(1);
@end

#define NSLocalizedString(key, comment) \
    [NSBundle.mainBundle localizedStringForKey:(key) value:@"" table:nil]

NS_ASSUME_NONNULL_END
