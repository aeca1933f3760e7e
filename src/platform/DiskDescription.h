// A disk's description, in which every key may be missing.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/FileURL.h"

namespace brisel::platform {

/// The keys of Disk Arbitration's disk description that Brisel reads, without the prefix "DA".
struct DiskDescription {
    std::optional<bool> volumeMountable;
    std::optional<std::string> volumeKind;
    std::optional<std::string> volumeName;
    /// The device node without "/dev/", such as disk4s1.
    std::optional<std::string> mediaBSDName;
    /// The current mount point.
    std::optional<FileURL> volumePath;
    /// UUIDs in the form of CFUUIDCreateString: 36 characters, upper-case, 8-4-4-4-12.
    std::optional<std::string> mediaUUID;
    std::optional<std::string> volumeUUID;

    bool operator==(const DiskDescription&) const = default;
};

}  // namespace brisel::platform
