// What a mounted NTFS volume is really like, whatever its driver says.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::headless {

/// Whether the kernel's table of mounts says read-write for this mount point and a file can indeed
/// be made there, or could be if there were room; the file is removed at once.
bool takesWriting(const std::string& mountPoint);

/// Whether Windows sleeps on the volume mounted there: its hibernation file then begins with the
/// word hibr, in either case (as ntfs-3g looks at it).
bool isHibernated(const std::string& mountPoint);

}  // namespace brisel::platform::headless
