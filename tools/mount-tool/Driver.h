// Runs the NTFS driver ntfs-3g and its probe.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "tools/mount-tool/Caller.h"
#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

/// The programs' output goes to standard output. The calls block until they end.

/// Checks, without writing to it, whether the volume can be mounted read-write. nullopt if so, or
/// if no probe is installed.
std::optional<Refusal> probe(const std::string& device);

/// Mounts the device read-write on `folder`, accessible to `caller` only. Never clears a journal or
/// a hibernation file. nullopt means that the driver reports success, which the caller must verify.
std::optional<Refusal> mountWithDriver(const std::string& device, const std::string& folder,
                                       const Caller& caller);

/// Refusal for a non-zero exit status of ntfs-3g or its probe.
Refusal refusalFor(int driverStatus);

}  // namespace brisel::mounttool
