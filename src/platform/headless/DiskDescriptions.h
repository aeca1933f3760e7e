// Converts UDisks2's block device properties to disk descriptions.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/DiskDescription.h"

namespace brisel::platform::headless {

/// Properties of one UDisks2 block device, as on the bus.
struct BlockProperties {
    /// Block.Device, such as /dev/sdb1.
    std::string device;
    std::string idType;
    std::string idLabel;
    std::string idUUID;
    bool hintIgnore = false;
    /// Partition.UUID; empty if not a partition.
    std::string partitionUUID;
    /// True if the object has a Filesystem interface; `mountPoint` is its first mount point.
    bool filesystem = false;
    std::optional<std::string> mountPoint;
};

/// volumeMountable is true for a file system of known type without HintIgnore. Empty properties
/// become absent keys; uuidText converts the UUIDs.
DiskDescription describe(const BlockProperties& properties);

/// Returns `name` as a UUID of 36 upper-case characters, nullopt if empty. Any name that is not a
/// UUID, such as an NTFS serial number of 16 digits, becomes the UUID version 5 (RFC 4122) of the
/// upper-case name in SerialNamespace.
std::optional<std::string> uuidText(std::string_view name);

/// A random UUID. Stored automount lists hold UUIDs made with it, so it must not change.
inline constexpr std::string_view SerialNamespace = "B2E6A3F4-5C0D-4E0A-9D5B-3F1C7A8E6D21";

/// `device` without the prefix "/dev/".
std::string bsdName(std::string_view device);

}  // namespace brisel::platform::headless
