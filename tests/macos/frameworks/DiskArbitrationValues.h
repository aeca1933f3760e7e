// The values of the stand-in Disk Arbitration: disks, their descriptions and refusals.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>
#import <Foundation/Foundation.h>

#include <cstdint>

#include "platform/DiskArbitration.h"

namespace brisel::tests::macos {

/// A reference that the caller owns.
DADiskRef createDisk(const platform::Disk& disk);
const platform::Disk& diskOf(DADiskRef disk);

/// A reference that the caller owns.
DADissenterRef createDissenter(std::uint32_t status);

/// What a description says, by the system's keys.
NSMutableDictionary* dictionaryFrom(const platform::DiskDescription& description);

}  // namespace brisel::tests::macos
