// What is known of Apple's interfaces, asked of the declarations.
// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>
#import <DiskArbitration/DiskArbitration.h>
#import <Security/Security.h>
#import <ServiceManagement/ServiceManagement.h>
#import <UserNotifications/UserNotifications.h>

#include <dlfcn.h>
#include <fcntl.h>

#include <concepts>
#include <cstdint>

// The types of statuses have a sign, those of options none.
static_assert(std::same_as<DAReturn, int> && std::same_as<OSStatus, int>);
static_assert(std::same_as<DADiskUnmountOptions, unsigned int>);
static_assert(std::same_as<AuthorizationFlags, unsigned int>);
static_assert(std::same_as<CFIndex, long> && std::same_as<CFTypeID, unsigned long>);
static_assert(std::same_as<Boolean, unsigned char>);
static_assert(std::same_as<NSInteger, long> && std::same_as<NSUInteger, unsigned long>);
static_assert(std::same_as<NSModalResponse, NSInteger> && std::same_as<CGFloat, double>);
static_assert(std::same_as<std::int64_t, long long>);

// One type on Apple silicon, two on Intel.
static_assert(std::same_as<BOOL, bool> == (NSTextAlignmentCenter == 1));
static_assert(std::same_as<BOOL, bool> != std::same_as<BOOL, signed char>);
static_assert(NSTextAlignmentCenter + NSTextAlignmentRight == 3);

static_assert(static_cast<UInt32>(kDAReturnError) == 0xF8DA0001);
static_assert(static_cast<UInt32>(kDAReturnBusy) == 0xF8DA0002);
static_assert(static_cast<UInt32>(kDAReturnNotPrivileged) == 0xF8DA0009);
static_assert(static_cast<UInt32>(kDAReturnNotWritable) == 0xF8DA000B);
static_assert(static_cast<UInt32>(kDAReturnUnsupported) == 0xF8DA000C);
static_assert(unix_err(16) == 0xC010);
static_assert(kDADiskUnmountOptionForce == 0x80000 && kDADiskMountOptionWhole == 1);

static_assert(sizeof(AuthorizationItem) == 32 && offsetof(AuthorizationItem, valueLength) == 8);
static_assert(offsetof(AuthorizationItem, value) == 16 && offsetof(AuthorizationItem, flags) == 24);
static_assert(sizeof(AuthorizationItemSet) == 16 && offsetof(AuthorizationItemSet, items) == 8);
static_assert((kAuthorizationFlagInteractionAllowed | kAuthorizationFlagExtendRights |
               kAuthorizationFlagPreAuthorize) == 0x13);
static_assert(errAuthorizationCanceled == -60006);
static_assert(errAuthorizationToolExecuteFailure == -60031);

static_assert((UNAuthorizationOptionAlert | UNAuthorizationOptionSound) == 6);
static_assert(UNNotificationPresentationOptionBanner == 16);
static_assert(UNNotificationCategoryOptionHiddenPreviewsShowSubtitle == 8);
static_assert(NSApplicationActivationPolicyAccessory == 1 && NSAlertStyleCritical == 2);
static_assert(NSControlStateValueMixed == -1 && NSControlStateValueOn == 1);
static_assert(NSAlertFirstButtonReturn == 1000 && NSModalResponseAbort == -1001);
static_assert(NSFileWriteNoPermissionError == 513 && NSUTF8StringEncoding == 4);
static_assert(NSDirectoryEnumerationSkipsHiddenFiles == 4);

static_assert(F_GETOWN == 5 && O_CLOEXEC == 0x1000000);
