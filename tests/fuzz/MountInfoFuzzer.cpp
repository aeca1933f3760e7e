// Fuzz target: any bytes as the kernel's table of mounts.
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <sstream>
#include <string>

#include "platform/headless/MountInfo.h"
#include "tests/fuzz/Must.h"

namespace {

using brisel::platform::headless::mountState;
using brisel::platform::headless::MountState;
using brisel::tests::must;

// As the kernel writes a mount point.
std::string escaped(const std::string& path) {
    std::string text;
    for (const char character : path) {
        switch (character) {
            case ' ':
                text += "\\040";
                break;
            case '\t':
                text += "\\011";
                break;
            case '\n':
                text += "\\012";
                break;
            case '\\':
                text += "\\134";
                break;
            default:
                text += character;
        }
    }
    return text;
}

std::string line(const std::string& path, const std::string& options) {
    return "\n36 35 8:1 / " + escaped(path) + " rw,noatime - fuseblk /dev/sda1 " + options + "\n";
}

}  // namespace

// The first line is the mount point to ask for, the rest the table.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    std::istringstream input(std::string(bytes, bytes + size));
    std::string path;
    std::getline(input, path);
    // Mount points are absolute.
    path.insert(0, "/");
    std::ostringstream rest;
    rest << input.rdbuf();
    const auto table = rest.str();
    static_cast<void>(mountState(table, path));
    // The last line is the mount on top, regardless of the lines before it.
    must(mountState(table + line(path, "rw"), path) == MountState::ReadWrite);
    must(mountState(table + line(path, "ro"), path) == MountState::ReadOnly);
    must(mountState(table + line(path, "rw"), path + "/") == mountState(table, path + "/"));
    return 0;
}
