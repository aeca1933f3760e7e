// A table of localised texts in the .strings format.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace brisel::platform::common {

/// Pairs `"key" = "value";` with comments in between; `\n`, `\t`, `\"`, `\\` are escapes.
class StringsTable {
  public:
    /// Absent if `text` is malformed.
    [[nodiscard]] static std::optional<StringsTable> parse(std::string_view text);

    /// The value of `key`, or `key` itself if it is missing.
    [[nodiscard]] std::string localizedString(std::string_view key) const;
    /// Replaces the values of the keys that `table` has.
    void layOver(const StringsTable& table);
    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& texts() const {
        return texts_;
    }

  private:
    std::map<std::string, std::string, std::less<>> texts_;
};

}  // namespace brisel::platform::common
