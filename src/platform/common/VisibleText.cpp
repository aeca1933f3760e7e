// Makes control characters in untrusted text, such as a volume's label, visible.
// SPDX-License-Identifier: MIT
#include "platform/common/VisibleText.h"

#include <algorithm>
#include <array>

namespace brisel::platform::common {

namespace {

constexpr unsigned char Delete = 0x7F;
constexpr unsigned char FirstPrintable = 0x20;
constexpr unsigned char CaretOffset = 0x40;

// Characters in UTF-8 that share all bytes but the last.
struct Range {
    std::string_view lead;
    unsigned char first;
    unsigned char last;
};

// U+0080 to U+009F, and the embeddings, overrides and isolates of the Unicode Bidirectional
// Algorithm (UAX #9).
constexpr std::array Unwanted{Range{"\xC2", 0x80, 0x9F}, Range{"\xE2\x80", 0xAA, 0xAE},
                              Range{"\xE2\x81", 0xA6, 0xA9}};

// Length of an unwanted character at the start of `text`; 0 if there is none.
std::size_t unwantedLength(std::string_view text) {
    for (const auto& range : Unwanted) {
        if (!text.starts_with(range.lead) || text.size() == range.lead.size()) continue;
        const auto last = static_cast<unsigned char>(text[range.lead.size()]);
        if (last >= range.first && last <= range.last) return range.lead.size() + 1;
    }
    return 0;
}

}  // namespace

std::string visible(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.front());
        const auto unwanted = unwantedLength(text);
        if (unwanted > 0) {
            shown += '?';
        } else if (byte < FirstPrintable || byte == Delete) {
            shown += '^';
            shown += static_cast<char>(byte ^ CaretOffset);
        } else {
            shown += text.front();
        }
        text.remove_prefix(std::max<std::size_t>(unwanted, 1));
    }
    return shown;
}

}  // namespace brisel::platform::common
