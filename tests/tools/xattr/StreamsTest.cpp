// The xattr program on an NTFS volume's alternate data streams.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <iostream>

#include "tests/linux/NTFSImage.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::tests {

namespace {

namespace fs = std::filesystem;

/// A volume that belongs to an ordinary user but is mounted by root.
class AVolume : public testing::Test {
  protected:
    void SetUp() override {
        fs::copy_file(BRISEL_XATTR, program_);
        fs::permissions(folder_.path(), fs::perms(0755));
        fs::create_directory(mountPoint_);
        mount("rw");
    }

    void TearDown() override {
        if (succeeds("mountpoint -q " + mountPoint_)) unmount();
    }

    void mount(const std::string& options) const {
        const auto said = shell("ntfs-3g -o uid=65534,gid=65534," + options + " " + folder_.path() +
                                "/volume.img " + mountPoint_);
        ASSERT_TRUE(succeeds("mountpoint -q " + mountPoint_)) << said;
    }
    /// Waits for the driver's exit, which completes the image.
    void unmount() const {
        shell("umount " + mountPoint_ + "; while pgrep -f '^ntfs-3g.*" + mountPoint_ +
              "' >/dev/null; do sleep 0.05; done");
    }

    /// Runs a shell command in the volume as the user; returns its output and exit status.
    [[nodiscard]] std::string asUser(const std::string& command) const {
        return shell("cd " + mountPoint_ +
                     " && setpriv --reuid 65534 --regid 65534 --clear-groups sh -c '" + command +
                     "'; echo $?");
    }

    /// Content of a file's stream, read from the image of the unmounted volume.
    [[nodiscard]] std::string stream(const std::string& file, const std::string& name) const {
        return shell("ntfscat -f -n '" + name + "' " + folder_.path() + "/volume.img '" + file +
                     "' 2>/dev/null");
    }

    TemporaryFolder folder_;
    const std::string program_ = folder_.path() + "/xattr";
    const std::string mountPoint_ = folder_.path() + "/mounted";
    NTFSImage image_{folder_.path(), "Streams"};
};

TEST_F(AVolume, LosesTheStreamsAndNothingElse) {
    ASSERT_EQ(asUser("mkdir -p deep/er && echo content > deep/er/file && "
                     "setfattr -n user.Zone.Identifier -v zone deep/er/file && "
                     "setfattr -n user.second -v two deep/er/file && "
                     "setfattr -n user.onFolder -v three deep"),
              "0");
    unmount();
    ASSERT_EQ(stream("deep/er/file", "Zone.Identifier"), "zone");
    ASSERT_EQ(stream("deep", "onFolder"), "three");

    mount("rw");
    EXPECT_EQ(asUser(program_ + " -cr ."), "0");
    EXPECT_EQ(asUser("getfattr -Rd . 2>&1"), "0");
    unmount();
    EXPECT_EQ(stream("deep/er/file", "Zone.Identifier"), "");
    EXPECT_EQ(stream("deep/er/file", "second"), "");
    EXPECT_EQ(stream("deep", "onFolder"), "");
    EXPECT_EQ(image_.contentOf("deep/er/file"), "content");
}

TEST_F(AVolume, ThatIsReadOnlyIsReported) {
    ASSERT_EQ(asUser("touch file other && setfattr -n user.tag -v x file"), "0");
    unmount();
    mount("ro");
    EXPECT_EQ(asUser(program_ + " -cr . 2>&1"), "xattr: ./file: Read-only file system\n1");
}

}  // namespace

}  // namespace brisel::tests

int main(int argumentCount, char** arguments) {
    constexpr int Skipped = 77;
    testing::InitGoogleTest(&argumentCount, arguments);
    using brisel::tests::succeeds;
    if (geteuid() != 0 || !succeeds("test -e /dev/fuse") ||
        !succeeds("command -v ntfs-3g && command -v mkntfs && command -v ntfscat && "
                  "command -v setfattr && command -v setpriv")) {
        std::cout << "Skipped, it takes root, FUSE, ntfs-3g, setfattr and setpriv\n";
        return Skipped;
    }
    return RUN_ALL_TESTS();
}
