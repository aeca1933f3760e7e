// The owner of one reference to a Core Foundation or Objective-C object.
// SPDX-License-Identifier: MIT
#pragma once

#import <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace brisel::platform::macos {

/// Releases its reference when it goes. `Reference` is a pointer type of either world, such as
/// DADiskRef or NSAlert*: to Core Foundation both are objects.
template <typename Reference>
class Owned {
  public:
    Owned() = default;
    /// Takes over a reference that is the caller's own: from a function with Create or Copy in its
    /// name, or from alloc, new or copy. Null owns nothing.
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

/// An owner of a further reference to an object that belongs to somebody else.
template <typename Reference>
Owned<Reference> retained(Reference reference) {
    if (reference != nullptr) CFRetain(reference);
    return Owned<Reference>(reference);
}

}  // namespace brisel::platform::macos
