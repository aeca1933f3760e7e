// Parser of the .strings format.
// SPDX-License-Identifier: MIT
#include "platform/common/StringsTable.h"

#include <algorithm>
#include <utility>

namespace brisel::platform::common {

namespace {

class Scanner {
  public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    /// False at an unterminated comment.
    bool skipBlanksAndComments() {
        while (true) {
            rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r\n"), rest_.size()));
            if (rest_.starts_with("//")) {
                rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
            } else if (rest_.starts_with("/*")) {
                const auto end = rest_.find("*/", 2);
                if (end == std::string_view::npos) return false;
                rest_.remove_prefix(end + 2);
            } else {
                return true;
            }
        }
    }

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    bool take(char wanted) {
        if (!skipBlanksAndComments() || !rest_.starts_with(wanted)) return false;
        rest_.remove_prefix(1);
        return true;
    }

    std::optional<std::string> takeQuoted() {
        if (!take('"')) return std::nullopt;
        std::string text;
        while (!rest_.empty()) {
            const char character = rest_.front();
            rest_.remove_prefix(1);
            if (character == '"') return text;
            text += character == '\\' ? takeEscaped() : character;
        }
        return std::nullopt;
    }

  private:
    char takeEscaped() {
        if (rest_.empty()) return '\\';
        const char character = rest_.front();
        rest_.remove_prefix(1);
        if (character == 'n') return '\n';
        if (character == 't') return '\t';
        return character;
    }

    std::string_view rest_;
};

}  // namespace

std::optional<StringsTable> StringsTable::parse(std::string_view text) {
    StringsTable table;
    Scanner scanner(text);
    while (scanner.skipBlanksAndComments()) {
        if (scanner.atEnd()) return table;
        auto key = scanner.takeQuoted();
        if (!key || !scanner.take('=')) return std::nullopt;
        auto value = scanner.takeQuoted();
        if (!value || !scanner.take(';')) return std::nullopt;
        table.texts_.insert_or_assign(std::move(*key), std::move(*value));
    }
    return std::nullopt;
}

std::string StringsTable::localizedString(std::string_view key) const {
    const auto found = texts_.find(key);
    return found == texts_.end() ? std::string(key) : found->second;
}

void StringsTable::layOver(const StringsTable& table) {
    for (const auto& [key, text] : table.texts_)
        texts_.insert_or_assign(key, text);
}

}  // namespace brisel::platform::common
