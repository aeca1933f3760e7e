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
#include "tests/macos/frameworks/World.h"

using namespace brisel;
using namespace brisel::tests::macos;
using platform::macos::nsString;
using platform::macos::stdString;
using platform::Disk;
using platform::DiskDescription;
using platform::Dissenter;

namespace {

struct Registration {
    void* callback;
    void* context;
    platform::Subscription subscription;
};

/// The session that is scheduled, and the mode: the program has one.
NSString* scheduledMode = nil;
/// What takes the place of values in descriptions.
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

@interface StageDisk : StageCounted {
  @public
    Disk disk;
}
@end

@implementation StageDisk
@end

@interface StageDissenter : StageCounted {
  @public
    std::uint32_t status;
}
@end

@implementation StageDissenter
@end

namespace {

DADiskRef createDisk(const Disk& disk) {
    StageDisk* const object = [[StageDisk alloc] init];
    object->disk = disk;
    return reinterpret_cast<DADiskRef>(object);
}

const Disk& diskOf(DADiskRef disk) {
    return reinterpret_cast<StageDisk*>(disk)->disk;
}

StageUUID* uuid(const std::string& text) {
    return [[[StageUUID alloc] initWithText:nsString(text)] autorelease];
}

NSDictionary* dictionaryFrom(const DiskDescription& description) {
    NSMutableDictionary* const values = [NSMutableDictionary dictionary];
    const auto set = [values](CFStringRef key, id value) {
        [values setObject:value forKey:(__bridge NSString*)key];
    };
    if (const auto& value = description.volumeMountable) {
        set(kDADiskDescriptionVolumeMountableKey, [NSNumber numberWithBool:*value]);
    }
    if (const auto& value = description.volumeKind) {
        set(kDADiskDescriptionVolumeKindKey, nsString(*value));
    }
    if (const auto& value = description.volumeName) {
        set(kDADiskDescriptionVolumeNameKey, nsString(*value));
    }
    if (const auto& value = description.mediaBSDName) {
        // A volume that is on no device has no such name.
        if (!value->empty()) set(kDADiskDescriptionMediaBSDNameKey, nsString(*value));
    }
    if (const auto& value = description.volumePath) {
        set(kDADiskDescriptionVolumePathKey, [NSURL fileURLWithPath:nsString(value->path())
                                                        isDirectory:YES]);
    }
    if (const auto& value = description.mediaUUID) {
        set(kDADiskDescriptionMediaUUIDKey, uuid(*value));
    }
    if (const auto& value = description.volumeUUID) {
        set(kDADiskDescriptionVolumeUUIDKey, uuid(*value));
    }
    if (toldValues != nil) [values addEntriesFromDictionary:toldValues];
    return values;
}

using DiskCallback = void (*)(DADiskRef, void*);

// The disk belongs to the call: whoever wants to keep it must retain it.
platform::DiskArbitration::DiskCallback reporter(DiskCallback callback, void* context) {
    return [callback, context](const Disk& disk) {
        @autoreleasepool {
            const DADiskRef reported = createDisk(disk);
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
        StageDissenter* const refusal = dissenter ? [[StageDissenter alloc] init] : nil;
        if (dissenter) refusal->status = dissenter->status;
        const DADiskRef completed = createDisk(disk);
        callback(completed, reinterpret_cast<DADissenterRef>(refusal), context);
        CFRelease(completed);
        [refusal release];
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

const CFStringRef kDADiskDescriptionVolumeKindKey = (__bridge CFStringRef) @"DAVolumeKind";
const CFStringRef kDADiskDescriptionVolumeMountableKey =
    (__bridge CFStringRef) @"DAVolumeMountable";
const CFStringRef kDADiskDescriptionVolumeNameKey = (__bridge CFStringRef) @"DAVolumeName";
const CFStringRef kDADiskDescriptionVolumePathKey = (__bridge CFStringRef) @"DAVolumePath";
const CFStringRef kDADiskDescriptionVolumeUUIDKey = (__bridge CFStringRef) @"DAVolumeUUID";
const CFStringRef kDADiskDescriptionMediaBSDNameKey = (__bridge CFStringRef) @"DAMediaBSDName";
const CFStringRef kDADiskDescriptionMediaUUIDKey = (__bridge CFStringRef) @"DAMediaUUID";

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

const char* DADiskGetBSDName(DADiskRef disk) {
    const bool named = disk != nullptr && !diskOf(disk).bsdName.empty();
    return named ? diskOf(disk).bsdName.c_str() : nullptr;
}

CFDictionaryRef DADiskCopyDescription(DADiskRef disk) {
    const auto description = world().diskArbitration.copyDescription(diskOf(disk));
    if (!description.mediaBSDName) return nullptr;
    @autoreleasepool {
        return reinterpret_cast<CFDictionaryRef>(
            [[StageDictionary alloc] initWithValues:dictionaryFrom(description)]);
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
    world().diskArbitration.unmount({.bsdName = diskOf(disk).bsdName, .reported = {}},
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
    world().diskArbitration.mountWithArguments({.bsdName = diskOf(disk).bsdName, .reported = {}},
                                               words, completer(callback, context));
}

DAReturn DADissenterGetStatus(DADissenterRef dissenter) {
    const auto* const refusal = reinterpret_cast<const StageDissenter*>(dissenter);
    return static_cast<DAReturn>(refusal->status);
}
