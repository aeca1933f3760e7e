// The main bundle's localized strings and images.
// SPDX-License-Identifier: MIT
#import "platform/macos/Bundle.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Text.h"

namespace brisel::platform::macos {

std::string Bundle::localizedString(std::string_view key) const {
    return stdString([[NSBundle mainBundle] localizedStringForKey:nsString(key)
                                                            value:@""
                                                            table:nil]);
}

bool Bundle::hasImage(const std::string& name) const {
    return [NSImage imageNamed:nsString(name)] != nil;
}

}  // namespace brisel::platform::macos
