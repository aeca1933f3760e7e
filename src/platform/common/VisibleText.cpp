// Makes control characters in untrusted text visible.
// SPDX-License-Identifier: MIT
#include "platform/common/VisibleText.h"

namespace brisel::platform::common {

namespace {

constexpr unsigned char Delete = 0x7F;
constexpr unsigned char FirstPrintable = 0x20;
constexpr unsigned char CaretOffset = 0x40;
// UTF-8 encodes U+0080 to U+009F as this byte and one from 0x80 to 0x9F.
constexpr unsigned char C1Lead = 0xC2;
constexpr unsigned char C1Last = 0x9F;

}  // namespace

std::string visible(std::string_view text) {
    std::string shown;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        const auto next =
            index + 1 < text.size() ? static_cast<unsigned char>(text[index + 1]) : Delete;
        if (byte < FirstPrintable || byte == Delete) {
            shown += '^';
            shown += static_cast<char>(byte ^ CaretOffset);
        } else if (byte == C1Lead && next > Delete && next <= C1Last) {
            shown += '?';
            ++index;
        } else {
            shown += text[index];
        }
    }
    return shown;
}

}  // namespace brisel::platform::common
