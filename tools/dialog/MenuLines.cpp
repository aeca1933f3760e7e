// Parses the menu on brisel-dialog's standard input.
// SPDX-License-Identifier: MIT
#include "tools/dialog/MenuLines.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tools/dialog/Text.h"

namespace brisel::dialog {

namespace {

struct NamedKind {
    std::string_view name;
    MenuLineKind kind;
};

constexpr std::array<NamedKind, 4> Kinds{{{"item", MenuLineKind::Item},
                                          {"checked", MenuLineKind::CheckedItem},
                                          {"text", MenuLineKind::Text},
                                          {"separator", MenuLineKind::Separator}}};

bool canBeChosen(MenuLineKind kind) {
    return kind == MenuLineKind::Item || kind == MenuLineKind::CheckedItem;
}

}  // namespace

std::optional<MenuLine> menuLineFrom(std::string_view line) {
    const auto first = line.find('\t');
    if (first == std::string_view::npos) return std::nullopt;
    const auto second = line.find('\t', first + 1);
    if (second == std::string_view::npos) return std::nullopt;
    const auto name = line.substr(first + 1, second - first - 1);
    const auto* kind = std::find_if(Kinds.begin(), Kinds.end(),
                                    [name](const auto& each) { return each.name == name; });
    if (kind == Kinds.end()) return std::nullopt;
    MenuLine entry{.id = std::string(line.substr(0, first)),
                   .kind = kind->kind,
                   .title = sanitizedLine(line.substr(second + 1))};
    if (canBeChosen(entry.kind) && (entry.id.empty() || entry.title.empty())) return std::nullopt;
    return entry;
}

std::vector<MenuLine> readMenuLines(std::istream& lines) {
    std::vector<MenuLine> entries;
    for (std::string line; std::getline(lines, line);) {
        if (auto entry = menuLineFrom(line)) entries.push_back(std::move(*entry));
    }
    return entries;
}

}  // namespace brisel::dialog
