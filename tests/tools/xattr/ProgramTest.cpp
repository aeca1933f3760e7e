// The xattr program as a process of an ordinary user.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/linux/NTFSImage.h"
#include "tests/linux/TemporaryFolder.h"
#include "tests/tools/xattr/UserAttributes.h"

namespace brisel::tests {

namespace {

namespace fs = std::filesystem;

class Program : public testing::Test {
  protected:
    void SetUp() override {
        if (setAttribute(folder_.path(), "user.probe") != 0) {
            GTEST_SKIP() << folder_.path() << " holds no user attributes";
        }
        // Where other users can execute it.
        fs::copy_file(BRISEL_XATTR, program_);
        fs::permissions(folder_.path(), fs::perms(0755));
    }

    /// Output and exit status of the program.
    [[nodiscard]] std::string run(const std::string& arguments) const {
        return shell("cd " + folder_.path() + " && " + program_ + " " + arguments + "; echo $?");
    }

    /// run() as an unprivileged user, who becomes the owner of the folder.
    [[nodiscard]] std::string runAsUser(const std::string& arguments) const {
        const bool isRoot = geteuid() == 0;
        if (isRoot) shell("chown -R 65534:65534 " + folder_.path());
        const std::string become = "setpriv --reuid 65534 --regid 65534 --clear-groups ";
        return shell("cd " + folder_.path() + " && " + (isRoot ? become : "") + program_ + " " +
                     arguments + "; echo $?");
    }

    [[nodiscard]] std::string at(const std::string& name) const {
        return folder_.path() + '/' + name;
    }

    TemporaryFolder folder_;
    const std::string program_ = folder_.path() + "/xattr";
};

TEST_F(Program, StripsEachOfItsPaths) {
    makeTaggedFolder(at("My"));
    makeTaggedFile(at("My/file"));
    makeTaggedFolder(at("Disk"));
    EXPECT_EQ(run("-cr My Disk"), "0");
    for (const char* name : {"My", "My/file", "Disk"})
        EXPECT_FALSE(isTagged(at(name))) << name;
}

TEST_F(Program, GoesOnAfterAFailureAndEndsWithOne) {
    makeTaggedFile(at("file"));
    EXPECT_EQ(run("-cr \"no\nsuch\x1b[1m\" file"),
              "xattr: no\\x0asuch\\x1b[1m: No such file or directory\n1");
    EXPECT_FALSE(isTagged(at("file")));
}

TEST_F(Program, PrintsItsUsageForOtherArguments) {
    makeTaggedFile(at("file"));
    EXPECT_THAT(run("-d user.tag file"),
                testing::AllOf(testing::StartsWith("usage: xattr -c"), testing::EndsWith("\n2")));
    EXPECT_TRUE(isTagged(at("file")));
    EXPECT_THAT(run("--help 2>/dev/null"),
                testing::AllOf(testing::StartsWith("usage: xattr -c"), testing::EndsWith("\n0")));
}

TEST_F(Program, ReportsWhatItMayNotChangeOrReadAndGoesOn) {
    makeTaggedFolder(at("tree"));
    makeTaggedFile(at("tree/unreadable"));
    fs::permissions(at("tree/unreadable"), fs::perms(0200));
    makeTaggedFile(at("tree/fixed"));
    fs::permissions(at("tree/fixed"), fs::perms(0400));
    makeTaggedFolder(at("tree/closed"));
    fs::permissions(at("tree/closed"), fs::perms(0200));
    const auto said = runAsUser("-cr tree");
    EXPECT_THAT(said, testing::HasSubstr("xattr: tree/fixed: Permission denied\n"));
    EXPECT_THAT(said, testing::HasSubstr("xattr: tree/closed: Permission denied\n"));
    EXPECT_THAT(said, testing::EndsWith("\n1"));
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 2) << said;
    EXPECT_FALSE(isTagged(at("tree/unreadable")));
    fs::permissions(at("tree/closed"), fs::perms(0700));
    EXPECT_FALSE(isTagged(at("tree/closed")));
}

TEST_F(Program, ReportsAReadOnlyFileSystem) {
    if (!succeeds("unshare --mount true")) GTEST_SKIP() << "No mount namespace can be made.";
    makeTaggedFolder(at("tree"));
    makeTaggedFile(at("tree/file"));
    const auto said = shell("cd " + folder_.path() +
                            " && unshare --mount sh -c 'mount --bind tree tree && "
                            "mount -o remount,ro,bind tree && ./xattr -cr tree; echo $?'");
    EXPECT_EQ(said,
              "xattr: tree: Read-only file system\n"
              "xattr: tree/file: Read-only file system\n1");
    EXPECT_TRUE(isTagged(at("tree/file")));
}

TEST_F(Program, EntersNoOtherFileSystem) {
    if (!succeeds("unshare --mount true")) GTEST_SKIP() << "No mount namespace can be made.";
    makeTaggedFolder(at("tree"));
    makeTaggedFolder(at("tree/mounted"));
    const auto inside = at("tree/mounted/file");
    // The mount ends with the namespace.
    const auto said = shell("unshare --mount sh -c 'mount -t tmpfs none " + at("tree/mounted") +
                            " && touch " + inside + " && setfattr -n user.tag -v x " + inside +
                            " " + at("tree/mounted") + " && " + program_ + " -cr " + at("tree") +
                            " && getfattr -n user.tag --only-values --absolute-names " + inside +
                            " " + at("tree/mounted") + "'");
    if (said.find("ermi") != std::string::npos) GTEST_SKIP() << "nothing can be mounted: " << said;
    EXPECT_EQ(said, "xx");
    EXPECT_FALSE(isTagged(at("tree")));
}

}  // namespace

}  // namespace brisel::tests
