// The command line of `brisel-dialog`.
// SPDX-License-Identifier: MIT
#include "tools/dialog/DialogRequest.h"

#include "tools/dialog/Text.h"

namespace brisel::dialog {

const char* const Usage =
    "usage: brisel-dialog alert MESSAGE INFORMATIVE BUTTON...\n"
    "       brisel-dialog about\n"
    "       brisel-dialog menu TITLE    (lines ID<TAB>KIND<TAB>TITLE on standard input,\n"
    "                                    KIND being item, checked, text or separator)\n"
    "\n"
    "Shows a window. Writes `shown` once it is on screen, then `pressed` with the button's number\n"
    "from 0 or the item's ID, or `closed`. Exits with status 3 if there is no display.\n";

namespace {

AlertRequest alertFrom(std::span<const char* const> texts) {
    AlertRequest alert{
        .message = sanitizedLine(texts[0]), .informative = sanitizedText(texts[1]), .buttons = {}};
    for (const char* title : texts.subspan(2))
        alert.buttons.push_back(sanitizedLine(title));
    return alert;
}

}  // namespace

std::optional<DialogRequest> dialogRequestFrom(std::span<const char* const> words) {
    if (words.empty()) return std::nullopt;
    const std::string face = words.front();
    const auto texts = words.subspan(1);
    if (face == "alert" && texts.size() >= 3) return alertFrom(texts);
    if (face == "about" && texts.empty()) return AboutRequest{};
    if (face == "menu" && texts.size() == 1)
        return MenuRequest{.title = sanitizedLine(texts.front())};
    return std::nullopt;
}

}  // namespace brisel::dialog
