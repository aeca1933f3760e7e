// Modal alerts, by NSAlert.
// SPDX-License-Identifier: MIT
#import "platform/macos/Alert.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

int Alert::runModal(const AlertContent& content) {
    NSModalResponse response = 0;
    guarded("show an alert", [&] {
        const Owned<NSAlert*> alert([[NSAlert alloc] init]);
        [alert.get() setMessageText:nsString(content.messageText)];
        [alert.get() setInformativeText:nsString(content.informativeText)];
        for (const auto& title : content.buttons)
            [alert.get() addButtonWithTitle:nsString(title)];
        response = [alert.get() runModal];
    });
    return static_cast<int>(response);
}

}  // namespace brisel::platform::macos
