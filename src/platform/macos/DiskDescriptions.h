// Reads Disk Arbitration's disk descriptions.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>

#include "platform/DiskDescription.h"

namespace brisel::platform::macos {

/// Copies the keys that Brisel uses; leaves out values of an unexpected type. Empty if the system
/// does not know the disk.
DiskDescription descriptionOf(DADiskRef disk);

}  // namespace brisel::platform::macos
