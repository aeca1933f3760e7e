// Finder, by NSWorkspace.
// SPDX-License-Identifier: MIT
#import "platform/macos/Workspace.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

void Workspace::openURL(const std::optional<FileURL>& url) {
    // A nil URL opens nothing, whether NSWorkspace returns NO or raises an exception.
    guarded("open a folder", [&] { [[NSWorkspace sharedWorkspace] openURL:nsURL(url)]; });
}

}  // namespace brisel::platform::macos
