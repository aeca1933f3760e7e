// The scratch memory of one privileged launch.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace brisel {

/// The value of the item in the rights set: the address of the variable that holds the path's
/// pointer, as many bytes long as the path. The right is matched by its name alone; the value is
/// opaque, but the system copies all of those bytes, so the memory behind the variable is this
/// object's own, up to the described length.
class RightsItemValue {
  public:
    /// `path` must outlive the object.
    explicit RightsItemValue(const char* path);

    [[nodiscard]] const void* bytes() const { return memory_.data(); }
    [[nodiscard]] std::size_t length() const { return length_; }

  private:
    std::size_t length_;
    std::vector<std::byte> memory_;
};

/// The tool's arguments as a null-terminated vector of C strings, each in a buffer of its own.
class ArgumentVector {
  public:
    explicit ArgumentVector(const std::vector<std::string>& arguments);

    [[nodiscard]] char* const* pointers() const { return pointers_.data(); }

  private:
    std::vector<std::unique_ptr<char[]>> buffers_;
    std::vector<char*> pointers_;
};

/// Changes the process's working directory and changes it back when it goes. A directory that
/// cannot be entered is ignored.
class WorkingDirectory {
  public:
    explicit WorkingDirectory(const std::string& path);
    WorkingDirectory(const WorkingDirectory&) = delete;
    WorkingDirectory& operator=(const WorkingDirectory&) = delete;
    ~WorkingDirectory();

  private:
    const char* saved_;
};

}  // namespace brisel
