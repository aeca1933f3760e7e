// The running application, by NSApplication.
// SPDX-License-Identifier: MIT
#import "platform/macos/Application.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Exceptions.h"

namespace brisel::platform::macos {

void Application::terminate() {
    guarded("terminate", [] { [NSApp terminate:[NSApp delegate]]; });
}

void Application::activateIgnoringOtherApps() {
    guarded("come to the front", [] { [NSApp activateIgnoringOtherApps:YES]; });
}

void Application::orderFrontStandardAboutPanel() {
    guarded("show the About panel", [] { [NSApp orderFrontStandardAboutPanel:nil]; });
}

}  // namespace brisel::platform::macos
