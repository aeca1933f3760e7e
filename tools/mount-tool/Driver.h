// The NTFS driver: ntfs-3g and the probe that comes with it.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "tools/mount-tool/Person.h"
#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

/// What the driver's programs print goes to standard output. All of it blocks until they end.

/// Asks whether the volume can be mounted read-write, without writing to it; none if so, or if
/// there is no probe to ask. The refusal's status is the probe's.
std::optional<Refusal> probe(const std::string& device);

/// Mounts the device read-write on the folder, its files the person's own and closed to others.
/// Nothing is forced: the journal is left as it is, and a hibernated volume too. None says that the
/// driver claims success, which is still to be seen.
std::optional<Refusal> mountWithDriver(const std::string& device, const std::string& folder,
                                       const Person& person);

/// The refusal for what ntfs-3g or its probe ended with, other than 0.
Refusal refusalFor(int driverStatus);

}  // namespace brisel::mounttool
