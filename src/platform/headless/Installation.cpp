// Paths of the program and the files installed with it.
// SPDX-License-Identifier: MIT
#include "platform/headless/Installation.h"

#include <filesystem>
#include <system_error>

namespace brisel::platform::headless {

namespace {

namespace fs = std::filesystem;

const fs::path& program() {
    static const fs::path path = [] {
        std::error_code code;
        return fs::read_symlink("/proc/self/exe", code);
    }();
    return path;
}

}  // namespace

std::string ownPath() {
    return program().string();
}

std::string toolFolder() {
    const auto folder = program().parent_path();
    const auto installed = folder.parent_path() / "libexec/brisel";
    std::error_code code;
    return (fs::is_directory(installed, code) ? installed : folder).string();
}

std::string toolPath(const std::string& name) {
    return toolFolder() + "/" + name;
}

std::string applicationIcon() {
    const auto icons = iconThemePath();
    return icons.empty() ? "org.brisel.Brisel"
                         : icons + "/hicolor/48x48/apps/org.brisel.Brisel.png";
}

std::string iconThemePath() {
    constexpr const char* AnIcon = "hicolor/scalable/status/brisel-status-grey-dark.svg";
    const auto prefix = program().parent_path().parent_path();
    const auto icons = prefix / "share/icons";
    std::error_code code;
    return prefix != "/usr" && fs::exists(icons / AnIcon, code) ? icons.string() : std::string();
}

}  // namespace brisel::platform::headless
