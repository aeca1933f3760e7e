// The stand-in for NSAppleScript.
// SPDX-License-Identifier: MIT
#include "platform/macos/Text.h"
#import "tests/macos/frameworks/Foundation.h"
#include "tests/macos/frameworks/Raising.h"
#include "tests/macos/frameworks/World.h"

using brisel::platform::macos::nsString;
using brisel::platform::macos::stdString;
using brisel::tests::macos::complain;
using brisel::tests::macos::raiseIfTold;
using brisel::tests::macos::world;

/// A dictionary that enumerates its keys in insertion order.
@interface StageOrderedDictionary : NSDictionary {
  @private
    NSArray* keys_;
    NSArray* values_;
}
- (instancetype)initWithKeys:(NSArray*)keys values:(NSArray*)values;
@end

@implementation StageOrderedDictionary

- (instancetype)initWithKeys:(NSArray*)keys values:(NSArray*)values {
    self = [super init];
    keys_ = [keys copy];
    values_ = [values copy];
    return self;
}

- (void)dealloc {
    [keys_ release];
    [values_ release];
    [super dealloc];
}

- (NSUInteger)count {
    return [keys_ count];
}

- (id)objectForKey:(id)key {
    const NSUInteger index = [keys_ indexOfObject:key];
    return index != NSNotFound ? [values_ objectAtIndex:index] : nil;
}

- (NSEnumerator*)keyEnumerator {
    return [keys_ objectEnumerator];
}

- (NSEnumerator*)objectEnumerator {
    return [values_ objectEnumerator];
}

@end

@implementation StageAppleScript

- (instancetype)initWithSource:(NSString*)source {
    self = [super init];
    source_ = [source copy];
    return self;
}

- (void)dealloc {
    [source_ release];
    [super dealloc];
}

- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary<NSString*, id>**)error {
    raiseIfTold();
    if (![NSThread isMainThread]) complain("a script outside the main thread");
    const auto result = world().scriptRunner.execute(stdString(source_));
    if (!result.error) return [[[NSAppleEventDescriptor alloc] init] autorelease];
    NSMutableArray* const keys = [NSMutableArray array];
    NSMutableArray* const values = [NSMutableArray array];
    for (const auto& [key, value] : *result.error) {
        [keys addObject:nsString(key)];
        [values addObject:nsString(value)];
    }
    if (error != nullptr) {
        *error = [[[StageOrderedDictionary alloc] initWithKeys:keys values:values] autorelease];
    }
    return nil;
}

@end
