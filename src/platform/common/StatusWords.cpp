// Textual descriptions of the status images.
// SPDX-License-Identifier: MIT
#include "platform/common/StatusWords.h"

#include <array>

namespace brisel::platform::common {

namespace {

struct State {
    std::string_view colour;
    std::string_view words;
};

constexpr std::array States{State{"-grey-", "no NTFS volume"},
                            State{"-green-", "a volume is read-only"},
                            State{"-blue-", "a volume is writable"}, State{"-orange-", "working"},
                            State{"-red-", "something went wrong"}};

}  // namespace

std::string_view statusWords(std::string_view imageName) {
    for (const auto& state : States) {
        if (imageName.find(state.colour) != std::string_view::npos) return state.words;
    }
    return {};
}

}  // namespace brisel::platform::common
