// Outside text on its way to the desktop's bus.
// SPDX-License-Identifier: MIT
#include "platform/linux/BusText.h"

#include "platform/common/VisibleText.h"
#include "platform/linux/GLibOwners.h"

namespace brisel::platform::linux {

namespace {

// The line and paragraph separators, and the embeddings, overrides and isolates of the Unicode
// Bidirectional Algorithm.
bool breaksOrTurnsTheLine(gunichar character) {
    return (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

}  // namespace

std::string busText(const std::string& text) {
    const OwnedText valid(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
    std::string kept;
    for (const char* at = valid.get(); *at != '\0';) {
        const char* const next = g_utf8_next_char(at);
        if (!breaksOrTurnsTheLine(g_utf8_get_char(at))) kept.append(at, next);
        at = next;
    }
    return common::visible(kept);
}

}  // namespace brisel::platform::linux
