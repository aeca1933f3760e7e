// The text of the notification that an unmounted volume may be unplugged.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Bundle.h"
#include "volumes/NTFSVolume.h"

namespace brisel {

/// For platforms whose system says nothing of the kind.
struct UnplugNotice {
    UnplugNotice(const platform::Bundle& bundle, const NTFSVolume& volume);

    std::string title;
    std::string body;
};

}  // namespace brisel
