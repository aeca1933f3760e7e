// The user's preferences, kept across runs.
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brisel::platform {

/// Safe from any thread on a Mac; the program uses it on the main thread.
class UserDefaults {
  public:
    /// Immutable and shared, so that reading a list copies nothing.
    using StringArray = std::shared_ptr<const std::vector<std::string>>;

    virtual ~UserDefaults() = default;

    /// Answers for keys that are not stored; never written to disk. Repeating it is harmless.
    virtual void registerDefaults(const std::map<std::string, bool>& defaults) = 0;
    /// The stored value, else the registered one, else no. A value of another type is no, or as if
    /// it were not stored where people write the file themselves.
    [[nodiscard]] virtual bool boolForKey(std::string_view key) const = 0;
    /// Null when the key is absent or holds anything but a list of texts.
    [[nodiscard]] virtual StringArray stringArrayForKey(std::string_view key) const = 0;
    /// Known to this process at once, on disk at `synchronize` at the latest.
    virtual void setBool(std::string_view key, bool value) = 0;
    /// The same; `value` must not be null.
    virtual void setStringArray(std::string_view key, StringArray value) = 0;
    /// Writes to disk now. The result is the platform's matter: it logs what it could not write.
    virtual void synchronize() = 0;
};

}  // namespace brisel::platform
