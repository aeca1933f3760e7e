// The record of one known NTFS volume.
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/DiskDescription.h"
#include "platform/Menu.h"

namespace brisel {

/// Compared by identity. The creator sets the properties before it appends the record to the
/// manager's list; afterwards only `notificationSent` changes. Main thread only, except for
/// `notificationSent`.
class NTFSVolume final : public platform::RepresentedObject {
  public:
    /// Makes a record with this description and no other property set.
    [[nodiscard]] static std::shared_ptr<NTFSVolume> initWithVolume(
        platform::DiskDescription description);

    /// Always false: declared for the volume's removability.
    [[nodiscard]] bool removable() const { return removable_; }
    void setRemovable(bool removable) { removable_ = removable; }

    /// Whether the volume is mounted read-write.
    [[nodiscard]] bool writable() const { return writable_; }
    void setWritable(bool writable) { writable_ = writable; }

    /// Always false.
    [[nodiscard]] bool unmountable() const { return unmountable_; }
    void setUnmountable(bool unmountable) { unmountable_ = unmountable; }

    /// Whether the notification center has accepted the remount prompt. Any thread; never reset.
    [[nodiscard]] bool notificationSent() const { return notificationSent_; }
    void setNotificationSent(bool sent) { notificationSent_ = sent; }

    /// Always false: the automount list alone decides about automatic remounts.
    [[nodiscard]] bool automount() const { return automount_; }
    void setAutomount(bool automount) { automount_ = automount; }

    /// The volume's key in the automount list: 36 characters, upper-case. Absent if the description
    /// has no UUID.
    [[nodiscard]] const std::optional<std::string>& uuid() const { return uuid_; }
    void setUuid(std::optional<std::string> uuid) { uuid_ = std::move(uuid); }

    /// The name that the user sees, and the name of the mount point.
    [[nodiscard]] const std::optional<std::string>& label() const { return label_; }
    void setLabel(std::optional<std::string> label) { label_ = std::move(label); }

    /// The BSD name, such as disk4s1.
    [[nodiscard]] const std::optional<std::string>& deviceNode() const { return deviceNode_; }
    void setDeviceNode(std::optional<std::string> node) { deviceNode_ = std::move(node); }

    /// Always absent: declared for the volume's kind.
    [[nodiscard]] const std::optional<std::string>& volumeType() const { return volumeType_; }
    void setVolumeType(std::optional<std::string> type) { volumeType_ = std::move(type); }

    /// The mount point, if the program itself mounted the volume.
    [[nodiscard]] const std::optional<platform::FileURL>& volumePath() const { return volumePath_; }
    void setVolumePath(std::optional<platform::FileURL> path) { volumePath_ = std::move(path); }

    /// The disk's description when the record was made.
    [[nodiscard]] const platform::DiskDescription& diskData() const { return diskData_; }
    void setDiskData(platform::DiskDescription data) { diskData_ = std::move(data); }

  private:
    bool removable_ = false;
    bool writable_ = false;
    bool unmountable_ = false;
    std::atomic<bool> notificationSent_ = false;
    bool automount_ = false;
    std::optional<std::string> uuid_;
    std::optional<std::string> label_;
    std::optional<std::string> deviceNode_;
    std::optional<std::string> volumeType_;
    std::optional<platform::FileURL> volumePath_;
    platform::DiskDescription diskData_;
};

/// The medium's UUID, else the volume's; absent if the description has neither.
std::optional<std::string> automountUUID(const platform::DiskDescription& description);

/// Where a volume is mounted: `volumePath`, else the mount point in `diskData`. Absent for null.
std::optional<platform::FileURL> currentFolder(const std::shared_ptr<NTFSVolume>& volume);

}  // namespace brisel
