// Handlers of Disk Arbitration's appeared and disappeared callbacks.
// SPDX-License-Identifier: MIT
#include "volumes/DiskEvents.h"

#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "platform/FileManager.h"
#include "platform/Format.h"
#include "platform/SystemLog.h"
#include "volumes/NTFSVolumeManager.h"
#include "volumes/VolumeListHelper.h"

namespace brisel {

namespace {

using platform::DiskDescription;
using platform::orNullText;

constexpr const char* NTFSKind = "ntfs";

std::optional<std::string> mountedPath(const DiskDescription& description) {
    if (!description.volumePath) return std::nullopt;
    return description.volumePath->path();
}

void warnOfForeignKind(platform::SystemLog& log, const std::string& name, const std::string& kind) {
    log.log(R"(Warning: The Volume Kind of "%@" is not "ntfs" but "%@")", name, kind);
    log.log(
        " -> Brisel will try its best to remount r/w but might fail because of incompatibility. "
        "Please make sure to remove any third-party extension.");
}

// Appends "-" and the BSD name at each record with an equal label, so twice if Data is followed by
// Data-disk4s1. Removes the device's stale record. Deliberately returns nothing if that was not the
// last record: the list changed during the walk, so the event ends without a new record.
std::optional<std::string> uniqueLabel(VolumeRecords& volumes, std::string label,
                                       const std::string& bsdName) {
    for (auto record = volumes.begin(); record != volumes.end(); ++record) {
        if ((*record)->deviceNode() == bsdName) {
            const bool last = std::next(record) == volumes.end();
            volumes.erase(record);
            if (last) return label;
            return std::nullopt;
        }
        if ((*record)->label() == label) {
            label = platform::stringWithFormat("%@-%@", label, bsdName);
        }
    }
    return label;
}

std::shared_ptr<NTFSVolume> makeRecord(DiskDescription description, std::string label,
                                       bool writable) {
    auto bsdName = orNullText(description.mediaBSDName);
    auto uuid = automountUUID(description);
    auto volume = NTFSVolume::initWithVolume(std::move(description));
    volume->setLabel(std::move(label));
    volume->setWritable(writable);
    volume->setDeviceNode(std::move(bsdName));
    volume->setUuid(std::move(uuid));
    return volume;
}

}  // namespace

void diskAppeared(NTFSVolumeManager& manager, const platform::Disk& disk,
                  DiskDescription description) {
    const auto& platform = manager.platform();
    platform.systemLog.log("disk %s appeared", disk.bsdName);

    const auto kind = orNullText(description.volumeKind);
    const auto name = orNullText(description.volumeName);
    const bool writable = platform.fileManager.isWritableFileAtPath(mountedPath(description));

    if (!description.volumeMountable.value_or(false)) return;
    if (platform::lowercased(kind).find(NTFSKind) == std::string::npos) return;
    if (kind != NTFSKind) warnOfForeignKind(platform.systemLog, name, kind);

    auto label = uniqueLabel(manager.volumes(), name, orNullText(description.mediaBSDName));
    if (!label) return;
    const auto volume = makeRecord(std::move(description), std::move(*label), writable);
    manager.volumes().push_back(volume);

    if (!writable && VolumeListHelper::contains(platform.userDefaults, volume->uuid())) {
        manager.goAhead(volume);
    } else {
        manager.refreshVolumes();
    }
}

void diskDisappeared(NTFSVolumeManager& manager, const platform::Disk& disk,
                     const DiskDescription& description) {
    const auto& platform = manager.platform();
    platform.systemLog.log("disk %s disappeared", disk.bsdName);

    // Deliberately stricter than diskAppeared: the record of a foreign driver's volume stays.
    if (!description.volumeMountable.value_or(false) || description.volumeKind != NTFSKind) return;

    const auto volume = findVolume(manager.volumes(), orNullText(description.mediaBSDName));
    if (!volume) return;
    if (volume->volumePath() && !removeEmptyMountFolder(platform, *volume->volumePath())) return;
    removeVolume(manager.volumes(), *volume);
    manager.setInProgress(false);
    manager.refreshVolumes();
}

bool removeEmptyMountFolder(const platform::Platform& platform, const platform::FileURL& folder) {
    const auto listing = platform.fileManager.contentsOfDirectory(folder);
    if (listing.error) {
        platform.systemLog.log("Unable to list folder: %@, reason: %@",
                               listing.error->localizedDescription,
                               listing.error->localizedFailureReason);
        return false;
    }
    if (listing.entryCount != 0) return true;
    if (const auto error = platform.fileManager.removeItem(folder.path())) {
        platform.systemLog.log("Unable to delete folder: %@, reason: %@",
                               error->localizedDescription, error->localizedFailureReason);
        return false;
    }
    return true;
}

}  // namespace brisel
