// The program's effects on its platform.
// SPDX-License-Identifier: MIT
#include "platform/simulated/Transcript.h"

#include <utility>

namespace brisel::platform::simulated {

void Transcript::setListener(Listener listener) {
    listener_ = std::move(listener);
}

void Transcript::write(std::string_view line) {
    std::string escaped;
    for (const char character : line) {
        if (character == '\n') {
            escaped += "\\n";
        } else {
            escaped += character;
        }
    }
    if (listener_) listener_(escaped);
    if (keeps_) lines_.push_back(std::move(escaped));
}

}  // namespace brisel::platform::simulated
