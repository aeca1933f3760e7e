// A readable handle that owns its file descriptor.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "shared/Descriptor.h"

namespace brisel {

/// Not thread-safe.
class FileHandle {
  public:
    /// Takes over `descriptor`.
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}

    /// Reads to the end of the stream, or to the first error other than EINTR. Blocks until all
    /// writers have closed their ends.
    [[nodiscard]] std::string readDataToEndOfFile() const;

  private:
    shared::Descriptor descriptor_;
};

}  // namespace brisel
