// The command line of `xattr`.
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

namespace brisel::xattr {

enum class Depth { ItselfOnly, EverythingBelow };

enum class Action { Clear, ShowUsage, NotUnderstood };

struct Arguments {
    Action action = Action::NotUnderstood;
    Depth depth = Depth::ItselfOnly;
    std::vector<std::string> paths;
};

/// Parses the arguments without the program's name. Options end at the first path.
Arguments argumentsFrom(std::span<const char* const> words);

extern const char* const Usage;

}  // namespace brisel::xattr
