// Removes extended attributes from files and trees.
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "tools/xattr/Arguments.h"

namespace brisel::xattr {

class Stripper {
  public:
    /// Writes a line for each failure to `complaints`, which must outlive this object.
    explicit Stripper(std::ostream& complaints) : complaints_(complaints) {}

    /// Strips `path`, and with Depth::EverythingBelow the tree below it on its file system. Skips
    /// symbolic links, which have no user attributes.
    void strip(const std::string& path, Depth depth);

    [[nodiscard]] bool hasFailed() const { return hasFailed_; }

  private:
    void complain(const std::string& path, const std::string& reason);

    std::ostream& complaints_;
    bool hasFailed_ = false;
};

/// Replaces control characters, C1 controls in UTF-8 included, by escapes such as `\x0a`.
std::string escaped(const std::string& text);

}  // namespace brisel::xattr
