// Owns a file descriptor.
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace brisel::shared {

class Descriptor {
  public:
    Descriptor() = default;
    /// Takes over an open descriptor, or -1.
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { reset(); }

    explicit operator bool() const { return number_ >= 0; }
    /// -1 if there is none.
    [[nodiscard]] int number() const { return number_; }
    /// Closes the descriptor.
    void reset() {
        if (const int number = release(); number >= 0) close(number);
    }
    /// Passes ownership to the caller.
    int release() { return std::exchange(number_, -1); }

  private:
    int number_ = -1;
};

}  // namespace brisel::shared
