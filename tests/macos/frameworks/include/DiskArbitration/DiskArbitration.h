// Disk Arbitration, as much of it as the application uses.
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <mach/error.h>

// A session with the service that watches disks.

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __DASession* DASessionRef;

DASessionRef _Nullable DASessionCreate(CFAllocatorRef _Nullable allocator) CF_RETURNS_RETAINED;
void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                  CFStringRef runLoopMode);
// A session must not be released while it is scheduled.
void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                    CFStringRef runLoopMode);

// Disks and the keys of their descriptions.
typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __DADisk* DADiskRef;

extern const CFStringRef kDADiskDescriptionVolumeKindKey;       // CFString
extern const CFStringRef kDADiskDescriptionVolumeMountableKey;  // CFBoolean
extern const CFStringRef kDADiskDescriptionVolumeNameKey;       // CFString
extern const CFStringRef kDADiskDescriptionVolumePathKey;       // CFURL
extern const CFStringRef kDADiskDescriptionVolumeUUIDKey;       // CFUUID

extern const CFStringRef kDADiskDescriptionMediaBSDNameKey;  // CFString
extern const CFStringRef kDADiskDescriptionMediaUUIDKey;     // CFUUID

DADiskRef _Nullable DADiskCreateFromBSDName(CFAllocatorRef _Nullable allocator,
                                            DASessionRef session,
                                            const char* name) CF_RETURNS_RETAINED;
DADiskRef _Nullable DADiskCreateFromVolumePath(CFAllocatorRef _Nullable allocator,
                                               DASessionRef session,
                                               CFURLRef path) CF_RETURNS_RETAINED;
// The disk's own text, without /dev/.
const char* _Nullable DADiskGetBSDName(DADiskRef disk);
CFDictionaryRef _Nullable DADiskCopyDescription(DADiskRef disk) CF_RETURNS_RETAINED;

// Refusals of requests, and their statuses.
typedef const struct CF_BRIDGED_TYPE(id) __DADissenter* DADissenterRef;
// Signed: 0xF8DA0001 and its like are negative.
typedef mach_error_t DAReturn;

#define err_local_diskarbitration err_sub(0x368)

enum {
    kDAReturnError = err_local | err_local_diskarbitration | 0x01,
    kDAReturnBusy = err_local | err_local_diskarbitration | 0x02,
    kDAReturnNotPrivileged = err_local | err_local_diskarbitration | 0x09,
    kDAReturnNotWritable = err_local | err_local_diskarbitration | 0x0B,
    kDAReturnUnsupported = err_local | err_local_diskarbitration | 0x0C,
};

DAReturn DADissenterGetStatus(DADissenterRef dissenter);

// Requests.
// Null until the first session is created; null as a match means every disk.
extern CFDictionaryRef _Null_unspecified kDADiskDescriptionMatchVolumeMountable;

enum {
    kDADiskMountOptionDefault = 0x00000000,
    kDADiskMountOptionWhole = 0x00000001,
};
typedef UInt32 DADiskMountOptions;

enum {
    kDADiskUnmountOptionDefault = 0x00000000,
    kDADiskUnmountOptionForce = 0x00080000,
};
typedef UInt32 DADiskUnmountOptions;

typedef void (*DADiskAppearedCallback)(DADiskRef disk, void* _Nullable context);
typedef void (*DADiskDisappearedCallback)(DADiskRef disk, void* _Nullable context);
typedef void (*DADiskMountCallback)(DADiskRef disk, DADissenterRef _Nullable dissenter,
                                    void* _Nullable context);
typedef void (*DADiskUnmountCallback)(DADiskRef disk, DADissenterRef _Nullable dissenter,
                                      void* _Nullable context);

void DARegisterDiskAppearedCallback(DASessionRef session, CFDictionaryRef _Nullable match,
                                    DADiskAppearedCallback callback, void* _Nullable context);
void DARegisterDiskDisappearedCallback(DASessionRef session, CFDictionaryRef _Nullable match,
                                       DADiskDisappearedCallback callback, void* _Nullable context);
void DAUnregisterCallback(DASessionRef session, void* callback, void* _Nullable context);

// A completion may come before the call returns. `arguments` ends with a null.
void DADiskMountWithArguments(DADiskRef disk, CFURLRef _Nullable path, DADiskMountOptions options,
                              DADiskMountCallback _Nullable callback, void* _Nullable context,
                              CFStringRef _Nullable arguments[_Nullable]);
void DADiskUnmount(DADiskRef disk, DADiskUnmountOptions options,
                   DADiskUnmountCallback _Nullable callback, void* _Nullable context);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
