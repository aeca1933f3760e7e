// Owns one reference to a Core Foundation or Objective-C object.
// SPDX-License-Identifier: MIT
#pragma once

#import <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace brisel::platform::macos {

/// `Reference` is a pointer type such as DADiskRef or NSAlert*; CFRelease accepts both kinds.
template <typename Reference>
class Owned {
  public:
    Owned() = default;
    /// Takes over a reference from a Create or Copy function, or from alloc, new or copy. Null owns
    /// nothing.
    explicit Owned(Reference reference) : reference_(reference) {}
    Owned(Owned&& other) noexcept : reference_(std::exchange(other.reference_, nullptr)) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(reference_, other.reference_);
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() {
        // CFRelease crashes on null.
        if (reference_ != nullptr) CFRelease(reference_);
    }

    [[nodiscard]] Reference get() const { return reference_; }
    explicit operator bool() const { return reference_ != nullptr; }

  private:
    Reference reference_ = nullptr;
};

/// Retains `reference`, which the caller does not own.
template <typename Reference>
Owned<Reference> retained(Reference reference) {
    if (reference != nullptr) CFRetain(reference);
    return Owned<Reference>(reference);
}

}  // namespace brisel::platform::macos
