// Owns a file descriptor.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>

namespace brisel::xattr {

class Descriptor {
  public:
    Descriptor() = default;
    /// Opens `name` relative to `folder` (or AT_FDCWD) by openat(2), close-on-exec. On failure it
    /// is false, and errno is set.
    Descriptor(int folder, const std::string& name, int flags);
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    explicit operator bool() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    /// Passes ownership to the caller.
    [[nodiscard]] int release();

  private:
    int number_ = -1;
};

}  // namespace brisel::xattr
