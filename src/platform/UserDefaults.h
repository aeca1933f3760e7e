// The user's preferences, kept across runs.
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brisel::platform {

/// Main thread only. Changes are visible at once, and on disk by `synchronize`.
class UserDefaults {
  public:
    /// Immutable and shared: reading a list copies nothing.
    using StringArray = std::shared_ptr<const std::vector<std::string>>;

    virtual ~UserDefaults() = default;

    /// Values of keys that are not stored; never written to disk. May be called again.
    virtual void registerDefaults(const std::map<std::string, bool>& defaults) = 0;
    /// The stored value, else the registered one, else false. A stored value of another type reads
    /// as false or, where users edit the file by hand, as not stored.
    [[nodiscard]] virtual bool boolForKey(std::string_view key) const = 0;
    /// Null if the key is absent or not an array of strings.
    [[nodiscard]] virtual StringArray stringArrayForKey(std::string_view key) const = 0;
    virtual void setBool(std::string_view key, bool value) = 0;
    /// `value` must not be null.
    virtual void setStringArray(std::string_view key, StringArray value) = 0;
    /// Writes to disk now. The platform logs a failure.
    virtual void synchronize() = 0;
};

}  // namespace brisel::platform
