// What UDisks2 says of a block device, as a disk description.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/DiskDescription.h"

namespace brisel::platform::headless {

/// The properties of one UDisks2 object that matter here, as they stand on the bus.
struct BlockProperties {
    /// Block.Device, such as /dev/sdb1.
    std::string device;
    std::string idType;
    std::string idLabel;
    std::string idUUID;
    bool hintIgnore = false;
    /// Partition.UUID; empty without a partition.
    std::string partitionUUID;
    /// Whether there is a Filesystem interface, and its first mount point.
    bool filesystem = false;
    std::optional<std::string> mountPoint;
};

/// The description; its volume is mountable when there is a file system that UDisks2 does not say
/// to ignore. Empty texts are absent keys. The text of a UUID is that of `uuidText`.
DiskDescription describe(const BlockProperties& properties);

/// A UUID as 36 upper-case characters. One in that form but for its case stays the same; any other
/// name, such as the 16 digits of an NTFS serial number, becomes the UUID version 5 (RFC 4122) of
/// that name in the namespace `SerialNamespace`. None for an empty text.
std::optional<std::string> uuidText(std::string_view name);

/// Made for this use, once and for all.
inline constexpr std::string_view SerialNamespace = "B2E6A3F4-5C0D-4E0A-9D5B-3F1C7A8E6D21";

/// The BSD name of a device node: the path without "/dev/".
std::string bsdName(std::string_view device);

}  // namespace brisel::platform::headless
