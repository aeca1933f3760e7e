// Splits a command line into words and parses their values.
// SPDX-License-Identifier: MIT
#include "simulator/Words.h"

#include <charconv>
#include <limits>

namespace brisel::simulator {

namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r';
}

class Splitter {
  public:
    explicit Splitter(std::string_view line) : rest_(line) {}

    std::optional<Words> split() {
        Words words;
        while (skipBlanks()) {
            auto word = takeWord();
            if (!word) return std::nullopt;
            words.push_back(std::move(*word));
        }
        return words;
    }

  private:
    bool skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front()))
            rest_.remove_prefix(1);
        return !rest_.empty();
    }

    char take() {
        const char character = rest_.front();
        rest_.remove_prefix(1);
        return character;
    }

    std::optional<std::string> takeWord() {
        std::string word;
        while (!rest_.empty() && !isBlank(rest_.front())) {
            const char character = take();
            if (character != '"') {
                word += character;
            } else if (!takeQuoted(word)) {
                return std::nullopt;
            }
        }
        return word;
    }

    bool takeQuoted(std::string& word) {
        while (!rest_.empty()) {
            const char character = take();
            if (character == '"') return true;
            word += character == '\\' ? takeEscaped() : character;
        }
        return false;
    }

    // A backslash before any other character stands for itself.
    char takeEscaped() {
        if (rest_.starts_with('n')) {
            take();
            return '\n';
        }
        const bool escapes = rest_.starts_with('"') || rest_.starts_with('\\');
        return escapes ? take() : '\\';
    }

    std::string_view rest_;
};

}  // namespace

std::optional<Words> splitIntoWords(std::string_view line) {
    return Splitter(line).split();
}

std::optional<std::pair<std::string, std::string>> splitKeyAndValue(const std::string& word) {
    const auto equals = word.find('=');
    if (equals == std::string::npos) return std::nullopt;
    return std::pair(word.substr(0, equals), word.substr(equals + 1));
}

std::optional<std::int64_t> parseNumber(std::string_view word) {
    constexpr int Decimal = 10;
    constexpr int Hexadecimal = 16;
    const bool hexadecimal = word.starts_with("0x") || word.starts_with("0X");
    if (hexadecimal) word.remove_prefix(2);
    if (hexadecimal && word.starts_with('-')) return std::nullopt;
    std::int64_t number = 0;
    const auto* const end = word.data() + word.size();
    const auto result =
        std::from_chars(word.data(), end, number, hexadecimal ? Hexadecimal : Decimal);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return number;
}

std::optional<std::uint32_t> parseStatus(std::string_view word) {
    const auto number = parseNumber(word);
    const bool fits = number && *number >= std::numeric_limits<std::int32_t>::min() &&
                      *number <= std::numeric_limits<std::uint32_t>::max();
    return fits ? std::optional(static_cast<std::uint32_t>(*number)) : std::nullopt;
}

}  // namespace brisel::simulator
