// The command line of `xattr`.
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

namespace brisel::xattr {

enum class Depth { ItselfOnly, EverythingBelow };

enum class Request { Clear, ShowUsage, NotUnderstood };

struct Arguments {
    Request request = Request::NotUnderstood;
    Depth depth = Depth::ItselfOnly;
    std::vector<std::string> paths;
};

/// What the arguments, without the program's name, ask for. Options end at the first path: what
/// follows it is a path too, however it begins.
Arguments argumentsFrom(std::span<const char* const> words);

/// How the program is used, in lines.
extern const char* const Usage;

}  // namespace brisel::xattr
