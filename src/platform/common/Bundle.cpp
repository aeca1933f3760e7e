// Resources built into the program.
// SPDX-License-Identifier: MIT
#include "platform/common/Bundle.h"

#include <algorithm>
#include <array>

namespace brisel::platform::common {

namespace {

constexpr std::array<std::string_view, 10> StatusImages{
    "brisel-status-grey-dark",   "brisel-status-grey-light",   "brisel-status-green-dark",
    "brisel-status-green-light", "brisel-status-blue-dark",    "brisel-status-blue-light",
    "brisel-status-orange-dark", "brisel-status-orange-light", "brisel-status-red-dark",
    "brisel-status-red-light"};

const EmbeddedTable* findTable(std::span<const EmbeddedTable> tables, std::string_view language) {
    const auto found = std::find_if(tables.begin(), tables.end(), [language](const auto& table) {
        return table.language == language;
    });
    return found == tables.end() ? nullptr : &*found;
}

// Empty for null.
StringsTable textsOf(const EmbeddedTable* table) {
    return StringsTable::parse(table != nullptr ? table->text : "").value_or(StringsTable());
}

// Drops trailing subtags until a table matches: pt-BR, then pt. Null if none matches.
const EmbeddedTable* closestTable(std::string_view code) {
    while (!code.empty()) {
        if (const auto* const table = findTable(embeddedTables(), code)) return table;
        const auto hyphen = code.rfind('-');
        code = code.substr(0, hyphen == std::string_view::npos ? 0 : hyphen);
    }
    return nullptr;
}

const EmbeddedTable* firstTable(const std::vector<std::string>& codes) {
    for (const auto& code : codes) {
        if (const auto* const table = closestTable(code)) return table;
    }
    return findTable(embeddedTables(), "en");
}

}  // namespace

Bundle::Bundle(std::span<const EmbeddedTable> overlay) : overlay_(overlay) {
    setLanguage("en");
}

void Bundle::setLanguages(const std::vector<std::string>& codes) {
    const auto* const table = firstTable(codes);
    language_ = table != nullptr ? table->language : "";
    texts_ = textsOf(table);
    texts_.layOver(textsOf(findTable(overlay_, language_)));
}

std::string Bundle::localizedString(std::string_view key) const {
    return texts_.localizedString(key);
}

bool Bundle::hasImage(const std::string& name) const {
    return std::find(StatusImages.begin(), StatusImages.end(), name) != StatusImages.end();
}

}  // namespace brisel::platform::common
