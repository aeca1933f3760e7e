// Declares DADissenter and its statuses.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <mach/error.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(id) __DADissenter* DADissenterRef;
// Signed: 0xF8DA0001 is negative.
typedef mach_error_t DAReturn;

#define err_local_diskarbitration err_sub(0x368)

enum {
    kDAReturnSuccess = 0,
    kDAReturnError = err_local | err_local_diskarbitration | 0x01,
    kDAReturnBusy = err_local | err_local_diskarbitration | 0x02,
    kDAReturnBadArgument = err_local | err_local_diskarbitration | 0x03,
    kDAReturnExclusiveAccess = err_local | err_local_diskarbitration | 0x04,
    kDAReturnNoResources = err_local | err_local_diskarbitration | 0x05,
    kDAReturnNotFound = err_local | err_local_diskarbitration | 0x06,
    kDAReturnNotMounted = err_local | err_local_diskarbitration | 0x07,
    kDAReturnNotPermitted = err_local | err_local_diskarbitration | 0x08,
    kDAReturnNotPrivileged = err_local | err_local_diskarbitration | 0x09,
    kDAReturnNotReady = err_local | err_local_diskarbitration | 0x0A,
    kDAReturnNotWritable = err_local | err_local_diskarbitration | 0x0B,
    kDAReturnUnsupported = err_local | err_local_diskarbitration | 0x0C,
};

DADissenterRef DADissenterCreate(CFAllocatorRef _Nullable allocator, DAReturn status,
                                 CFStringRef _Nullable string) CF_RETURNS_RETAINED;
DAReturn DADissenterGetStatus(DADissenterRef dissenter);
CFStringRef _Nullable DADissenterGetStatusString(DADissenterRef dissenter);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
