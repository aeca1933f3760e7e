// A readable handle that owns its file descriptor.
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

    /// Reads to the end of the stream, or to the first error other than EINTR. Blocks until all
    /// writers have closed their ends.
    [[nodiscard]] std::string readDataToEndOfFile() const;

  private:
    int descriptor_;
};

}  // namespace brisel
