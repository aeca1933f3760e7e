// Declares DADisk and the keys of a disk description.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <DiskArbitration/DASession.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __DADisk* DADiskRef;

extern const CFStringRef kDADiskDescriptionVolumeKindKey;       // CFString
extern const CFStringRef kDADiskDescriptionVolumeMountableKey;  // CFBoolean
extern const CFStringRef kDADiskDescriptionVolumeNameKey;       // CFString
extern const CFStringRef kDADiskDescriptionVolumeNetworkKey;    // CFBoolean
extern const CFStringRef kDADiskDescriptionVolumePathKey;       // CFURL
extern const CFStringRef kDADiskDescriptionVolumeTypeKey;       // CFString
extern const CFStringRef kDADiskDescriptionVolumeUUIDKey;       // CFUUID

extern const CFStringRef kDADiskDescriptionMediaBlockSizeKey;  // CFNumber
extern const CFStringRef kDADiskDescriptionMediaBSDNameKey;    // CFString
extern const CFStringRef kDADiskDescriptionMediaContentKey;    // CFString
extern const CFStringRef kDADiskDescriptionMediaEjectableKey;  // CFBoolean
extern const CFStringRef kDADiskDescriptionMediaLeafKey;       // CFBoolean
extern const CFStringRef kDADiskDescriptionMediaRemovableKey;  // CFBoolean
extern const CFStringRef kDADiskDescriptionMediaSizeKey;       // CFNumber
extern const CFStringRef kDADiskDescriptionMediaUUIDKey;       // CFUUID
extern const CFStringRef kDADiskDescriptionMediaWholeKey;      // CFBoolean
extern const CFStringRef kDADiskDescriptionMediaWritableKey;   // CFBoolean

extern const CFStringRef kDADiskDescriptionDeviceInternalKey;  // CFBoolean
extern const CFStringRef kDADiskDescriptionDeviceProtocolKey;  // CFString

CFTypeID DADiskGetTypeID(void);
DADiskRef _Nullable DADiskCreateFromBSDName(CFAllocatorRef _Nullable allocator,
                                            DASessionRef session,
                                            const char* name) CF_RETURNS_RETAINED;
DADiskRef _Nullable DADiskCreateFromVolumePath(CFAllocatorRef _Nullable allocator,
                                               DASessionRef session,
                                               CFURLRef path) CF_RETURNS_RETAINED;
// Without /dev/; the disk owns the result.
const char* _Nullable DADiskGetBSDName(DADiskRef disk);
CFDictionaryRef _Nullable DADiskCopyDescription(DADiskRef disk) CF_RETURNS_RETAINED;
DADiskRef _Nullable DADiskCopyWholeDisk(DADiskRef disk) CF_RETURNS_RETAINED;

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
