// The automount list: the UUIDs of the volumes to be remounted without asking.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/UserDefaults.h"

namespace brisel {

namespace platform {
class SystemLog;
}

/// Kept in the user defaults under "volumeList", oldest first. No instances, no state; main thread.
class VolumeListHelper {
  public:
    VolumeListHelper() = delete;

    /// The stored list; null when there is none (or something else is stored under its key).
    [[nodiscard]] static platform::UserDefaults::StringArray obtain(
        const platform::UserDefaults& defaults);
    /// Stores the list and writes the defaults to disk.
    static void save(platform::UserDefaults& defaults, platform::UserDefaults::StringArray uuids);
    /// Appends a UUID, also one that is listed already; a list of 128 first loses its oldest entry.
    static void add(platform::UserDefaults& defaults, platform::SystemLog& log,
                    const std::string& uuid);
    /// Removes every entry equal to the UUID, and stores the list also when there was none.
    static void remove(platform::UserDefaults& defaults, const std::string& uuid);
    /// Whether the UUID is listed; no for none.
    [[nodiscard]] static bool contains(const platform::UserDefaults& defaults,
                                       const std::optional<std::string>& uuid);
};

}  // namespace brisel
