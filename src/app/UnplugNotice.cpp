// The text of the notification that an unmounted volume may be unplugged.
// SPDX-License-Identifier: MIT
#include "app/UnplugNotice.h"

#include "platform/Format.h"

namespace brisel {

UnplugNotice::UnplugNotice(const platform::Bundle& bundle, const NTFSVolume& volume)
    : title(platform::stringWithFormat(bundle.localizedString("%@ unmounted"), volume.label())),
      body(bundle.localizedString("You may unplug the device now.")) {}

}  // namespace brisel
