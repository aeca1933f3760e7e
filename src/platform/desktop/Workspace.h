// Opens folders in the desktop's file manager.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <string>

#include "platform/desktop/ActivationToken.h"
#include "platform/desktop/BusClient.h"
#include "platform/desktop/FolderApplication.h"
#include "platform/desktop/OpenURIPortal.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"

namespace brisel::platform::desktop {

class Workspace final : public platform::Workspace {
  public:
    /// `bus` is the session bus. The next folder that opens takes the token.
    Workspace(GDBusConnection* bus, platform::SystemLog& log, ActivationToken& activationToken);

    /// Opens the folder, without blocking, in the file manager on the session bus; without one
    /// through the desktop portal; else in the default application for folders. Logs a failure.
    void openURL(const std::optional<FileURL>& url) override;

  private:
    void openWithoutFileManager(const FileURL& folder, const std::string& activationToken);

    platform::SystemLog& log_;
    ActivationToken& activationToken_;
    BusClient fileManager_;
    OpenURIPortal portal_;
    FolderApplication application_;
};

}  // namespace brisel::platform::desktop
