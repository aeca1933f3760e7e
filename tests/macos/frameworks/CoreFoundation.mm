// The stand-in Core Foundation.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/CoreFoundation.h"

#include <cstdlib>
#include <cstring>

#include "tests/macos/frameworks/World.h"

using brisel::tests::macos::countIn;
using brisel::tests::macos::countOut;

@implementation StageUUID

- (instancetype)initWithText:(NSString*)text {
    self = [super init];
    text_ = [text copy];
    return self;
}

- (void)dealloc {
    [text_ release];
    [super dealloc];
}

- (NSString*)text {
    return text_;
}

@end

@implementation StageDictionary

- (instancetype)initWithValues:(NSDictionary*)values {
    self = [super init];
    values_ = [values copy];
    return self;
}

- (void)dealloc {
    [values_ release];
    [super dealloc];
}

- (NSDictionary*)values {
    return values_;
}

@end

@implementation StageString

- (instancetype)initWithText:(NSString*)text {
    self = [super init];
    text_ = [text copy];
    countIn("StageString");
    return self;
}

- (void)dealloc {
    countOut("StageString");
    [text_ release];
    [super dealloc];
}

- (NSUInteger)length {
    return [text_ length];
}

- (unichar)characterAtIndex:(NSUInteger)index {
    return [text_ characterAtIndex:index];
}

@end

namespace {

enum TypeID : CFTypeID { Other, Boolean_, String, URL, UUID };

id object(CFTypeRef reference) {
    return (__bridge id)reference;
}

}  // namespace

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFRunLoopMode kCFRunLoopDefaultMode = (__bridge CFStringRef)NSDefaultRunLoopMode;
const CFRunLoopMode kCFRunLoopCommonModes = (__bridge CFStringRef)NSRunLoopCommonModes;

// Crashes on null, as Core Foundation does.

CFTypeRef CFRetain(CFTypeRef reference) {
    if (reference == nullptr) std::abort();
    [object(reference) retain];
    return reference;
}

void CFRelease(CFTypeRef reference) {
    if (reference == nullptr) std::abort();
    [object(reference) release];
}

CFTypeID CFGetTypeID(CFTypeRef reference) {
    // GNUstep's Boolean numbers have their own class.
    const Class boolean = [[NSNumber numberWithBool:YES] class];
    if ([object(reference) isKindOfClass:boolean]) return Boolean_;
    if ([object(reference) isKindOfClass:[NSString class]]) return String;
    if ([object(reference) isKindOfClass:[NSURL class]]) return URL;
    if ([object(reference) isKindOfClass:[StageUUID class]]) return UUID;
    return Other;
}

CFTypeID CFBooleanGetTypeID(void) {
    return Boolean_;
}

CFTypeID CFStringGetTypeID(void) {
    return String;
}

CFTypeID CFURLGetTypeID(void) {
    return URL;
}

CFTypeID CFUUIDGetTypeID(void) {
    return UUID;
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
    return static_cast<Boolean>([object(boolean) boolValue]);
}

const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key) {
    StageDictionary* const copied = object(dictionary);
    return [[copied values] objectForKey:object(key)];
}

Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean /*resolveAgainstBase*/,
                                         UInt8* buffer, CFIndex maxBufLen) {
    NSURL* const fileURL = object(url);
    const char* const path = [[fileURL path] UTF8String];
    const auto size = std::strlen(path) + 1;
    if (static_cast<CFIndex>(size) > maxBufLen) return 0;
    std::memcpy(buffer, path, size);
    return 1;
}

CFStringRef CFUUIDCreateString(CFAllocatorRef /*allocator*/, CFUUIDRef uuid) {
    if (uuid == nullptr) std::abort();
    StageUUID* const stageUUID = object(uuid);
    return (__bridge CFStringRef)[[StageString alloc] initWithText:[stageUUID text]];
}

CFRunLoopRef CFRunLoopGetCurrent(void) {
    return reinterpret_cast<CFRunLoopRef>([NSRunLoop currentRunLoop]);
}

CFRunLoopRef CFRunLoopGetMain(void) {
    return reinterpret_cast<CFRunLoopRef>([NSRunLoop mainRunLoop]);
}
