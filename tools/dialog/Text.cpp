// Sanitizes untrusted text for display.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Text.h"

#include <glib.h>

#include <algorithm>
#include <memory>

namespace brisel::dialog {

namespace {

struct GFree {
    void operator()(gpointer memory) const { g_free(memory); }
};

using OwnedText = std::unique_ptr<char, GFree>;

/// Bidirectional embeddings, overrides and isolates, by which a volume's name could reorder the
/// text around it.
bool turnsDirection(gunichar letter) {
    constexpr gunichar FirstEmbedding = 0x202a;
    constexpr gunichar LastOverride = 0x202e;
    constexpr gunichar FirstIsolate = 0x2066;
    constexpr gunichar LastIsolate = 0x2069;
    return (letter >= FirstEmbedding && letter <= LastOverride) ||
           (letter >= FirstIsolate && letter <= LastIsolate);
}

gunichar shownAs(gunichar letter) {
    constexpr gunichar Replacement = 0xfffd;
    constexpr gunichar LineSeparator = 0x2028;
    constexpr gunichar ParagraphSeparator = 0x2029;
    if (letter == '\n') return letter;
    const bool separatesLines = letter == LineSeparator || letter == ParagraphSeparator;
    if (letter == '\t' || letter == '\r' || separatesLines) return ' ';
    const bool isControl = g_unichar_iscntrl(letter) != FALSE;
    return isControl || turnsDirection(letter) ? Replacement : letter;
}

}  // namespace

std::string sanitizedText(std::string_view bytes) {
    const OwnedText valid(g_utf8_make_valid(bytes.data(), static_cast<gssize>(bytes.size())));
    std::string text;
    for (const char* at = valid.get(); *at != '\0'; at = g_utf8_next_char(at)) {
        constexpr int LongestLetter = 6;
        char letter[LongestLetter];
        const int length = g_unichar_to_utf8(shownAs(g_utf8_get_char(at)), letter);
        text.append(letter, static_cast<std::size_t>(length));
    }
    return text;
}

std::string sanitizedLine(std::string_view bytes) {
    auto line = sanitizedText(bytes);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

std::string shortened(const std::string& text, std::size_t mostLetters) {
    if (static_cast<std::size_t>(g_utf8_strlen(text.c_str(), -1)) <= mostLetters) return text;
    const char* end = g_utf8_offset_to_pointer(text.c_str(), static_cast<glong>(mostLetters) - 1);
    return text.substr(0, static_cast<std::size_t>(end - text.c_str())) + "\u2026";
}

}  // namespace brisel::dialog
