// Showing a volume in the file browser, and stripping its extended attributes.
// SPDX-License-Identifier: MIT
#include "platform/FileManager.h"
#include "platform/Format.h"
#include "platform/Menu.h"
#include "platform/ScriptRunner.h"
#include "platform/SystemLog.h"
#include "platform/SystemVersion.h"
#include "platform/Workspace.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

namespace {

// Where the read-write mount puts volumes on this system; a record's own path is not consulted.
std::string mountFolder(const platform::Platform& platform) {
    if (!platform.systemVersion.isMacOS12OrLater()) return platform.fileManager.volumesDirectory();
    return platform::stringWithFormat("%@/.brisel", platform.fileManager.homeDirectory());
}

void logScriptError(platform::SystemLog& log, const platform::ScriptResult& result) {
    // The run's result is what this line shows, and a run that failed has none.
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
    // Neither folder nor label is quoted for the shell, on purpose: the command is exactly this
    // text, and it runs with no more than the user's own rights.
    const auto source =
        platform::stringWithFormat(R"(do shell script "xattr -cr %@/%@")", mountFolder(platform_),
                                   volume ? volume->label() : std::nullopt);
    const auto result = platform_.scriptRunner.execute(source);
    if (result.error) logScriptError(platform_.systemLog, result);
    setInProgress(false);
    refreshVolumes();
}

}  // namespace brisel
