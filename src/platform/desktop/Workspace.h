// Opens folders in the desktop's file manager.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/headless/GLibOwners.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"

namespace brisel::platform::desktop {

class Workspace final : public platform::Workspace {
  public:
    explicit Workspace(platform::SystemLog& log) : log_(log) {}
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    ~Workspace() override { g_cancellable_cancel(cancellable_.get()); }

    /// Opens the folder in the default application for folders, without blocking. Logs a failure.
    void openURL(const std::optional<FileURL>& url) override;

  private:
    platform::SystemLog& log_;
    headless::OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
};

}  // namespace brisel::platform::desktop
