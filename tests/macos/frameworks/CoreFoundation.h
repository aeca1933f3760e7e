// The stand-in Core Foundation, on Foundation's objects and its own.
// SPDX-License-Identifier: MIT
#pragma once

#import <CoreFoundation/CoreFoundation.h>

#include "tests/macos/frameworks/Counted.h"

/// A CFUUID, stored as the text that CFUUIDCreateString returns.
@interface StageUUID : NSObject {
  @private
    NSString* text_;
}
- (instancetype)initWithText:(NSString*)text;
- (NSString*)text;
@end

/// A dictionary returned by a Copy function.
@interface StageDictionary : StageCounted {
  @private
    NSDictionary* values_;
}
- (instancetype)initWithValues:(NSDictionary*)values;
- (NSDictionary*)values;
@end

/// A string returned by a Create function.
@interface StageString : NSString {
  @private
    NSString* text_;
}
- (instancetype)initWithText:(NSString*)text;
@end
