// Untrustworthy drivers, and users who move folders during a mount.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "tests/tools/mount-tool/OldKernel.h"
#include "tests/tools/mount-tool/Stage.h"

namespace brisel::tests {

namespace {

namespace fs = std::filesystem;

class UntrustedDriver : public MountToolStage {
  protected:
    void SetUp() override {
        MountToolStage::SetUp();
        shell("cp /usr/bin/ntfs-3g " + realDriver());
    }

    [[nodiscard]] std::string realDriver() const { return folder() + "/real-driver"; }

    void expectMounted(const Outcome& run) const {
        EXPECT_EQ(run.status, 0) << run.output;
        EXPECT_NE(run.output.find(mountPoint()), std::string::npos) << run.output;
    }
    /// Runs the tool with `script` as driver; $3 is the device, $4 the folder.
    [[nodiscard]] Outcome runWithDriver(const std::string& script) const {
        return runToolAfter(replace("/usr/bin/ntfs-3g", script));
    }
};

TEST_F(UntrustedDriver, IsNotBelievedAndPassesOnItsStatusOrUnknown) {
    expectNothingMounted(runToolAfter("mount --bind /etc/passwd /usr/bin/ntfs-3g"), 1,
                         "cannot be started");
    const TemporaryFolder otherFolder;
    NTFSImage other(otherFolder.path(), "Other");
    other.attach();
    struct Row {
        std::string script;
        int status;
        std::string sentence;
    };
    const std::vector<Row> rows{
        {"exit 0", 18, "has not mounted the volume"},
        {"exec mount -t tmpfs none $4", 18, "has not mounted"},
        {"exec " + realDriver() + " " + other.device() + " $4", 18, "has not mounted"},
        {"exec " + realDriver() + " -o ro,nosuid,nodev $3 $4", 18, "mounted the volume read-only"},
        {"exec " + realDriver() + " -o rw,nodev $3 $4", 18, "without nosuid or nodev"},
        {"exec " + realDriver() + " -o rw,nosuid $3 $4", 18, "without nosuid or nodev"},
        {"exit 16", 16, "in use"},
        {"exit 21", 21, "FUSE"},
        {"exit 99", 18, "for an unknown reason"},
        {"kill -9 $$", 18, "for an unknown reason"},
        {"pwd; umask; exit 21", 21, "/\n0077\nFUSE"},
        {"mke2fs -q $3 && exec mount -t ext4 -o nosuid,nodev $3 $4", 18, "has not mounted"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.script);
        expectNothingMounted(runWithDriver(row.script), row.status, row.sentence);
    }
}

TEST_F(UntrustedDriver, ThatTalksTooMuchIsCutOffAndCleaned) {
    const auto note = folder() + "/refused";
    const auto run = runWithDriver(
        "printf '\\033[2Jred\\r\\001\\n'; yes | head -c 2000000 || touch " + note + "; exit 13");
    EXPECT_TRUE(fs::exists(note));
    EXPECT_EQ(run.status, 13);
    EXPECT_EQ(run.output.find("?[2Jred??\n"), 0U);
    EXPECT_LT(run.output.size(), 70000U);
    EXPECT_NE(run.output.find("chkdsk"), std::string::npos);
}

TEST_F(UntrustedDriver, ThatKeepsItsOutputOpenDoesNotBlock) {
    const auto note = folder() + "/process";
    const auto run = runWithDriver("sleep 600 & echo $! >" + note + "; echo waiting >&2; exit 21");
    expectNothingMounted(run, 21, "waiting\nFUSE");
    EXPECT_TRUE(succeeds("kill $(cat " + note + ")"));
}

TEST_F(UntrustedDriver, IsUnmountedAgainWhereTheKernelCannotMoveMounts) {
    const auto self = fs::read_symlink("/proc/self/exe").string();
    expectNothingMounted(runTool(self + " " + std::string(OldKernelMode)), 1, "kernel is too old");
}

TEST_F(UntrustedDriver, WorksWithoutItsProbe) {
    expectMounted(runToolAfter("mount --bind /etc/passwd /usr/bin/ntfs-3g.probe"));
}

TEST_F(UntrustedDriver, IsUnmountedAgainWhereTheFolderWasMovedMeanwhile) {
    const auto moved = user->home() + "/moved";
    const auto run = runWithDriver("mv " + mountPoint() + " " + moved + "; mkdir " + mountPoint() +
                                   "; exec " + realDriver() + " \"$@\"");
    expectNothingMounted(run, 1, "The mount point was moved");
    fs::remove(moved);
}

TEST_F(UntrustedDriver, IsWaitedForDespiteSignals) {
    const auto run =
        runWithDriver("for s in INT TERM HUP QUIT ALRM PIPE XCPU; do kill -$s $PPID; done; exec " +
                      realDriver() + " \"$@\"");
    expectMounted(run);
}

TEST_F(UntrustedDriver, IsOutOfTheUsersReachUntilItsMountIsVerified) {
    const auto note = folder() + "/reached";
    const auto run = runWithDriver(realDriver() + " \"$@\"; " + user->runs() + "ls $4 && touch " +
                                   note + "; true");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_FALSE(fs::exists(note));
}

TEST_F(UntrustedDriver, OfAKilledToolIsUnmountedByTheNextRun) {
    for (const auto& mount : {std::string("true"), realDriver() + " \"$@\""}) {
        const auto run = runToolAfter(replace("/usr/bin/ntfs-3g", mount + "; kill -9 $PPID") +
                                      "; \"$@\"; umount --lazy /usr/bin/ntfs-3g");
        expectMounted(run);
        EXPECT_EQ(run.output.find(" /run/brisel-"), std::string::npos) << run.output;
        EXPECT_TRUE(stagingIsGone());
    }
}

TEST_F(UntrustedDriver, KeepsItsFolderWhileAnotherRunSweeps) {
    const fs::path left = "/run/brisel-000000";
    const fs::path foreign = "/run/brisel-111111";
    const auto note = folder() + "/swept";
    fs::create_directory(foreign);
    ASSERT_EQ(chown(foreign.c_str(), 1, 1), 0);
    const auto run =
        runWithDriver("mkdir -m 700 " + left.string() +
                      "; " BRISEL_MOUNT_TOOL " -o rw /dev/null /nowhere; test -e " + left.string() +
                      " || touch " + note + "; exec " + realDriver() + " \"$@\"");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_TRUE(fs::exists(note));
    EXPECT_TRUE(fs::remove(foreign));
    EXPECT_TRUE(stagingIsGone());
}

// Swaps the mount point with a link again and again while in scope.
class Swapper {
  public:
    Swapper(std::string one, std::string other)
        : thread_([this, one = std::move(one), other = std::move(other)] {
              while (!done_)
                  renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE);
          }) {}
    Swapper(const Swapper&) = delete;
    Swapper& operator=(const Swapper&) = delete;
    ~Swapper() {
        done_ = true;
        thread_.join();
    }

  private:
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

TEST_F(UntrustedDriver, NeverMountsElsewhereHoweverOftenTheFolderIsSwapped) {
    constexpr int Rounds = 40;
    const auto link = brisel() + "/link";
    fs::create_directory_symlink(folder(), link);
    const Swapper swapper(mountPoint(), link);
    for (int round = 0; round < Rounds; ++round) {
        const auto run = runTool();
        // A rename that begins before the mount may complete after it.
        const auto at = mounted();
        EXPECT_TRUE(run.status == 0 ? at == mountPoint() || at == link : at.empty())
            << run.status << ' ' << at << ' ' << run.output;
        EXPECT_TRUE(run.status == 0 || run.status == 1) << run.status << run.output;
        shell("umount " + image().device());
    }
}

}  // namespace

}  // namespace brisel::tests
