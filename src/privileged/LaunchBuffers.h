// Buffers and working directory for starting one tool as root.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace brisel {

/// The execute right's value: the pointer `path` itself, with strlen(path) as its length.
/// Deliberate: the system matches the right by name and does not interpret the value. It copies
/// `length()` bytes, so the buffer has at least that many.
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

/// The tool's argv, null-terminated and without argv[0]. Owns copies of the arguments.
class ArgumentVector {
  public:
    explicit ArgumentVector(const std::vector<std::string>& arguments);

    [[nodiscard]] char* const* pointers() const { return pointers_.data(); }

  private:
    std::vector<std::unique_ptr<char[]>> buffers_;
    std::vector<char*> pointers_;
};

/// Changes the process's working directory and restores it on destruction. Ignores chdir failures.
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
