// Lines that `brisel-dialog` writes to its parent process.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Protocol.h"
#include "shared/DialogWords.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string_view>

namespace brisel::dialog {

std::string shownLine() {
    return std::string(shared::ShownWord) + "\n";
}

std::string answerLine(const Answer& answer) {
    if (!answer) return std::string(shared::ClosedWord) + "\n";
    return std::string(shared::PressedWord) + *answer + "\n";
}

void tell(const std::string& line) {
    std::string_view rest = line;
    while (!rest.empty()) {
        const auto written = write(STDOUT_FILENO, rest.data(), rest.size());
        if (written < 0 && errno != EINTR) std::exit(EXIT_FAILURE);
        if (written > 0) rest.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace brisel::dialog
