// A block device with an NTFS volume on it.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/NTFSDevice.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <optional>
#include <string_view>

namespace brisel::mounttool {

namespace {

constexpr std::size_t SectorSize = 512;
constexpr std::size_t NameOffset = 3;
constexpr std::string_view NTFSName = "NTFS    ";
constexpr std::size_t SignatureOffset = 510;
constexpr std::string_view Signature = "\x55\xAA";

std::optional<dev_t> blockDeviceNumber(int descriptor) {
    struct stat facts {};
    if (fstat(descriptor, &facts) != 0 || !S_ISBLK(facts.st_mode)) return std::nullopt;
    return facts.st_rdev;
}

// nullopt, with errno, if the device cannot be read.
std::optional<bool> startsAsNTFS(int device) {
    std::array<char, SectorSize> sector{};
    const auto length = pread(device, sector.data(), sector.size(), 0);
    if (length < 0) return std::nullopt;
    if (length < static_cast<ssize_t>(sector.size())) return false;
    const std::string_view text(sector.data(), sector.size());
    return text.substr(NameOffset).starts_with(NTFSName) &&
           text.substr(SignatureOffset) == Signature;
}

}  // namespace

Result<NTFSDevice> NTFSDevice::open(const std::string& path) {
    // O_PATH first: opening some devices, such as a watchdog or a tape, has side effects.
    const Descriptor look(::open(path.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (!look) return refuseByError("The device cannot be found");
    const auto number = blockDeviceNumber(look.number());
    if (!number) return refuse("The device is not a block device.");
    Descriptor device(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!device) return refuseByError("The device cannot be opened");
    if (blockDeviceNumber(device.number()) != number)
        return refuse("The device was replaced while it was opened.");
    const auto isNTFS = startsAsNTFS(device.number());
    if (!isNTFS) return refuseByError("The device cannot be read");
    if (!*isNTFS) return Refusal{NotNTFS, "There is no NTFS volume on the device."};
    return NTFSDevice(path, std::move(device), *number);
}

}  // namespace brisel::mounttool
