// `xattr`: removes extended attributes.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iostream>
#include <span>

#include "tools/xattr/Arguments.h"
#include "tools/xattr/Stripper.h"

namespace {

enum ExitStatus { Succeeded = 0, Failed = 1, Misused = 2 };

}  // namespace

int main(int argumentCount, char** words) {
    using namespace brisel::xattr;
    const auto arguments =
        argumentsFrom({words + 1, static_cast<std::size_t>(std::max(argumentCount - 1, 0))});
    if (arguments.action == Action::ShowUsage) {
        std::cout << Usage;
        return Succeeded;
    }
    if (arguments.action == Action::NotUnderstood) {
        std::cerr << Usage;
        return Misused;
    }
    Stripper stripper(std::cerr);
    for (const auto& path : arguments.paths) {
        stripper.strip(path, arguments.depth);
    }
    return stripper.hasFailed() ? Failed : Succeeded;
}
