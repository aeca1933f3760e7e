// The values of the stand-in Disk Arbitration: disks, descriptions and dissenters.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>
#import <Foundation/Foundation.h>

#include <cstdint>

#include "platform/DiskArbitration.h"

namespace brisel::tests::macos {

/// The caller owns the result.
DADiskRef createDisk(const platform::Disk& disk,
                     std::optional<platform::DiskDescription> reported = std::nullopt);
/// The description of a reported disk, or nullopt.
std::optional<platform::DiskDescription> reportedDescriptionOf(DADiskRef disk);
const platform::Disk& diskOf(DADiskRef disk);

/// The caller owns the result.
DADissenterRef createDissenter(std::uint32_t status);

/// `description` with Disk Arbitration's keys.
NSMutableDictionary* dictionaryFrom(const platform::DiskDescription& description);

}  // namespace brisel::tests::macos
