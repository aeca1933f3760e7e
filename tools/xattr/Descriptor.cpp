// Owns a file descriptor.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace brisel::xattr {

Descriptor::Descriptor(int folder, const std::string& name, int flags)
    : number_(openat(folder, name.c_str(), flags | O_CLOEXEC)) {}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

Descriptor::~Descriptor() {
    if (number_ >= 0) close(number_);
}

int Descriptor::release() {
    return std::exchange(number_, -1);
}

}  // namespace brisel::xattr
