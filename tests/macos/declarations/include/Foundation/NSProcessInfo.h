// Declares NSProcessInfo.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly, copy) NSDictionary<NSString*, NSString*>* environment;
@property(readonly, copy) NSArray<NSString*>* arguments;
@property(copy) NSString* processName;
@property(readonly) int processIdentifier;
@property(readonly, copy) NSString* operatingSystemVersionString;
@property(readonly) NSOperatingSystemVersion operatingSystemVersion API_AVAILABLE(macos(10.10));
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version
    API_AVAILABLE(macos(10.10));
@end

NS_ASSUME_NONNULL_END
