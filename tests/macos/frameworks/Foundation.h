// Stand-ins for Foundation classes that GNUstep lacks or that would touch the user's files.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include "tests/macos/frameworks/Counted.h"

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

typedef NSString* NSKeyValueChangeKey;

@interface NSProcessInfo (StageVersion)
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version;
@end

@interface StageFileManager : NSFileManager
@end

@interface StageUserDefaults : NSObject
+ (StageUserDefaults*)standardUserDefaults;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)defaults;
- (BOOL)boolForKey:(NSString*)key;
- (NSArray<NSString*>*)stringArrayForKey:(NSString*)key;
- (void)setBool:(BOOL)value forKey:(NSString*)key;
- (void)setObject:(id)value forKey:(NSString*)key;
- (BOOL)synchronize;
@end

@interface StageAppleScript : StageCounted {
  @private
    NSString* source_;
}
- (instancetype)initWithSource:(NSString*)source;
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary<NSString*, id>**)error;
@end

/// Nil for SMAppService unless orders() has an answer for it.
Class StageClassFromString(NSString* name);
NSString* StageHomeDirectory(void);
void StageLog(NSString* format, ...) NS_FORMAT_FUNCTION(1, 2);
