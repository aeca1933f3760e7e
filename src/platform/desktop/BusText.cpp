// Sanitizes untrusted text for the session bus.
// SPDX-License-Identifier: MIT
#include "platform/desktop/BusText.h"

#include <algorithm>
#include <array>

#include "platform/common/VisibleText.h"
#include "platform/headless/GLibOwners.h"

namespace brisel::platform::desktop {

namespace {

struct Range {
    gunichar first;
    gunichar last;
};

// Line and paragraph separators, and the embeddings, overrides and isolates of the Unicode
// Bidirectional Algorithm (UAX #9).
constexpr std::array Unwanted{Range{0x2028, 0x202E}, Range{0x2066, 0x2069}};

bool breaksOrTurnsTheLine(gunichar character) {
    return std::any_of(Unwanted.begin(), Unwanted.end(), [character](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

}  // namespace

std::string busText(const std::string& text) {
    const headless::OwnedText valid(
        g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
    std::string kept;
    for (const char* at = valid.get(); *at != '\0';) {
        const char* const next = g_utf8_next_char(at);
        if (!breaksOrTurnsTheLine(g_utf8_get_char(at))) kept.append(at, next);
        at = next;
    }
    return common::visible(kept);
}

}  // namespace brisel::platform::desktop
