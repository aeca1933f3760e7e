// A readable handle that owns its file descriptor.
// SPDX-License-Identifier: MIT
#include "privileged/FileHandle.h"

#include <unistd.h>

#include <array>
#include <cerrno>

namespace brisel {

std::string FileHandle::readDataToEndOfFile() const {
    constexpr std::size_t ChunkSize = 4096;
    std::array<char, ChunkSize> chunk{};
    std::string data;
    while (true) {
        const auto count = read(descriptor_.number(), chunk.data(), chunk.size());
        if (count > 0) {
            data.append(chunk.data(), static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return data;
        }
    }
}

}  // namespace brisel
