// A readable handle on a file descriptor, which it closes when it goes.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel {

/// Not thread-safe.
class FileHandle {
  public:
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle();

    /// Everything up to the end of the stream, or up to the first error. Blocks until all writers
    /// have closed their ends.
    [[nodiscard]] std::string readDataToEndOfFile() const;

  private:
    int descriptor_;
};

}  // namespace brisel
