// A real NTFS volume in an image file, attached as a loop device.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::tests {

/// Runs a shell command; returns stdout and stderr without the trailing newline.
std::string shell(const std::string& command);
bool succeeds(const std::string& command);

/// Shell command that fills the current folder's volume until not even an empty file fits.
inline constexpr const char* Filling =
    "{ dd if=/dev/zero of=filling bs=64k; i=0; while touch filling-$i; do i=$((i + 1)); done; "
    "true; }";

class NTFSImage {
  public:
    NTFSImage(const std::string& folder, const std::string& label,
              const std::string& file = "volume.img");
    NTFSImage(const NTFSImage&) = delete;
    NTFSImage& operator=(const NTFSImage&) = delete;
    ~NTFSImage();

    /// Attaches the image to a loop device and waits for udev.
    void attach();
    /// Mounts the volume read-only through UDisks2, as macOS does; returns the mount point.
    std::string mountReadOnly() const;
    /// Detaches the device and unmounts the volume lazily, as when a stick is pulled.
    void pull();
    void detach();

    /// For example /dev/loop0.
    [[nodiscard]] const std::string& device() const { return device_; }
    /// The BSD name, for example loop0.
    [[nodiscard]] std::string name() const;
    [[nodiscard]] bool isMounted() const;
    /// Content of a file, read from the image without a mount.
    [[nodiscard]] std::string contentOf(const std::string& file) const;

  private:
    std::string path_;
    std::string device_;
};

}  // namespace brisel::tests
