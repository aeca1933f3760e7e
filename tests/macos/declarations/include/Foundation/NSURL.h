// Declares NSURL.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSURLResourceKey;

@interface NSURL : NSObject <NSSecureCoding, NSCopying>
- (instancetype)initFileURLWithPath:(NSString*)path
                        isDirectory:(BOOL)isDirectory NS_DESIGNATED_INITIALIZER;
- (instancetype)initFileURLWithPath:(NSString*)path NS_DESIGNATED_INITIALIZER;
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDirectory;
+ (NSURL*)fileURLWithPath:(NSString*)path;
- (nullable instancetype)initWithString:(NSString*)text;
+ (nullable instancetype)URLWithString:(NSString*)text;
@property(nullable, readonly, copy) NSString* absoluteString;
@property(nullable, readonly, copy) NSString* scheme;
@property(nullable, readonly, copy) NSString* path;
@property(readonly) const char* fileSystemRepresentation NS_RETURNS_INNER_POINTER;
@property(readonly, getter=isFileURL) BOOL fileURL;
@property(nullable, readonly, copy) NSString* lastPathComponent;
@property(nullable, readonly, copy) NSURL* URLByDeletingLastPathComponent;
- (nullable NSURL*)URLByAppendingPathComponent:(NSString*)component;
- (nullable NSURL*)URLByAppendingPathComponent:(NSString*)component isDirectory:(BOOL)isDirectory;
@end

NS_ASSUME_NONNULL_END
