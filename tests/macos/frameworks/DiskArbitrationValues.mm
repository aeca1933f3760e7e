// The values of the stand-in Disk Arbitration.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/DiskArbitrationValues.h"

#include <optional>
#include <string>

#include "platform/macos/Text.h"
#include "tests/macos/frameworks/CoreFoundation.h"

using namespace brisel;
using platform::macos::nsString;

@interface StageDisk : StageCounted {
  @public
    platform::Disk disk;
    std::optional<platform::DiskDescription> reported;
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

const CFStringRef kDADiskDescriptionVolumeKindKey = (__bridge CFStringRef) @"DAVolumeKind";
const CFStringRef kDADiskDescriptionVolumeMountableKey =
    (__bridge CFStringRef) @"DAVolumeMountable";
const CFStringRef kDADiskDescriptionVolumeNameKey = (__bridge CFStringRef) @"DAVolumeName";
const CFStringRef kDADiskDescriptionVolumePathKey = (__bridge CFStringRef) @"DAVolumePath";
const CFStringRef kDADiskDescriptionVolumeUUIDKey = (__bridge CFStringRef) @"DAVolumeUUID";
const CFStringRef kDADiskDescriptionMediaBSDNameKey = (__bridge CFStringRef) @"DAMediaBSDName";
const CFStringRef kDADiskDescriptionMediaUUIDKey = (__bridge CFStringRef) @"DAMediaUUID";

namespace {

NSNumber* number(bool value) {
    return [NSNumber numberWithBool:value];
}

NSString* text(const std::string& value) {
    return nsString(value);
}

// Nil for an empty name: such a volume is on no device.
NSString* deviceName(const std::string& value) {
    return value.empty() ? nil : nsString(value);
}

NSURL* folder(const platform::FileURL& value) {
    return [NSURL fileURLWithPath:nsString(value.path()) isDirectory:YES];
}

StageUUID* uuid(const std::string& value) {
    return [[[StageUUID alloc] initWithText:nsString(value)] autorelease];
}

template <typename Value, typename Conversion>
void setIfPresent(NSMutableDictionary* values, CFStringRef key, const std::optional<Value>& value,
                  Conversion convert) {
    const id object = value ? convert(*value) : nil;
    if (object != nil) [values setObject:object forKey:(__bridge NSString*)key];
}

}  // namespace

namespace brisel::tests::macos {

DADiskRef createDisk(const platform::Disk& disk,
                     std::optional<platform::DiskDescription> reported) {
    StageDisk* const object = [[StageDisk alloc] init];
    object->disk = disk;
    object->reported = std::move(reported);
    return reinterpret_cast<DADiskRef>(object);
}

std::optional<platform::DiskDescription> reportedDescriptionOf(DADiskRef disk) {
    return reinterpret_cast<StageDisk*>(disk)->reported;
}

const platform::Disk& diskOf(DADiskRef disk) {
    return reinterpret_cast<StageDisk*>(disk)->disk;
}

DADissenterRef createDissenter(std::uint32_t status) {
    StageDissenter* const object = [[StageDissenter alloc] init];
    object->status = status;
    return reinterpret_cast<DADissenterRef>(object);
}

NSMutableDictionary* dictionaryFrom(const platform::DiskDescription& description) {
    NSMutableDictionary* const values = [NSMutableDictionary dictionary];
    const auto set = [values](CFStringRef key, const auto& value, auto convert) {
        setIfPresent(values, key, value, convert);
    };
    set(kDADiskDescriptionVolumeMountableKey, description.volumeMountable, number);
    set(kDADiskDescriptionVolumeKindKey, description.volumeKind, text);
    set(kDADiskDescriptionVolumeNameKey, description.volumeName, text);
    set(kDADiskDescriptionMediaBSDNameKey, description.mediaBSDName, deviceName);
    set(kDADiskDescriptionVolumePathKey, description.volumePath, folder);
    set(kDADiskDescriptionMediaUUIDKey, description.mediaUUID, uuid);
    set(kDADiskDescriptionVolumeUUIDKey, description.volumeUUID, uuid);
    return values;
}

}  // namespace brisel::tests::macos

DAReturn DADissenterGetStatus(DADissenterRef dissenter) {
    const auto* const refusal = reinterpret_cast<const StageDissenter*>(dissenter);
    return static_cast<DAReturn>(refusal->status);
}

const char* DADiskGetBSDName(DADiskRef disk) {
    if (disk == nullptr) return nullptr;
    const auto& name = brisel::tests::macos::diskOf(disk).bsdName;
    return name.empty() ? nullptr : name.c_str();
}
