// Volumes that the mount tool mounts, and volumes that it refuses.
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>

#include "tests/tools/mount-tool/Stage.h"

namespace brisel::tests {

namespace {

namespace fs = std::filesystem;

class Volume : public MountToolStage {
  protected:
    void expectMounted(const Outcome& run) const {
        EXPECT_EQ(run.status, 0) << run.output;
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(mounted("SOURCE"), device_);
        EXPECT_TRUE(stagingIsGone());
    }

    /// Mounts the volume with its driver directly and runs `commands` in its root.
    void withVolume(const std::string& commands) const {
        const auto at = folder() + "/aside";
        fs::create_directory(at);
        ASSERT_TRUE(succeeds("ntfs-3g " + device_ + " " + at + " && cd " + at + " && " + commands));
        ASSERT_TRUE(succeeds("umount " + at));
    }

    [[nodiscard]] std::string driver() const {
        return shell("pgrep --full '^/usr/bin/ntfs-3g .* " + device_ + " '");
    }

    [[nodiscard]] std::string journal() const {
        return shell("ntfscat --force --inode 2 " + device_ + " | sha256sum");
    }

    /// Writes a restart page as Windows leaves it on a mounted volume.
    void makeJournalUnclean() const {
        ASSERT_TRUE(succeeds("ntfscat --force --inode 2 " + device_ + " >" + folder() +
                             "/journal && " BRISEL_UNCLEAN_JOURNAL " " + folder() +
                             "/journal && ntfscp --force --inode " + device_ + " " + folder() +
                             "/journal 2"));
    }
};

TEST_F(Volume, IsMountedReadWriteForThePersonWhoAsked) {
    expectMounted(runTool());
    EXPECT_EQ(mounted(), mountPoint());
    EXPECT_EQ(mounted("VFS-OPTIONS"), "rw,nosuid,nodev,noatime");
    EXPECT_EQ(shell("ls -A " + mountPoint()), "");
    const auto file = mountPoint() + "/greeting.txt";
    ASSERT_TRUE(succeeds(user->runs() + "sh -c 'printf hello >" + file + "'"));
    EXPECT_EQ(shell("stat -c %u:%a " + file), user->uid() + ":700");
    EXPECT_FALSE(succeeds("setpriv --reuid 1 --regid 1 --clear-groups ls " + mountPoint()));
}

TEST_F(Volume, IsMountedInAHomeThatIsWrittenWithASlashAtItsEnd) {
    const auto users = folder() + "/passwd";
    const auto run =
        runToolAfter("sed 's|:" + user->home() + ":|:" + user->home() + "/:|' /etc/passwd >" +
                     users + " && mount --bind " + users +
                     " /etc/passwd && getent passwd | grep -F :" + user->home() + "/:");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_NE(run.output.find(" " + mountPoint() + " rw"), std::string::npos) << run.output;
}

TEST_F(Volume, IsMountedThoughItIsFull) {
    withVolume(Filling);
    expectMounted(runTool());
    EXPECT_FALSE(succeeds("touch " + mountPoint() + "/one-more"));
    ASSERT_TRUE(succeeds("rm " + mountPoint() + "/filling*"));
    EXPECT_TRUE(succeeds("touch " + mountPoint() + "/one-more"));
}

TEST_F(Volume, IsMountedForRootWithoutPkexec) {
    const auto parent = fs::path(shell("getent passwd 0 | cut -d: -f6")) / ".brisel";
    const bool isNew = fs::create_directories(parent);
    mountPoint_ = parent / ("Data" + folder().substr(folder().rfind('-')));
    fs::create_directory(mountPoint_);
    expectMounted(runTool("-u PKEXEC_UID"));
    EXPECT_EQ(mounted(), mountPoint());
    shell("umount " + mountPoint());
    fs::remove(mountPoint());
    if (isNew) fs::remove(parent);
}

TEST_F(Volume, MayHaveAnyLabelThatAFolderCanHave) {
    for (const std::string label : {"-o", "$(reboot); '\"", "a b", "D\xC3\xA4ten", "\xFF", "a,b"}) {
        useLabel(label);
        expectMounted(runTool());
        EXPECT_TRUE(succeeds("mountpoint -q -- " + quoted(mountPoint()))) << label;
        shell("umount " + device_);
    }
}

TEST_F(Volume, IsMountedWhereMountsArePropagated) {
    const auto script = "mount --make-rshared /; \"$@\" && findmnt -no TARGET --source " + device_ +
                        "; umount " + device_;
    const auto run = runTool("unshare --mount sh -c " + quoted(script) + " sh");
    EXPECT_EQ(run.output, mountPoint());
}

TEST_F(Volume, HasADriverThatInheritsNothing) {
    std::ofstream(folder() + "/ntfs-3g") << "#!/bin/sh\nexit 21\n";
    shell("chmod +x " + folder() + "/ntfs-3g");
    expectMounted(runTool("PATH=" + folder() +
                          ":$PATH LD_LIBRARY_PATH=/nonexistent LD_BIND_NOW=1 LC_ALL=xx IFS=/ "
                          "NTFS_OPTIONS=force "
                          "sh -c 'cd /tmp; ulimit -S -t 30; exec 5</etc/passwd; exec \"$@\"' sh"));
    const auto process = "/proc/" + driver();
    EXPECT_EQ(shell("tr '\\0' '\\n' <" + process + "/environ | sort"),
              "LC_ALL=C\nPATH=/usr/sbin:/usr/bin:/sbin:/bin");
    EXPECT_EQ(shell("readlink " + process + "/cwd"), "/");
    EXPECT_EQ(shell("readlink " + process + "/fd/* | sort -u"),
              "/dev/fuse\n" + device_ + "\n/dev/null");
    EXPECT_TRUE(succeeds("grep -E 'Max cpu time +unlimited' " + process + "/limits"));
}

TEST_F(Volume, IsMountedForAStarterWithoutStandardDescriptorsOrThatIgnoresTheEndOfItsChildren) {
    for (const char* const starter :
         {"sh -c 'exec \"$@\" <&- >&- 2>&-' sh", "--ignore-signal=CHLD"}) {
        expectMounted(runTool(starter));
        shell("umount " + device_);
    }
}

TEST_F(Volume, IsLeftAloneWhileWindowsHibernatesOnIt) {
    withVolume("printf hibr >hiberfil.sys && truncate -s 8192 hiberfil.sys");
    for (const std::string probe : {"true", "mount --bind /etc/passwd /usr/bin/ntfs-3g.probe"}) {
        const auto run = runToolAfter(probe);
        EXPECT_NE(run.status, 0);
        expectNothingMounted(run, probe == "true" ? 14 : 18, "");
        EXPECT_EQ(image().contentOf("hiberfil.sys"), "hibr");
    }
    expectNothingMounted(runTool(), 14, "shut Windows down fully");
}

TEST_F(Volume, IsLeftAloneWhereItWasNotCleanlyUnmounted) {
    makeJournalUnclean();
    const auto before = journal();
    expectNothingMounted(runTool(), 15, "The volume was not cleanly unmounted");
    const auto unprobed = runToolAfter("mount --bind /etc/passwd /usr/bin/ntfs-3g.probe");
    EXPECT_NE(unprobed.status, 0);
    expectNothingMounted(unprobed, unprobed.status, "");
    EXPECT_EQ(journal(), before);
}

TEST_F(Volume, IsLeftAloneWhereItIsDamaged) {
    shell("dd if=/dev/zero of=" + device_ + " bs=4096 seek=1 conv=notrunc oflag=sync");
    const auto run = runTool();
    EXPECT_TRUE(run.status == 12 || run.status == 13) << run.status;
    expectNothingMounted(run, run.status, "");
}

TEST_F(Volume, IsNotMountedTwice) {
    expectMounted(runTool());
    useLabel("Other");
    const auto run = runTool();
    EXPECT_EQ(run.status, 16) << run.output;
    EXPECT_EQ(mounted(), brisel() + "/Data");
}

}  // namespace

}  // namespace brisel::tests
