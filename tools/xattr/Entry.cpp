// A file or folder of a tree, reached without opening it.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Entry.h"

#include <sys/xattr.h>

#include <utility>

namespace brisel::xattr {

// The kernel's link to an open file; the calls for extended attributes by descriptor refuse O_PATH.
Entry::Entry(const shared::Descriptor& file)
    : path_("/proc/self/fd/" + std::to_string(file.number())),
      lastComponent_(LastComponent::Followed) {
    if (const auto found = status()) device_ = found->st_dev;
}

Entry::Entry(std::string name, dev_t device)
    : path_(std::move(name)), lastComponent_(LastComponent::NotFollowed), device_(device) {}

std::optional<struct stat> Entry::status() const {
    struct stat status {};
    const auto examine = lastComponent_ == LastComponent::Followed ? &stat : &lstat;
    if (examine(path_.c_str(), &status) != 0) return std::nullopt;
    return status;
}

bool Entry::isOfTree() const {
    const auto found = status();
    return found && found->st_dev == device_ &&
           (S_ISREG(found->st_mode) || S_ISDIR(found->st_mode));
}

ssize_t Entry::listAttributes(std::span<char> names) const {
    const auto list = lastComponent_ == LastComponent::Followed ? &listxattr : &llistxattr;
    return list(path_.c_str(), names.data(), names.size());
}

int Entry::removeAttribute(const std::string& attribute) const {
    const auto remove = lastComponent_ == LastComponent::Followed ? &removexattr : &lremovexattr;
    return remove(path_.c_str(), attribute.c_str());
}

}  // namespace brisel::xattr
