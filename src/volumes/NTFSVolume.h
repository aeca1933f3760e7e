// The record that the program keeps of one known NTFS volume.
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>

#include "platform/DiskDescription.h"
#include "platform/Menu.h"

namespace brisel {

/// Two records are the same only if they are the same object. Once in the manager's list a record
/// never changes, but for `notificationSent`. Main thread only, but for that flag.
struct NTFSVolume : platform::RepresentedObject {
    /// A record that knows its description and nothing else.
    [[nodiscard]] static std::shared_ptr<NTFSVolume> initWithVolume(
        platform::DiskDescription description);

    /// Nothing sets `removable`, `unmountable`, `automount` or `volumeType`: whether a volume is
    /// remounted automatically is the automount list's word alone.
    bool removable = false;
    bool writable = false;
    bool unmountable = false;
    /// The remount prompt was accepted by the notification center. Set once, from any thread.
    std::atomic<bool> notificationSent = false;
    bool automount = false;
    /// 36 characters, upper-case; none when the description has no UUID. Key of the automount list.
    std::optional<std::string> uuid;
    /// The name shown to the user and the name of the mount point.
    std::optional<std::string> label;
    /// The BSD name, such as disk4s1.
    std::optional<std::string> deviceNode;
    std::optional<std::string> volumeType;
    /// Where the program itself mounted the volume; none where the platform did.
    std::optional<platform::FileURL> volumePath;
    /// As it was when the record was made.
    platform::DiskDescription diskData;
};

/// The UUID that identifies a volume for the automount list: the medium's, else the volume's own.
std::optional<std::string> uuidText(const platform::DiskDescription& description);

/// Where a volume is mounted as far as its record knows: where the program mounted it, else where
/// the platform had it when the record was made. None for no record.
std::optional<platform::FileURL> currentFolder(const std::shared_ptr<NTFSVolume>& volume);

}  // namespace brisel
