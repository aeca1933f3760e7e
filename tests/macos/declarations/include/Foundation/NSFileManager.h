// Declares NSFileManager.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSError.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSURL;
@protocol NSFileManagerDelegate;

typedef NSString* NSFileAttributeKey;
typedef NSString* NSURLResourceKey;

typedef NS_OPTIONS(NSUInteger, NSDirectoryEnumerationOptions) {
    NSDirectoryEnumerationSkipsSubdirectoryDescendants = 1UL << 0,
    NSDirectoryEnumerationSkipsPackageDescendants = 1UL << 1,
    NSDirectoryEnumerationSkipsHiddenFiles = 1UL << 2,
};

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
@property(nullable, assign) id<NSFileManagerDelegate> delegate;
@property(readonly, copy) NSString* currentDirectoryPath;
@property(readonly, copy) NSURL* homeDirectoryForCurrentUser API_AVAILABLE(macos(10.12));
- (BOOL)changeCurrentDirectoryPath:(NSString*)path;
- (BOOL)fileExistsAtPath:(NSString*)path;
- (BOOL)fileExistsAtPath:(NSString*)path isDirectory:(nullable BOOL*)isDirectory;
- (BOOL)isReadableFileAtPath:(NSString*)path;
- (BOOL)isWritableFileAtPath:(NSString*)path;
- (BOOL)isExecutableFileAtPath:(NSString*)path;
- (nullable NSArray<NSURL*>*)contentsOfDirectoryAtURL:(NSURL*)url
                           includingPropertiesForKeys:(nullable NSArray<NSURLResourceKey>*)keys
                                              options:(NSDirectoryEnumerationOptions)mask
                                                error:(NSError**)error;
- (nullable NSArray<NSString*>*)contentsOfDirectoryAtPath:(NSString*)path error:(NSError**)error;
- (BOOL)createDirectoryAtPath:(NSString*)path
    withIntermediateDirectories:(BOOL)createIntermediates
                     attributes:(nullable NSDictionary<NSFileAttributeKey, id>*)attributes
                          error:(NSError**)error;
- (BOOL)createDirectoryAtURL:(NSURL*)url
    withIntermediateDirectories:(BOOL)createIntermediates
                     attributes:(nullable NSDictionary<NSFileAttributeKey, id>*)attributes
                          error:(NSError**)error;
- (BOOL)removeItemAtPath:(NSString*)path error:(NSError**)error;
- (BOOL)removeItemAtURL:(NSURL*)url error:(NSError**)error;
- (const char*)fileSystemRepresentationWithPath:(NSString*)path NS_RETURNS_INNER_POINTER;
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

NS_ASSUME_NONNULL_END
