// Reads the kernel's mount table.
// SPDX-License-Identifier: MIT
#include "platform/headless/MountInfo.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

namespace brisel::platform::headless {

namespace {

bool isOctalDigit(char character) {
    return character >= '0' && character <= '7';
}

// Spaces, tabs, newlines and backslashes are escaped as a backslash and three octal digits.
std::string unescaped(const std::string& field) {
    constexpr std::size_t EscapeLength = 4;
    constexpr int Octal = 8;
    std::string text;
    for (std::size_t index = 0; index < field.size(); ++index) {
        const auto digits = field.substr(index + 1, EscapeLength - 1);
        const bool escape = field[index] == '\\' && digits.size() == EscapeLength - 1 &&
                            std::all_of(digits.begin(), digits.end(), isOctalDigit);
        if (!escape) {
            text += field[index];
            continue;
        }
        text += static_cast<char>(std::stoi(digits, nullptr, Octal));
        index += EscapeLength - 1;
    }
    return text;
}

bool hasOption(const std::string& options, std::string_view wanted) {
    std::istringstream list(options);
    std::string option;
    while (std::getline(list, option, ',')) {
        if (option == wanted) return true;
    }
    return false;
}

std::vector<std::string> fieldsOf(const std::string& line) {
    // Splits at spaces only: mount points may contain other white space unescaped.
    std::istringstream text(line);
    std::vector<std::string> fields;
    std::string field;
    while (std::getline(text, field, ' '))
        fields.push_back(field);
    return fields;
}

}  // namespace

MountState mountState(std::string_view mountInfo, const std::string& mountPoint) {
    constexpr std::size_t MountPointField = 4;
    constexpr std::size_t OptionsField = 5;
    constexpr std::ptrdiff_t SuperOptionsAfterSeparator = 3;
    std::istringstream lines{std::string(mountInfo)};
    std::string line;
    auto state = MountState::NotMounted;
    while (std::getline(lines, line)) {
        const auto fields = fieldsOf(line);
        const auto separator = std::find(fields.begin(), fields.end(), "-");
        if (fields.end() - separator <= SuperOptionsAfterSeparator) continue;
        if (separator - fields.begin() <= static_cast<std::ptrdiff_t>(OptionsField)) continue;
        if (unescaped(fields[MountPointField]) != mountPoint) continue;
        // A later mount hides an earlier one.
        const bool writable = hasOption(fields[OptionsField], "rw") &&
                              hasOption(separator[SuperOptionsAfterSeparator], "rw");
        state = writable ? MountState::ReadWrite : MountState::ReadOnly;
    }
    return state;
}

MountState currentMountState(const std::string& mountPoint) {
    std::ifstream file("/proc/self/mountinfo");
    std::ostringstream text;
    text << file.rdbuf();
    return mountState(text.str(), mountPoint);
}

}  // namespace brisel::platform::headless
