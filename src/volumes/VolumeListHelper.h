// The automount list: UUIDs of volumes that are remounted without a prompt.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/UserDefaults.h"

namespace brisel {

namespace platform {
class SystemLog;
}

/// User defaults key "volumeList", oldest entry first. Main thread only.
class VolumeListHelper {
  public:
    VolumeListHelper() = delete;

    /// Null if absent or not an array of strings.
    [[nodiscard]] static platform::UserDefaults::StringArray obtain(
        const platform::UserDefaults& defaults);
    /// Stores the list and writes the defaults to disk.
    static void save(platform::UserDefaults& defaults, platform::UserDefaults::StringArray uuids);
    /// Appends `uuid`, even if already listed. A list of 128 entries first loses its oldest.
    static void add(platform::UserDefaults& defaults, platform::SystemLog& log,
                    const std::string& uuid);
    /// Removes all equal entries; stores the list even if it was absent.
    static void remove(platform::UserDefaults& defaults, const std::string& uuid);
    /// False if `uuid` is empty.
    [[nodiscard]] static bool contains(const platform::UserDefaults& defaults,
                                       const std::optional<std::string>& uuid);
};

}  // namespace brisel
