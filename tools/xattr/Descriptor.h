// A file descriptor that is closed with its owner.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>

namespace brisel::xattr {

class Descriptor {
  public:
    /// None; false.
    Descriptor() = default;
    /// Opens `name`, seen from the folder `folder` (or AT_FDCWD), by openat(2). On failure the
    /// descriptor is false and errno tells why.
    Descriptor(int folder, const std::string& name, int flags);
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    explicit operator bool() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    /// Gives the descriptor away; the caller closes it.
    [[nodiscard]] int release();

  private:
    int number_ = -1;
};

}  // namespace brisel::xattr
