// Declares the path methods of NSString and the functions for standard folders.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSString (NSStringPathExtensions)
@property(readonly, copy) NSArray<NSString*>* pathComponents;
@property(getter=isAbsolutePath, readonly) BOOL absolutePath;
@property(readonly, copy) NSString* lastPathComponent;
@property(readonly, copy) NSString* stringByDeletingLastPathComponent;
- (NSString*)stringByAppendingPathComponent:(NSString*)component;
@property(readonly, copy) NSString* pathExtension;
@property(readonly, copy) NSString* stringByDeletingPathExtension;
- (nullable NSString*)stringByAppendingPathExtension:(NSString*)extension;
@property(readonly, copy) NSString* stringByStandardizingPath;
@property(readonly, copy) NSString* stringByExpandingTildeInPath;
// Valid while the string or the innermost autorelease pool lives; raises an exception if the string
// is no valid path.
@property(readonly) const char* fileSystemRepresentation NS_RETURNS_INNER_POINTER;
@end

CF_EXTERN_C_BEGIN
NSString* NSUserName(void);
NSString* NSFullUserName(void);
NSString* NSHomeDirectory(void);
NSString* _Nullable NSHomeDirectoryForUser(NSString* _Nullable userName);
NSString* NSTemporaryDirectory(void);
CF_EXTERN_C_END

NS_ASSUME_NONNULL_END
