// The text of the notification that an unmounted volume may be unplugged.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Bundle.h"
#include "volumes/NTFSVolume.h"

namespace brisel {

/// For platforms whose system has no such notification.
struct UnplugNotice {
    UnplugNotice(const platform::Bundle& bundle, const NTFSVolume& volume);

    std::string title;
    std::string body;
};

}  // namespace brisel
