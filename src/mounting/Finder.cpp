// Opens a volume in Finder and removes its extended attributes.
// SPDX-License-Identifier: MIT
#include "platform/FileManager.h"
#include "platform/Format.h"
#include "platform/Menu.h"
#include "platform/ScriptRunner.h"
#include "platform/SystemLog.h"
#include "platform/SystemVersion.h"
#include "platform/Workspace.h"
#include "shared/MountFolders.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

namespace {

// The folder of read-write mounts on this system version; ignores the record's own path.
std::string mountFolder(const platform::Platform& platform) {
    if (!platform.systemVersion.isMacOS12OrLater()) return platform.fileManager.volumesDirectory();
    return platform::stringWithFormat("%@/%@", platform.fileManager.homeDirectory(),
                                      shared::MountFolders);
}

void logScriptError(platform::SystemLog& log, const platform::ScriptResult& result) {
    // The line prints the script's result, which is nil on failure.
    log.log("Error executing Apple Script: %@", platform::NullText);
    for (const auto& [key, value] : *result.error)
        log.log("key: %@, value: %@", key, value);
}

}  // namespace

void NTFSVolumeManager::showInFinder(const platform::MenuItem& sender) {
    openInFinder(currentFolder(volumeOf(sender)));
}

void NTFSVolumeManager::openInFinder(const std::optional<platform::FileURL>& url) {
    platform_.workspace.openURL(url);
    setInProgress(false);
    refreshVolumes();
}

void NTFSVolumeManager::cleanupFinderInfo(const platform::MenuItem& sender) {
    setInProgress(true);
    refreshVolumes();
    const auto volume = volumeOf(sender);
    // Deliberately does not quote folder or label for the shell: the command text is fixed, and it
    // runs unprivileged.
    const auto source =
        platform::stringWithFormat(R"(do shell script "xattr -cr %@/%@")", mountFolder(platform_),
                                   volume ? volume->label() : std::nullopt);
    const auto result = platform_.scriptRunner.execute(source);
    if (result.error) logScriptError(platform_.systemLog, result);
    setInProgress(false);
    refreshVolumes();
}

}  // namespace brisel
