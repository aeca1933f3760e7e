// Commands from a file or pipe.
// SPDX-License-Identifier: MIT
#include "simulator/CommandSource.h"

namespace brisel::simulator {

std::optional<std::string> StreamSource::nextLine(const std::string& /*prompt*/) {
    std::string line;
    if (!std::getline(stream_, line)) return std::nullopt;
    return line;
}

}  // namespace brisel::simulator
