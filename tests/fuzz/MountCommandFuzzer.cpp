// Fuzz target: the command line of the tool that runs as root.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <climits>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/fuzz/Must.h"
#include "tools/mount-tool/CommandLine.h"

namespace {

using namespace brisel::mounttool;
using brisel::tests::must;

// The input's first line is the home folder, each further one an argument; a line may hold any byte
// but its end and NUL, so 0x01 stands for the line end.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        std::replace(line.begin(), line.end(), '\x01', '\n');
        lines.emplace_back(line.c_str());
    }
    return lines;
}

bool isPlain(std::string_view component) {
    return !component.empty() && component != "." && component != ".." &&
           component.find('/') == std::string_view::npos;
}

void checkRequest(const MountRequest& request, const std::vector<const char*>& arguments) {
    must(arguments.size() == 5 && std::string_view(arguments[1]) == "-o");
    must(("," + std::string(arguments[2]) + ",").find(",rw,") != std::string::npos);
    must(request.device == arguments[3] && request.mountPoint == arguments[4]);
    must(request.device.starts_with("/dev/") && isPlain(request.device.substr(5)));
    must(request.device.find_first_of(", \n'\"\\$") == std::string::npos);
    must(request.device.size() < PATH_MAX && request.mountPoint.size() < PATH_MAX);
}

void checkLabel(const std::string& label, const std::string& mountPoint, const std::string& home) {
    must(isPlain(label) && label.size() <= NAME_MAX);
    must(std::all_of(label.begin(), label.end(),
                     [](unsigned char byte) { return byte >= ' ' && byte != 0x7F; }));
    must(mountPoint == home + "/.brisel/" + label);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto lines = linesOf({reinterpret_cast<const char*>(bytes), size});
    if (lines.empty()) return 0;
    std::vector<const char*> arguments{"mount_ntfs"};
    for (auto line = lines.begin() + 1; line != lines.end(); ++line)
        arguments.push_back(line->c_str());
    auto request = parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
    if (request) checkRequest(*request, arguments);
    const std::string& mountPoint = request ? request->mountPoint : lines.back();
    if (auto label = labelOf(mountPoint, lines.front()))
        checkLabel(*label, mountPoint, lines.front());
    return 0;
}
