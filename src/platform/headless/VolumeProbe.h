// Checks whether a mounted NTFS volume is writable or hibernated, without trusting its driver.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::headless {

/// True if mountinfo says read-write and a test file can be created, which is removed again. A full
/// volume counts as writable.
bool takesWriting(const std::string& mountPoint);

/// True if hiberfil.sys starts with "hibr" in either case, as ntfs-3g checks: Windows is hibernated
/// on the volume.
bool isHibernated(const std::string& mountPoint);

}  // namespace brisel::platform::headless
