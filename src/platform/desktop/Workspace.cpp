// Opens folders in the desktop's file manager.
// SPDX-License-Identifier: MIT
#include "platform/desktop/Workspace.h"

#include <array>

namespace brisel::platform::desktop {

Workspace::Workspace(GDBusConnection* bus, platform::SystemLog& log,
                     ActivationToken& activationToken)
    : log_(log),
      activationToken_(activationToken),
      fileManager_(bus, "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                   "org.freedesktop.FileManager1"),
      portal_(bus, log),
      application_(log) {}

void Workspace::openURL(const std::optional<FileURL>& url) {
    if (!url) return;
    const auto text = url->absoluteString();
    const auto token = activationToken_.take();
    const std::array<const char*, 2> folders{text.c_str(), nullptr};
    fileManager_.call("ShowFolders", g_variant_new("(^ass)", folders.data(), token.c_str()),
                      [this, folder = *url, token](const auto& answer, const auto& error) {
                          if (answer) return;
                          if (!isMissing(error)) {
                              log_.log("The file manager cannot open the folder: %@",
                                       error.message());
                          }
                          openWithoutFileManager(folder, token);
                      });
}

void Workspace::openWithoutFileManager(const FileURL& folder, const std::string& activationToken) {
    portal_.open(folder, activationToken,
                 [this, folder, activationToken] { application_.open(folder, activationToken); });
}

}  // namespace brisel::platform::desktop
