// The user's file manager.
// SPDX-License-Identifier: MIT
#include "platform/linux/Workspace.h"

#include "platform/linux/GLibOwners.h"

namespace brisel::platform::linux {

namespace {

void finishOpening(GObject* /*source*/, GAsyncResult* result, gpointer log) {
    CallError error;
    if (g_app_info_launch_default_for_uri_finish(result, error.receive()) != FALSE) return;
    static_cast<platform::SystemLog*>(log)->log("The folder cannot be shown: %@", error.message());
}

}  // namespace

void Workspace::openURL(const std::optional<FileURL>& url) {
    if (!url) return;
    g_app_info_launch_default_for_uri_async(url->absoluteString().c_str(), nullptr, nullptr,
                                            &finishOpening, &log_);
}

}  // namespace brisel::platform::linux
