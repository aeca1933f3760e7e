// Opens folders through the desktop portal.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/desktop/BusClient.h"
#include "platform/FileURL.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// org.freedesktop.portal.OpenURI. Main thread only.
class OpenURIPortal {
  public:
    OpenURIPortal(GDBusConnection* bus, platform::SystemLog& log);

    /// Opens the folder in the default application for folders. Calls `failed` if the portal is
    /// missing or cannot; logs the latter. A later call drops the outcome of an earlier one.
    void open(const FileURL& folder, const std::string& activationToken,
              std::function<void()> failed);

  private:
    void awaitResponse(const std::string& handle, std::function<void()> failed);
    void openFile(int folder, const std::string& handle, const std::string& activationToken,
                  std::function<void()> failed);

    headless::OwnedObject<GDBusConnection> bus_;
    platform::SystemLog& log_;
    BusClient portal_;
    std::optional<BusClient> request_;
    Subscription response_;
    int requests_ = 0;
};

}  // namespace brisel::platform::desktop
