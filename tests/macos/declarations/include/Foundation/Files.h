// Files, bundles and preferences.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Collections.h>

NS_ASSUME_NONNULL_BEGIN

// Bundles: a program's identity, texts and files.
@class NSURL;

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(readonly, copy) NSString* bundlePath;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
- (NSString*)localizedStringForKey:(NSString*)key
                             value:(nullable NSString*)value
                             table:(nullable NSString*)tableName NS_FORMAT_ARGUMENT(1);
@end

// The file system.
@class NSURL;
@protocol NSFileManagerDelegate;

typedef NSString* NSFileAttributeKey;
typedef NSString* NSURLResourceKey;

typedef NS_OPTIONS(NSUInteger, NSDirectoryEnumerationOptions) {
    NSDirectoryEnumerationSkipsHiddenFiles = 1UL << 2,
};

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
@property(nullable, assign) id<NSFileManagerDelegate> delegate;
@property(readonly, copy) NSString* currentDirectoryPath;
- (BOOL)fileExistsAtPath:(NSString*)path;
- (BOOL)fileExistsAtPath:(NSString*)path isDirectory:(nullable BOOL*)isDirectory;
- (BOOL)isWritableFileAtPath:(NSString*)path;
- (nullable NSArray<NSURL*>*)contentsOfDirectoryAtURL:(NSURL*)url
                           includingPropertiesForKeys:(nullable NSArray<NSURLResourceKey>*)keys
                                              options:(NSDirectoryEnumerationOptions)mask
                                                error:(NSError**)error;
- (BOOL)createDirectoryAtPath:(NSString*)path
    withIntermediateDirectories:(BOOL)createIntermediates
                     attributes:(nullable NSDictionary<NSFileAttributeKey, id>*)attributes
                          error:(NSError**)error;
- (BOOL)removeItemAtPath:(NSString*)path error:(NSError**)error;
- (NSString*)stringWithFileSystemRepresentation:(const char*)path length:(NSUInteger)length;
@end

@protocol NSFileManagerDelegate <NSObject>
@optional
- (BOOL)fileManager:(NSFileManager*)fileManager shouldRemoveItemAtPath:(NSString*)path;
- (BOOL)fileManager:(NSFileManager*)fileManager shouldRemoveItemAtURL:(NSURL*)url;
- (BOOL)fileManager:(NSFileManager*)fileManager
    shouldProceedAfterError:(NSError*)error
         removingItemAtPath:(NSString*)path;
@end

// Paths, and the folders that everybody has.
@interface NSString (NSStringPathExtensions)
// Valid as long as the string, or the innermost autorelease pool; raises an exception for a text
// that is no path.
@property(readonly) const char* fileSystemRepresentation NS_RETURNS_INNER_POINTER;
@end

CF_EXTERN_C_BEGIN
NSString* NSHomeDirectory(void);
CF_EXTERN_C_END

// Addresses.
@interface NSURL : NSObject <NSSecureCoding, NSCopying>
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDirectory;
+ (NSURL*)fileURLWithPath:(NSString*)path;
- (nullable instancetype)initWithString:(NSString*)text;
@property(nullable, readonly, copy) NSString* path;
@property(readonly) const char* fileSystemRepresentation NS_RETURNS_INNER_POINTER;
@property(readonly, getter=isFileURL) BOOL fileURL;
@end

// Preferences.
@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (instancetype)init;
- (nullable id)objectForKey:(NSString*)key;
- (void)setObject:(nullable id)value forKey:(NSString*)key;
// Nil where any element is no string.
- (nullable NSArray<NSString*>*)stringArrayForKey:(NSString*)key;
- (BOOL)boolForKey:(NSString*)key;
- (void)setBool:(BOOL)value forKey:(NSString*)key;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)defaults;
- (BOOL)synchronize;
@end

NS_ASSUME_NONNULL_END
