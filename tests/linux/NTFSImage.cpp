// A real NTFS volume in an image file.
// SPDX-License-Identifier: MIT
#include "tests/linux/NTFSImage.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace brisel::tests {

std::string shell(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(
        popen(("{ " + command + "; } 2>&1").c_str(), "r"), &pclose);
    std::string text;
    std::array<char, 1024> chunk{};
    while (std::fgets(chunk.data(), static_cast<int>(chunk.size()), pipe.get()) != nullptr) {
        text += chunk.data();
    }
    if (text.ends_with('\n')) text.pop_back();
    return text;
}

bool succeeds(const std::string& command) {
    return std::system(("{ " + command + "; } >/dev/null 2>&1").c_str()) == 0;
}

NTFSImage::NTFSImage(const std::string& folder, const std::string& label, const std::string& file)
    : path_(folder + "/" + file) {
    setenv("LABEL", label.c_str(), 1);
    // mkntfs derives the serial number, at offset 72, from the time in seconds.
    shell("truncate -s 8M '" + path_ + "' && mkntfs -F -q -L \"$LABEL\" '" + path_ +
          "' && dd if=/dev/urandom of='" + path_ + "' bs=8 count=1 seek=9 conv=notrunc");
}

NTFSImage::~NTFSImage() {
    if (!device_.empty()) pull();
}

void NTFSImage::attach() {
    device_ = shell("losetup --find --show '" + path_ + "'");
    shell("udevadm settle");
}

std::string NTFSImage::mountReadOnly() const {
    shell("udisksctl mount --no-user-interaction -o ro -b " + device_);
    return shell("findmnt --noheadings --output TARGET --source " + device_);
}

void NTFSImage::pull() {
    shell("losetup -d " + device_ + "; umount --lazy --all-targets " + device_);
    device_.clear();
}

void NTFSImage::detach() {
    shell("losetup -d " + device_ + "; udevadm settle");
    device_.clear();
}

std::string NTFSImage::name() const {
    return device_.substr(std::string("/dev/").size());
}

bool NTFSImage::isMounted() const {
    return succeeds("findmnt --source " + device_);
}

std::string NTFSImage::contentOf(const std::string& file) const {
    return shell("ntfscat -f '" + path_ + "' '" + file + "'");
}

}  // namespace brisel::tests
