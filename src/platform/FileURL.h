// The file URL of a folder, as a disk description carries it and the log prints it.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform {

/// A value; two URLs are equal when their paths are.
class FileURL {
  public:
    /// `path` is an absolute path of any bytes; slashes at its end are dropped.
    explicit FileURL(std::string path);

    /// Without a slash at the end, but for the root itself.
    [[nodiscard]] const std::string& path() const { return path_; }

    /// `file://` and the path with a slash at the end, percent-encoded in upper case but for
    /// letters, digits and `/!$&'()*+,-.:=@_~` (the path characters of RFC 3986 less `;`).
    [[nodiscard]] std::string absoluteString() const;

    bool operator==(const FileURL&) const = default;

  private:
    std::string path_;
};

}  // namespace brisel::platform
