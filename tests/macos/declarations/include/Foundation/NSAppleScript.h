// Declares NSAppleScript.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSURL;

@interface NSAppleEventDescriptor : NSObject <NSCopying, NSSecureCoding>
@property(nullable, readonly, copy) NSString* stringValue;
@end

extern NSString* const NSAppleScriptErrorMessage;
extern NSString* const NSAppleScriptErrorNumber;
extern NSString* const NSAppleScriptErrorAppName;
extern NSString* const NSAppleScriptErrorBriefMessage;
extern NSString* const NSAppleScriptErrorRange;

// Main thread only.
@interface NSAppleScript : NSObject <NSCopying>
- (nullable instancetype)initWithContentsOfURL:(NSURL*)url
                                         error:(NSDictionary<NSString*, id>* _Nullable* _Nullable)
                                                   errorInfo NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithSource:(NSString*)source NS_DESIGNATED_INITIALIZER;
@property(nullable, readonly, copy) NSString* source;
@property(readonly, getter=isCompiled) BOOL compiled;
- (BOOL)compileAndReturnError:(NSDictionary<NSString*, id>* _Nullable* _Nullable)errorInfo;
// Nil on error, in spite of the nonnull type.
- (NSAppleEventDescriptor*)executeAndReturnError:
    (NSDictionary<NSString*, id>* _Nullable* _Nullable)errorInfo;
@end

NS_ASSUME_NONNULL_END
