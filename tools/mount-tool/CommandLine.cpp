// Parses the mount tool's command line.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/CommandLine.h"

#include <algorithm>
#include <array>
#include <climits>
#include <optional>
#include <vector>

#include "shared/MountFolders.h"

namespace brisel::mounttool {

namespace {

constexpr std::array<std::string_view, 5> KnownOptions{"rw", "auto", "nobrowse", "noowners",
                                                       "noatime"};
constexpr std::string_view DeviceFolder = "/dev/";

std::vector<std::string_view> splitAtCommas(std::string_view text) {
    std::vector<std::string_view> words;
    for (;;) {
        const auto comma = text.find(',');
        words.push_back(text.substr(0, comma));
        if (comma == std::string_view::npos) return words;
        text.remove_prefix(comma + 1);
    }
}

std::optional<Refusal> complaintAboutOptions(std::string_view options) {
    const auto words = splitAtCommas(options);
    for (const auto word : words) {
        if (std::count(KnownOptions.begin(), KnownOptions.end(), word) == 0)
            return refuse("A mount option is unknown.");
        if (std::count(words.begin(), words.end(), word) > 1)
            return refuse("A mount option is given twice.");
    }
    if (std::count(words.begin(), words.end(), "rw") == 0)
        return refuse("The mount option rw is missing.");
    return std::nullopt;
}

// Not isalnum, which depends on the locale.
bool belongsToDeviceName(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') ||
           std::string_view("._-").find(character) != std::string_view::npos;
}

bool isDevice(std::string_view path) {
    if (!path.starts_with(DeviceFolder)) return false;
    const auto name = path.substr(DeviceFolder.size());
    return !name.empty() && name.front() != '.' &&
           std::all_of(name.begin(), name.end(), belongsToDeviceName);
}

bool isControlCharacter(char character) {
    constexpr unsigned char Delete = 0x7F;
    const auto byte = static_cast<unsigned char>(character);
    return byte < ' ' || byte == Delete;
}

bool isLabel(std::string_view text) {
    return !text.empty() && text.size() <= NAME_MAX && text != "." && text != ".." &&
           text.find('/') == std::string_view::npos;
}

}  // namespace

Result<MountRequest> parseCommandLine(int argumentCount, const char* const* arguments) {
    constexpr int Expected = 5;
    if (argumentCount != Expected) return refuse("Usage: mount_ntfs -o OPTIONS DEVICE MOUNTPOINT");
    const std::vector<std::string_view> words(arguments + 1, arguments + argumentCount);
    const auto isTooLong = [](std::string_view word) { return word.size() >= PATH_MAX; };
    if (std::any_of(words.begin(), words.end(), isTooLong))
        return refuse("An argument is too long.");
    if (words[0] != "-o") return refuse("The first argument must be -o.");
    if (auto complaint = complaintAboutOptions(words[1])) return *complaint;
    if (!isDevice(words[2])) return refuse("The device must be /dev/NAME.");
    if (!words[3].starts_with('/')) return refuse("The mount point must be an absolute path.");
    return MountRequest{std::string(words[2]), std::string(words[3])};
}

Result<std::string> labelOf(std::string_view mountPoint, std::string_view home) {
    const auto parent = std::string(home) + "/" + shared::MountFolders + "/";
    if (!mountPoint.starts_with(parent))
        return refuse("The mount point must be in .brisel of the requesting user's home.");
    const auto label = mountPoint.substr(parent.size());
    if (std::any_of(label.begin(), label.end(), isControlCharacter))
        return refuse("The label contains control characters: rename the volume, then try again.");
    if (!isLabel(label)) return refuse("The mount point's name is not a valid folder name.");
    return std::string(label);
}

}  // namespace brisel::mounttool
