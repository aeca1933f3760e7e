// Reports failed unmounts and mounts to the log and the user.
// SPDX-License-Identifier: MIT
#include "mounting/StatusMessages.h"

#include <array>
#include <string>

#include "platform/Alert.h"
#include "platform/Bundle.h"
#include "platform/Format.h"
#include "platform/SystemLog.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

namespace {

// In the order of the status codes, from kDAReturnError.
constexpr std::array<std::string_view, 12> Messages{
    "kDAReturnError for volume %@",         "kDAReturnBusy for volume %@",
    "kDAReturnBadArgument for volume %@",   "kDAReturnExclusiveAccess for volume %@",
    "kDAReturnNoResources for volume %@",   "kDAReturnNotFound for volume %@",
    "kDAReturnNotMounted for volume %@",    "kDAReturnNotPermitted for volume %@",
    "kDAReturnNotPrivileged for volume %@", "kDAReturnNotReady for volume %@",
    "kDAReturnNotWritable for volume %@",   "kDAReturnUnsupported for volume %@"};

enum class Record { Keep, Remove };

struct Variant {
    Record record;
    std::string_view messageText;
    std::string_view informativeText;
};

constexpr Variant UnmountFailure{
    Record::Keep, R"(Volume "%@" not unmountable)",
    "The volume is not unmountable. Probably it is still used by another application."};
constexpr Variant RemountFailure{Record::Remove, R"(Volume "%@" not re-mountable)",
                                 "The volume is not re-mountable in read/write mode. Probably it "
                                 "was not clean unmounted before."};

void report(NTFSVolumeManager& manager, const Variant& variant,
            const std::optional<platform::Dissenter>& dissenter,
            const platform::DiskDescription& description) {
    const auto& platform = manager.platform();
    manager.errorIcon();
    const auto bsdName = platform::orNullText(description.mediaBSDName);
    if (variant.record == Record::Remove) removeFirstVolume(manager.volumes(), bsdName);
    if (dissenter) platform.systemLog.log(dissenterStatusMessage(dissenter->status), bsdName);
    platform.alert.runModal(
        {.messageText = platform::stringWithFormat(
             platform.bundle.localizedString(variant.messageText), description.volumeName),
         .informativeText = platform.bundle.localizedString(variant.informativeText),
         .buttons = {}});
    manager.setInProgress(false);
    manager.refreshVolumes();
}

}  // namespace

std::string_view dissenterStatusMessage(std::uint32_t status) {
    // Unsigned: a status below kDAReturnError wraps to a large index.
    const std::uint32_t index = status - platform::DAReturn::Error;
    if (index < Messages.size()) return Messages.at(index);
    if (status == platform::DAReturn::Success) return "kDAReturnSuccess for volume %@";
    return "no error specified by DADissenter for volume %@";
}

void reportUnmountFailure(NTFSVolumeManager& manager,
                          const std::optional<platform::Dissenter>& dissenter,
                          const platform::DiskDescription& description) {
    report(manager, UnmountFailure, dissenter, description);
}

void reportRemountFailure(NTFSVolumeManager& manager,
                          const std::optional<platform::Dissenter>& dissenter,
                          const platform::DiskDescription& description) {
    report(manager, RemountFailure, dissenter, description);
}

}  // namespace brisel
