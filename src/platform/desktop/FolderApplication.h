// Starts the default application for folders.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/FileURL.h"
#include "platform/headless/GLibOwners.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// Main thread only.
class FolderApplication {
  public:
    explicit FolderApplication(platform::SystemLog& log) : log_(log) {}
    FolderApplication(const FolderApplication&) = delete;
    FolderApplication& operator=(const FolderApplication&) = delete;
    ~FolderApplication() { g_cancellable_cancel(cancellable_.get()); }

    /// Opens the folder in the application that the MIME type inode/directory belongs to, without
    /// waiting for it. Logs an application that is missing, cannot start, or soon fails.
    void open(const FileURL& folder, const std::string& activationToken);

  private:
    platform::SystemLog& log_;
    headless::OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
};

}  // namespace brisel::platform::desktop
