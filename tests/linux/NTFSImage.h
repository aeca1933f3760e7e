// A real NTFS volume in an image file, attached as a loop device.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::tests {

/// Runs a shell command and returns what it printed, both streams, without the last line end.
std::string shell(const std::string& command);
/// Whether a shell command ends with status 0.
bool succeeds(const std::string& command);

/// A shell command that fills the volume it runs on until not even an empty file has room.
inline constexpr const char* Filling =
    "{ dd if=/dev/zero of=filling bs=64k; i=0; while touch filling-$i; do i=$((i + 1)); done; "
    "true; }";

class NTFSImage {
  public:
    /// Makes the image in the folder; it is not attached yet.
    NTFSImage(const std::string& folder, const std::string& label,
              const std::string& file = "volume.img");
    NTFSImage(const NTFSImage&) = delete;
    NTFSImage& operator=(const NTFSImage&) = delete;
    ~NTFSImage();

    /// Attaches the image and waits until udev has looked at it.
    void attach();
    /// Mounts it read-only, as a Mac does by itself; returns the mount point.
    std::string mountReadOnly() const;
    /// Takes the device away. A mounted volume is cut off from its mount point first, as when a
    /// stick is pulled.
    void pull();
    /// Detaches the unmounted device.
    void detach();

    /// The device, such as /dev/loop0.
    [[nodiscard]] const std::string& device() const { return device_; }
    /// The device's BSD name, such as loop0.
    [[nodiscard]] std::string name() const;
    [[nodiscard]] bool isMounted() const;
    /// A file's content as it stands in the image, read without mounting it.
    [[nodiscard]] std::string contentOf(const std::string& file) const;

  private:
    std::string path_;
    std::string device_;
};

}  // namespace brisel::tests
