// Finder.
// SPDX-License-Identifier: MIT
#import "platform/macos/Workspace.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

void Workspace::openURL(const std::optional<FileURL>& url) {
    // Also for none: whether the system then answers no or raises an exception, nothing opens.
    guarded("open a folder", [&] { [[NSWorkspace sharedWorkspace] openURL:nsURL(url)]; });
}

}  // namespace brisel::platform::macos
