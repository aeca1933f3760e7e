// Strips files and whole trees of their extended attributes.
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "tools/xattr/Arguments.h"

namespace brisel::xattr {

class Stripper {
  public:
    /// `complaints`, which must outlive this, gets a line for each thing that failed.
    explicit Stripper(std::ostream& complaints) : complaints_(complaints) {}

    /// Strips what is at `path`, and with Depth::EverythingBelow what is below it on the same file
    /// system. A symbolic link has no user attributes, so that there is nothing to do for one.
    void strip(const std::string& path, Depth depth);

    /// Whether there has been a complaint.
    [[nodiscard]] bool hasFailed() const { return hasFailed_; }

  private:
    void complain(const std::string& path, const std::string& reason);

    std::ostream& complaints_;
    bool hasFailed_ = false;
};

/// The text with its control characters, those of UTF-8 included, made visible as in `\x0a`.
std::string visible(const std::string& text);

}  // namespace brisel::xattr
