// Disk Arbitration's umbrella header: callbacks for disks, and mount and unmount requests.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <DiskArbitration/DADisk.h>
#include <DiskArbitration/DADissenter.h>
#include <DiskArbitration/DASession.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

// Null until the first session is created. Passing null matches every disk.
extern CFDictionaryRef _Null_unspecified kDADiskDescriptionMatchMediaUnformatted;
extern CFDictionaryRef _Null_unspecified kDADiskDescriptionMatchMediaWhole;
extern CFDictionaryRef _Null_unspecified kDADiskDescriptionMatchVolumeMountable;
extern CFDictionaryRef _Null_unspecified kDADiskDescriptionMatchVolumeUnrecognized;
extern CFArrayRef _Null_unspecified kDADiskDescriptionWatchVolumeName;
extern CFArrayRef _Null_unspecified kDADiskDescriptionWatchVolumePath;

enum { kDADiskOptionDefault = 0x00000000 };

enum {
    kDADiskMountOptionDefault = 0x00000000,
    kDADiskMountOptionWhole = 0x00000001,
};
typedef UInt32 DADiskMountOptions;

enum {
    kDADiskUnmountOptionDefault = 0x00000000,
    kDADiskUnmountOptionForce = 0x00080000,
    kDADiskUnmountOptionWhole = 0x00000001,
};
typedef UInt32 DADiskUnmountOptions;

typedef void (*DADiskAppearedCallback)(DADiskRef disk, void* _Nullable context);
typedef void (*DADiskDescriptionChangedCallback)(DADiskRef disk, CFArrayRef keys,
                                                 void* _Nullable context);
typedef void (*DADiskDisappearedCallback)(DADiskRef disk, void* _Nullable context);
typedef void (*DADiskMountCallback)(DADiskRef disk, DADissenterRef _Nullable dissenter,
                                    void* _Nullable context);
typedef void (*DADiskUnmountCallback)(DADiskRef disk, DADissenterRef _Nullable dissenter,
                                      void* _Nullable context);

void DARegisterDiskAppearedCallback(DASessionRef session, CFDictionaryRef _Nullable match,
                                    DADiskAppearedCallback callback, void* _Nullable context);
void DARegisterDiskDescriptionChangedCallback(DASessionRef session, CFDictionaryRef _Nullable match,
                                              CFArrayRef _Nullable watch,
                                              DADiskDescriptionChangedCallback callback,
                                              void* _Nullable context);
void DARegisterDiskDisappearedCallback(DASessionRef session, CFDictionaryRef _Nullable match,
                                       DADiskDisappearedCallback callback, void* _Nullable context);
void DAUnregisterCallback(DASessionRef session, void* callback, void* _Nullable context);

// A callback may run before the call returns. `arguments` ends with a null.
void DADiskMount(DADiskRef disk, CFURLRef _Nullable path, DADiskMountOptions options,
                 DADiskMountCallback _Nullable callback, void* _Nullable context);
void DADiskMountWithArguments(DADiskRef disk, CFURLRef _Nullable path, DADiskMountOptions options,
                              DADiskMountCallback _Nullable callback, void* _Nullable context,
                              CFStringRef _Nullable arguments[_Nullable]);
void DADiskUnmount(DADiskRef disk, DADiskUnmountOptions options,
                   DADiskUnmountCallback _Nullable callback, void* _Nullable context);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
