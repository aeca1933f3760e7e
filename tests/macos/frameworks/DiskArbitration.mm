// The stand-in Disk Arbitration.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/DiskArbitration.h"

#include <list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/macos/Text.h"
#include "tests/macos/frameworks/CoreFoundation.h"
#include "tests/macos/frameworks/DiskArbitrationValues.h"
#include "tests/macos/frameworks/World.h"

using namespace brisel;
using namespace brisel::tests::macos;
using platform::macos::stdString;
using platform::Disk;
using platform::Dissenter;

namespace {

struct Registration {
    void* callback;
    void* context;
    platform::Subscription subscription;
};

/// The run loop mode of the scheduled session, or nil; the program has one session.
NSString* scheduledMode = nil;
/// The values set by describeWith().
NSMutableDictionary* toldValues = nil;

}  // namespace

@interface StageSession : StageCounted {
  @public
    std::list<Registration> registrations;
}
@end

@implementation StageSession

- (void)dealloc {
    if (scheduledMode != nil) complain("a session was released while it was scheduled");
    [super dealloc];
}

@end

namespace {

using DiskCallback = void (*)(DADiskRef, void*);

// The disk lives until the callback returns; a callback that keeps it must retain it.
platform::DiskArbitration::DiskCallback reporter(DiskCallback callback, void* context) {
    return [callback, context](const Disk& disk, const auto& description) {
        @autoreleasepool {
            const DADiskRef reported = createDisk(disk, description);
            callback(reported, context);
            CFRelease(reported);
        }
    };
}

using RequestCallback = void (*)(DADiskRef, DADissenterRef, void*);

void complete(RequestCallback callback, void* context, const Disk& disk,
              const std::optional<Dissenter>& dissenter) {
    if (callback == nullptr) return;
    @autoreleasepool {
        const DADissenterRef refusal = dissenter ? createDissenter(dissenter->status) : nullptr;
        const DADiskRef completed = createDisk(disk);
        callback(completed, refusal, context);
        CFRelease(completed);
        if (refusal != nullptr) CFRelease(refusal);
    }
}

platform::DiskArbitration::Completion completer(RequestCallback callback, void* context) {
    return [callback, context](const Disk& disk, const std::optional<Dissenter>& dissenter) {
        complete(callback, context, disk, dissenter);
    };
}

StageSession* sessionOf(DASessionRef session) {
    return reinterpret_cast<StageSession*>(session);
}

void fillMatches() {
    if (kDADiskDescriptionMatchVolumeMountable != nullptr) return;
    NSDictionary* const match = [NSDictionary
        dictionaryWithObject:[NSNumber numberWithBool:YES]
                      forKey:(__bridge NSString*)kDADiskDescriptionVolumeMountableKey];
    kDADiskDescriptionMatchVolumeMountable = (__bridge CFDictionaryRef)[match retain];
}

void checkMatch(CFDictionaryRef match) {
    if (match == nullptr) complain("a registration without a match: every disk would be reported");
}

}  // namespace

namespace brisel::tests::macos {

bool deliverDiskEvents(NSString* mode) {
    const bool common = [scheduledMode isEqualToString:NSRunLoopCommonModes];
    if (!common && ![scheduledMode isEqualToString:mode]) return false;
    return world().mainLoop.turnOnce();
}

void describeWith(CFStringRef key, id value) {
    if (toldValues == nil) toldValues = [[NSMutableDictionary alloc] init];
    [toldValues setObject:value forKey:(__bridge NSString*)key];
}

void resetDiskArbitration() {
    DESTROY(scheduledMode);
    DESTROY(toldValues);
    if (kDADiskDescriptionMatchVolumeMountable == nullptr) return;
    CFRelease(kDADiskDescriptionMatchVolumeMountable);
    kDADiskDescriptionMatchVolumeMountable = nullptr;
}

}  // namespace brisel::tests::macos

CFDictionaryRef kDADiskDescriptionMatchVolumeMountable = nullptr;

DASessionRef DASessionCreate(CFAllocatorRef /*allocator*/) {
    fillMatches();
    world().diskArbitration.createSession();
    if (orders().noSession) return nullptr;
    return reinterpret_cast<DASessionRef>([[StageSession alloc] init]);
}

