// Owns a file descriptor.
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace brisel::mounttool {

class Descriptor {
  public:
    /// Takes over an open descriptor, or -1.
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }
    /// Passes ownership to the caller.
    int release() { return std::exchange(number_, -1); }

  private:
    int number_;
};

}  // namespace brisel::mounttool
