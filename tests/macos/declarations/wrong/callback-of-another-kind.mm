// A callback lacks the dissenter.
// SPDX-License-Identifier: MIT
//
// says: no matching function for call to 'DADiskUnmount'
#import <DiskArbitration/DiskArbitration.h>

void report(DADiskRef disk, void* context);

void unmount(DADiskRef disk) {
    DADiskUnmount(disk, kDADiskUnmountOptionDefault, &report, nullptr);
}
