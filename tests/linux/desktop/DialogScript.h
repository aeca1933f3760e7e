// A dialog program as a shell script, and its traces.
// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "platform/desktop/DialogProcess.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::tests {

/// The script runs in a temporary folder.
class DialogScript {
  public:
    explicit DialogScript(const std::string& lines) {
        std::ofstream(path()) << "#!/bin/sh\ncd " << folder_.path() << " || exit 1\necho $$ >pid\n"
                              << lines;
        std::filesystem::permissions(path(), std::filesystem::perms::owner_all);
    }

    [[nodiscard]] std::string path() const { return folder_.path() + "/dialog"; }
    [[nodiscard]] platform::desktop::DialogProgram program() const {
        return {.path = path(), .activationToken = activationToken};
    }
    [[nodiscard]] std::string file(const std::string& name) const {
        return folder_.path() + "/" + name;
    }
    [[nodiscard]] std::string textIn(const std::string& name) const {
        std::ifstream stream(file(name));
        std::ostringstream text;
        text << stream.rdbuf();
        return text.str();
    }

    /// True if the script has run and its process is gone, also as a zombie.
    [[nodiscard]] bool isGone() const {
        const auto pid = std::atoi(textIn("pid").c_str());
        return pid > 0 && kill(pid, 0) != 0;
    }

    mutable platform::desktop::ActivationToken activationToken;

  private:
    TemporaryFolder folder_;
};

inline std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                         std::filesystem::directory_iterator());
}

}  // namespace brisel::tests
