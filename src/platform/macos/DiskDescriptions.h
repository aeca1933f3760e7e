// Reading Disk Arbitration's disk descriptions.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>

#include "platform/DiskDescription.h"

namespace brisel::platform::macos {

/// The keys that Brisel knows, in so far as they hold what they should. A disk object made by name
/// asks the system; of a disk that the system does not know the description is empty.
DiskDescription descriptionOf(DADiskRef disk);

}  // namespace brisel::platform::macos