void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef runLoop, CFStringRef mode) {
    if (session == nullptr) return;
    if (runLoop != CFRunLoopGetMain()) complain("a session was scheduled on another run loop");
    scheduledMode = [(__bridge NSString*)mode copy];
}

void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef /*runLoop*/,
                                    CFStringRef /*mode*/) {
    if (session == nullptr) return;
    [scheduledMode release];
    scheduledMode = nil;
}

void DARegisterDiskAppearedCallback(DASessionRef session, CFDictionaryRef match,
                                    DADiskAppearedCallback callback, void* context) {
    if (session == nullptr) return;
    checkMatch(match);
    sessionOf(session)->registrations.push_back(
        {reinterpret_cast<void*>(callback), context,
         world().diskArbitration.registerDiskAppearedCallback(reporter(callback, context))});
}

void DARegisterDiskDisappearedCallback(DASessionRef session, CFDictionaryRef match,
                                       DADiskDisappearedCallback callback, void* context) {
    if (session == nullptr) return;
    checkMatch(match);
    sessionOf(session)->registrations.push_back(
        {reinterpret_cast<void*>(callback), context,
         world().diskArbitration.registerDiskDisappearedCallback(reporter(callback, context))});
}

void DAUnregisterCallback(DASessionRef session, void* callback, void* context) {
    if (session == nullptr) return;
    sessionOf(session)->registrations.remove_if([=](const Registration& registration) {
        return registration.callback == callback && registration.context == context;
    });
}

DADiskRef DADiskCreateFromBSDName(CFAllocatorRef /*allocator*/, DASessionRef session,
                                  const char* name) {
    if (session == nullptr || name == nullptr) return nullptr;
    const auto disk = world().diskArbitration.diskFromBSDName(std::string(name));
    return disk ? createDisk(*disk) : nullptr;
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef /*allocator*/, DASessionRef session,
                                     CFURLRef path) {
    if (session == nullptr || path == nullptr) return nullptr;
    NSString* const text = [(__bridge NSURL*)path path];
    const auto disk =
        world().diskArbitration.diskFromVolumePath(platform::FileURL(stdString(text)));
    return disk ? createDisk(*disk) : nullptr;
}

CFDictionaryRef DADiskCopyDescription(DADiskRef disk) {
    const auto description =
        reportedDescriptionOf(disk).value_or(world().diskArbitration.copyDescription(diskOf(disk)));
    if (!description.mediaBSDName) return nullptr;
    @autoreleasepool {
        NSMutableDictionary* const values = dictionaryFrom(description);
        if (toldValues != nil) [values addEntriesFromDictionary:toldValues];
        return reinterpret_cast<CFDictionaryRef>([[StageDictionary alloc] initWithValues:values]);
    }
}

void DADiskUnmount(DADiskRef disk, DADiskUnmountOptions options, DADiskUnmountCallback callback,
                   void* context) {
    if (options != kDADiskUnmountOptionDefault) complain("an unmount with unknown options");
    if (orders().refusesAtOnce) {
        complete(callback, context, diskOf(disk),
                 Dissenter{.status = platform::DAReturn::NotPrivileged});
        return;
    }
    world().diskArbitration.unmount({.bsdName = diskOf(disk).bsdName},
                                    completer(callback, context));
}

void DADiskMountWithArguments(DADiskRef disk, CFURLRef path, DADiskMountOptions options,
                              DADiskMountCallback callback, void* context,
                              CFStringRef arguments[]) {
    if (options != kDADiskMountOptionDefault) complain("a mount with unknown options");
    if (path != nullptr) complain("a mount at a place that the system did not choose");
    std::vector<std::string> words;
    for (; arguments != nullptr && *arguments != nullptr; ++arguments)
        words.push_back(stdString((__bridge NSString*)*arguments));
    if (orders().refusesAtOnce) {
        complete(callback, context, diskOf(disk),
                 Dissenter{.status = platform::DAReturn::NotPrivileged});
        return;
    }
    world().diskArbitration.mountWithArguments({.bsdName = diskOf(disk).bsdName}, words,
                                               completer(callback, context));
}
