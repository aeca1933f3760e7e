// The command line of `xattr`.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Arguments.h"

#include <string_view>

namespace brisel::xattr {

const char* const Usage =
    "usage: xattr -c [-r] [--] PATH...\n"
    "Removes the extended attributes of each PATH.\n"
    "\n"
    "  -c      clear: remove every attribute (required)\n"
    "  -r      recursive: also strip everything below each PATH\n"
    "  --help  show this\n"
    "\n"
    "Only attributes of the namespace `user.` are removed, which on NTFS are the alternate data\n"
    "streams. Those of the system (access lists, security labels, capabilities) are left alone.\n"
    "Symbolic links are not followed, and other file systems below a PATH are not entered.\n";

namespace {

/// Parses the letters of a word such as `-cr`; false if one is unknown.
bool takeOptions(std::string_view letters, Arguments& arguments) {
    for (const char letter : letters) {
        if (letter == 'c') {
            arguments.action = Action::Clear;
        } else if (letter == 'r') {
            arguments.depth = Depth::EverythingBelow;
        } else {
            return false;
        }
    }
    return true;
}

}  // namespace

Arguments argumentsFrom(std::span<const char* const> words) {
    Arguments arguments;
    auto word = words.begin();
    for (; word != words.end(); ++word) {
        const std::string_view option = *word;
        if (option == "--help") return {.action = Action::ShowUsage, .paths = {}};
        if (option.size() < 2 || option.front() != '-') break;
        if (option == "--") {
            ++word;
            break;
        }
        if (!takeOptions(option.substr(1), arguments)) return {};
    }
    arguments.paths.assign(word, words.end());
    if (arguments.paths.empty()) arguments.action = Action::NotUnderstood;
    return arguments;
}

}  // namespace brisel::xattr
