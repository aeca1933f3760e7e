// Requests that the mount tool refuses although it runs as root.
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/tools/mount-tool/Stage.h"

namespace brisel::tests {

namespace {

namespace fs = std::filesystem;

class RefusedRequest : public MountToolStage {
  protected:
    void replaceMountPointByLinkTo(const std::string& target) const {
        fs::remove(mountPoint());
        fs::create_symlink(target, mountPoint());
    }

    void giveAway(const std::string& path) const { ASSERT_EQ(chown(path.c_str(), 1, 1), 0); }
};

/// A device node in /dev, removed with the object.
class DeviceNode {
  public:
    DeviceNode() = default;
    DeviceNode(const DeviceNode&) = delete;
    DeviceNode& operator=(const DeviceNode&) = delete;
    ~DeviceNode() { fs::remove(path_); }
    [[nodiscard]] const std::string& path() const { return path_; }

  private:
    std::string path_ = "/dev/brisel-mt" + std::to_string(getpid());
};

TEST_F(RefusedRequest, IsOneByALinkInPlaceOfTheMountPoint) {
    const auto mine = brisel() + "/Mine";
    fs::create_directory(mine);
    ASSERT_EQ(chown(mine.c_str(), static_cast<uid_t>(std::stoul(user->uid())), 0), 0);
    for (const auto& target : {mine, std::string("/etc"), folder()}) {
        replaceMountPointByLinkTo(target);
        expectRefusal(runTool(), "The mount point cannot be opened as a folder");
    }
}

TEST_F(RefusedRequest, IsOneByALinkInPlaceOfDotBrisel) {
    const auto elsewhere = user->home() + "/elsewhere";
    fs::rename(brisel(), elsewhere);
    fs::create_directory_symlink(elsewhere, brisel());
    expectRefusal(runTool(), "The folder .brisel cannot be opened as a folder");
    fs::remove_all(elsewhere);
}

TEST_F(RefusedRequest, IsOneForAFolderOfAnotherUser) {
    giveAway(mountPoint());
    expectRefusal(runTool(), "The mount point belongs to another user.");
    useLabel("Data");
    giveAway(brisel());
    expectRefusal(runTool(), "The folder .brisel belongs to another user.");
    useLabel("Data");
    const std::string home = user->home();
    giveAway(home);
    expectRefusal(runTool(), "The home folder belongs to another user.");
    shell("chown " + user->uid() + " " + home);
}

TEST_F(RefusedRequest, IsOneForTheHomeOfAnotherUser) {
    for (const char* const caller : {"PKEXEC_UID=1", "-u PKEXEC_UID"})
        expectRefusal(runTool(caller), "must be in .brisel of the requesting user's home");
    mountPoint_ = brisel() + "/Data/../../.brisel/Data";
    expectRefusal(runTool(), "The mount point");
    expectRefusal(runTool("PKEXEC_UID=0x0"), "PKEXEC_UID is not a user ID.");
    expectRefusal(runTool("PKEXEC_UID=4294967213"), "The requesting user does not exist.");
}

TEST_F(RefusedRequest, IsOneForAFolderThatIsNotEmpty) {
    std::ofstream(mountPoint() + "/.hidden") << "here before";
    expectRefusal(runTool(), "The mount point is not empty.");
}

TEST_F(RefusedRequest, IsOneForAMissingFolderOrAFile) {
    fs::remove(mountPoint());
    expectRefusal(runTool(), "The mount point cannot be opened as a folder");
    std::ofstream(mountPoint()) << "a file";
    expectRefusal(runTool(), "The mount point cannot be opened as a folder");
}

TEST_F(RefusedRequest, IsOneForAMountPoint) {
    const auto bind = "mount --bind " + mountPoint() + " " + mountPoint();
    const auto other = "mount -t tmpfs -o uid=" + user->uid() + " none " + mountPoint();
    for (const auto& mount : {bind, other})
        expectRefusal(runToolAfter(mount), "A file system is already mounted on the mount point.");
}

TEST_F(RefusedRequest, IsOneWithoutRootsRights) {
    expectRefusal(runTool(user->runs()), "This tool must run as root.");
    expectRefusal(runTool("setpriv --ruid " + user->uid() + " --euid 0"),
                  "This tool must run as root.");
}

TEST_F(RefusedRequest, IsOneForADeviceThatIsNotABlockDevice) {
    const DeviceNode node;
    device_ = node.path();
    expectRefusal(runTool(), "The device cannot be found");
    for (const auto& make : {"ln -s " + image().device(), "cp " + folder() + "/volume.img",
                             std::string("mkfifo"), std::string("cp -R /dev/null")}) {
        ASSERT_TRUE(succeeds(make + " " + node.path())) << make;
        expectRefusal(runTool(), "The device is not a block device.");
        fs::remove(node.path());
    }
}

TEST_F(RefusedRequest, IsOneForADeviceThatCannotBeRead) {
    const auto file = shell("losetup --noheadings --output BACK-FILE " + device_);
    shell("truncate -s 0 '" + file + "'; blockdev --flushbufs " + device_);
    expectNothingMounted(runTool(), 1, "The device cannot be read: Input/output error.");
}

TEST_F(RefusedRequest, IsOneForADeviceWithoutNTFS) {
    const std::string sentence = "There is no NTFS volume on the device.";
    shell("printf 'NOTFS   ' | dd of=" + device_ + " bs=1 seek=3 oflag=sync");
    expectNothingMounted(runTool(), 12, sentence);
    shell("printf 'NTFS    ' | dd of=" + device_ + " bs=1 seek=3 oflag=sync");
    EXPECT_EQ(runTool().status, 0);
    shell("umount " + device_ + "; printf '\\0' | dd of=" + device_ + " bs=1 seek=511 oflag=sync");
    expectNothingMounted(runTool(), 12, sentence);
}

}  // namespace

}  // namespace brisel::tests
