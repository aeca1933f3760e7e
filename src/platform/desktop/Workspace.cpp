// Opens folders in the desktop's file manager.
// SPDX-License-Identifier: MIT
#include "platform/desktop/Workspace.h"

#include <memory>

namespace brisel::platform::desktop {

namespace {

/// A pending launch; cancelled when the Workspace is destroyed.
struct Opening {
    platform::SystemLog& log;
    headless::OwnedObject<GCancellable> cancellable;
};

void finishOpening(GObject* /*source*/, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Opening> opening(static_cast<Opening*>(data));
    headless::CallError error;
    const bool opened = g_app_info_launch_default_for_uri_finish(result, error.receive()) != FALSE;
    if (opened || g_cancellable_is_cancelled(opening->cancellable.get()) != FALSE) return;
    opening->log.log("Cannot open the folder: %@", error.message());
}

}  // namespace

void Workspace::openURL(const std::optional<FileURL>& url) {
    if (!url) return;
    auto* const cancellable = static_cast<GCancellable*>(g_object_ref(cancellable_.get()));
    g_app_info_launch_default_for_uri_async(
        url->absoluteString().c_str(), nullptr, cancellable, &finishOpening,
        new Opening{.log = log_, .cancellable = headless::OwnedObject<GCancellable>(cancellable)});
}

}  // namespace brisel::platform::desktop
