// The file URL of a folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform {

class FileURL {
  public:
    /// `path` is absolute and may contain any bytes. Drops trailing slashes.
    explicit FileURL(std::string path);

    /// Without a trailing slash, except for the root.
    [[nodiscard]] const std::string& path() const { return path_; }

    /// `file://`, the path and a trailing slash. Percent-encodes, in upper case, all bytes but
    /// letters, digits and `/!$&'()*+,-.:=@_~` (the path characters of RFC 3986 without `;`).
    [[nodiscard]] std::string absoluteString() const;

    bool operator==(const FileURL&) const = default;

  private:
    std::string path_;
};

}  // namespace brisel::platform
