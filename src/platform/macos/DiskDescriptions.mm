// Reads Disk Arbitration's disk descriptions.
// SPDX-License-Identifier: MIT
#import "platform/macos/DiskDescriptions.h"

#import <Foundation/Foundation.h>

#include <array>
#include <climits>

#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

namespace {

/// Value of `key`; null if absent or of another type.
CFTypeRef valueOfType(CFDictionaryRef description, CFStringRef key, CFTypeID type) {
    const CFTypeRef value = CFDictionaryGetValue(description, key);
    return value != nullptr && CFGetTypeID(value) == type ? value : nullptr;
}

std::optional<bool> flag(CFDictionaryRef description, CFStringRef key) {
    const CFTypeRef value = valueOfType(description, key, CFBooleanGetTypeID());
    if (value == nullptr) return std::nullopt;
    return CFBooleanGetValue(static_cast<CFBooleanRef>(value)) != 0;
}

std::optional<std::string> text(CFDictionaryRef description, CFStringRef key) {
    return optionalString((__bridge NSString*)valueOfType(description, key, CFStringGetTypeID()));
}

std::optional<FileURL> folder(CFDictionaryRef description, CFStringRef key) {
    const CFTypeRef value = valueOfType(description, key, CFURLGetTypeID());
    std::array<UInt8, PATH_MAX> path{};
    const bool fits = value != nullptr &&
                      CFURLGetFileSystemRepresentation(static_cast<CFURLRef>(value), 1, path.data(),
                                                       static_cast<CFIndex>(path.size())) != 0;
    if (!fits) return std::nullopt;
    return FileURL(reinterpret_cast<const char*>(path.data()));
}

std::optional<std::string> uuid(CFDictionaryRef description, CFStringRef key) {
    const CFTypeRef value = valueOfType(description, key, CFUUIDGetTypeID());
    if (value == nullptr) return std::nullopt;
    const Owned<CFStringRef> string(
        CFUUIDCreateString(kCFAllocatorDefault, static_cast<CFUUIDRef>(value)));
    return optionalString((__bridge NSString*)string.get());
}

}  // namespace

DiskDescription descriptionOf(DADiskRef disk) {
    const Owned<CFDictionaryRef> owned(DADiskCopyDescription(disk));
    if (!owned) return {};
    const CFDictionaryRef description = owned.get();
    return {.volumeMountable = flag(description, kDADiskDescriptionVolumeMountableKey),
            .volumeKind = text(description, kDADiskDescriptionVolumeKindKey),
            .volumeName = text(description, kDADiskDescriptionVolumeNameKey),
            .mediaBSDName = text(description, kDADiskDescriptionMediaBSDNameKey),
            .volumePath = folder(description, kDADiskDescriptionVolumePathKey),
            .mediaUUID = uuid(description, kDADiskDescriptionMediaUUIDKey),
            .volumeUUID = uuid(description, kDADiskDescriptionVolumeUUIDKey)};
}

}  // namespace brisel::platform::macos
