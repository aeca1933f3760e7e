// Modal alerts, by NSAlert.
// SPDX-License-Identifier: MIT
#import "platform/macos/Alert.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

namespace {

// A menu-bar application is rarely active. Newer systems may refuse to activate it, so this orders
// the window to the front as well.
void bringToFront(NSAlert* alert) {
    [NSApp activateIgnoringOtherApps:YES];
    [alert layout];
    [[alert window] center];
    [[alert window] orderFrontRegardless];
}

}  // namespace

int Alert::runModal(const AlertContent& content) {
    NSModalResponse response = 0;
    guarded("show an alert", [&] {
        const Owned<NSAlert*> alert([[NSAlert alloc] init]);
        [alert.get() setMessageText:nsString(content.messageText)];
        [alert.get() setInformativeText:nsString(content.informativeText)];
        for (const auto& title : content.buttons)
            [alert.get() addButtonWithTitle:nsString(title)];
        bringToFront(alert.get());
        response = [alert.get() runModal];
    });
    return static_cast<int>(response);
}

}  // namespace brisel::platform::macos
