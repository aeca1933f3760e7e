// The program's main job on real NTFS volumes, through brisel-console.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/linux/ConsoleSession.h"
#include "tests/linux/NTFSImage.h"

namespace brisel::tests {

namespace {

namespace fs = std::filesystem;

const std::string Scripts = BRISEL_SCRIPTS;

class RealVolume : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        reasonAgainst = shell(Scripts + "/real-volumes-possible");
        if (reasonAgainst.empty()) reasonAgainst = shell(Scripts + "/disk-services start");
    }
    static void TearDownTestSuite() { shell(Scripts + "/disk-services stop"); }

    void SetUp() override {
        if (!reasonAgainst.empty()) {
            GTEST_SKIP() << "No real volume can be tested here: " << reasonAgainst;
        }
        folder_ = shell("mktemp -d");
        image_ = std::make_unique<NTFSImage>(folder_, "Data");
    }

    void TearDown() override {
        console_.reset();
        image_.reset();
        if (!folder_.empty()) fs::remove_all(folder_);
    }

    void startConsole() {
        console_ = std::make_unique<ConsoleSession>(BRISEL_CONSOLE, folder_ + "/home");
        ASSERT_TRUE(console_->waitFor("2 = I am worried, please take me out.")) << transcript();
        console_->type("1");
        ASSERT_TRUE(console_->waitFor("User accepted the potential risk.")) << transcript();
    }

    /// From a volume that is attached and listed to one that is mounted read-write.
    std::string acceptPrompt() {
        EXPECT_TRUE(console_->waitFor("Data detected. Re-mount it read-write?")) << transcript();
        console_->type("y");
        return folderShown();
    }

    std::string folderShown() {
        EXPECT_TRUE(console_->waitFor("The volume is at ")) << transcript();
        return console_->restOfLine();
    }

    [[nodiscard]] const std::string& transcript() const { return console_->output(); }

    static std::string reasonAgainst;

    std::string folder_;
    std::unique_ptr<NTFSImage> image_;
    std::unique_ptr<ConsoleSession> console_;
};

std::string RealVolume::reasonAgainst;

TEST_F(RealVolume, MountedReadOnlyIsRemountedWrittenToAndUnmounted) {
    image_->attach();
    const auto before = image_->mountReadOnly();
    ASSERT_FALSE(succeeds("touch '" + before + "/refused'"));
    startConsole();

    const auto folder = acceptPrompt();
    std::ofstream(folder + "/greeting.txt") << "written through Brisel";
    ASSERT_TRUE(console_->waitFor("[Brisel: a volume is writable]")) << transcript();

    ASSERT_TRUE(console_->choose("unmount"));
    ASSERT_TRUE(console_->waitFor("No NTFS Volumes to re-mount")) << transcript();
    EXPECT_FALSE(image_->isMounted());
    EXPECT_EQ(console_->quit(), 0);
    image_->detach();
    EXPECT_EQ(image_->contentOf("greeting.txt"), "written through Brisel");
}

TEST_F(RealVolume, OnTheAutomountListIsRemountedWithoutAQuestion) {
    startConsole();
    image_->attach();
    acceptPrompt();
    ASSERT_TRUE(console_->waitFor("[Brisel: a volume is writable]")) << transcript();
    ASSERT_TRUE(console_->choose("mount automatically"));
    ASSERT_TRUE(console_->waitFor("List count: 1")) << transcript();
    image_->pull();
    ASSERT_TRUE(console_->waitFor("No NTFS Volumes to re-mount")) << transcript();

    image_->attach();
    image_->mountReadOnly();
    const auto folder = folderShown();
    EXPECT_TRUE(succeeds("touch '" + folder + "/allowed'"));
    const auto firstPrompt = transcript().find("Data detected");
    EXPECT_EQ(transcript().find("Data detected", firstPrompt + 1), std::string::npos)
        << transcript();
}

TEST_F(RealVolume, KeptBusyByAnOpenFileStaysReadOnlyAndIsReported) {
    image_->attach();
    const auto mountPoint = image_->mountReadOnly();
    startConsole();
    ASSERT_TRUE(console_->waitFor("Data detected")) << transcript();
    {
        const std::ifstream open(mountPoint + "/$MFT");
        const fs::directory_iterator busy(mountPoint);
        console_->type("y");
        ASSERT_TRUE(console_->waitFor("kDAReturnBusy for volume " + image_->name()))
            << transcript();
    }
    ASSERT_TRUE(console_->waitFor("! Volume \"Data\" not unmountable")) << transcript();
    console_->type("1");
    ASSERT_TRUE(console_->waitFor("[Brisel: a volume is read-only]")) << transcript();
    EXPECT_TRUE(image_->isMounted());
}

TEST_F(RealVolume, PulledWhileMountedLeavesTheMenuAndComesBack) {
    image_->attach();
    startConsole();
    acceptPrompt();
    ASSERT_TRUE(console_->waitFor("[Brisel: a volume is writable]")) << transcript();
    const auto name = image_->name();

    image_->pull();
    ASSERT_TRUE(console_->waitFor("log: disk " + name + " disappeared")) << transcript();
    ASSERT_TRUE(console_->waitFor("[Brisel: no NTFS volume]")) << transcript();
    image_->attach();
    EXPECT_TRUE(console_->waitFor("Data detected")) << transcript();
    EXPECT_EQ(console_->quit(), 0);
}

TEST_F(RealVolume, OutlivesTheDiskService) {
    image_->attach();
    startConsole();
    ASSERT_TRUE(console_->waitFor("Data detected")) << transcript();

    shell("pkill -x udisksd");
    ASSERT_TRUE(console_->waitFor("The disk service UDisks2 has gone; waiting for it."))
        << transcript();
    ASSERT_TRUE(succeeds(Scripts + "/disk-services start"));
    ASSERT_TRUE(console_->waitFor("The disk service UDisks2 is back.")) << transcript();
    EXPECT_FALSE(console_->printed("disappeared")) << transcript();
    console_->type("y");
    EXPECT_TRUE(succeeds("touch '" + folderShown() + "/allowed'"));
}

TEST_F(RealVolume, HibernatedIsNotLeftMountedReadOnlyAsIfItWereWritable) {
    image_->attach();
    const auto folder = shell("udisksctl mount --no-user-interaction -b " + image_->device() +
                              " >/dev/null; findmnt -no TARGET --source " + image_->device());
    shell("printf hibr > '" + folder + "/hiberfil.sys'; truncate -s 8192 '" + folder +
          "/hiberfil.sys'; udisksctl unmount --no-user-interaction -b " + image_->device());
    startConsole();
    ASSERT_TRUE(console_->waitFor("Data detected")) << transcript();
    console_->type("y");
    ASSERT_TRUE(console_->waitFor("kDAReturnNotWritable for volume")) << transcript();
    ASSERT_TRUE(console_->waitFor("! Volume \"Data\" not re-mountable")) << transcript();
    EXPECT_FALSE(image_->isMounted());
}

}  // namespace

}  // namespace brisel::tests
