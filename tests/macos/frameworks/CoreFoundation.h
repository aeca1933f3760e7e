// The stand-in Core Foundation: its objects are Foundation's, or these.
// SPDX-License-Identifier: MIT
#pragma once

#import <CoreFoundation/CoreFoundation.h>

#include "tests/macos/frameworks/Counted.h"

/// A CFUUID, as the text that CFUUIDCreateString makes of it.
@interface StageUUID : NSObject {
  @private
    NSString* text_;
}
- (instancetype)initWithText:(NSString*)text;
- (NSString*)text;
@end

/// A dictionary that a Copy function has handed out.
@interface StageDictionary : StageCounted {
  @private
    NSDictionary* values_;
}
- (instancetype)initWithValues:(NSDictionary*)values;
- (NSDictionary*)values;
@end

/// A string that a Create function has handed out.
@interface StageString : NSString {
  @private
    NSString* text_;
}
- (instancetype)initWithText:(NSString*)text;
@end
