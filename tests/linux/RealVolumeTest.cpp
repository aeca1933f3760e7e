// The program's main job on real NTFS volumes, through brisel-console.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tests/linux/ConsoleSession.h"
#include "tests/linux/NTFSImage.h"

namespace brisel::tests {

namespace {

namespace fs = std::filesystem;

class RealVolume : public testing::Test {
  protected:
    void SetUp() override {
        folder_ = shell("mktemp -d");
        image_ = std::make_unique<NTFSImage>(folder_, label_);
    }

    void TearDown() override {
        console_.reset();
        image_.reset();
        fs::remove_all(folder_);
    }

    void startConsole() {
        console_ = std::make_unique<ConsoleSession>(BRISEL_CONSOLE, folder_ + "/home");
        ASSERT_TRUE(console_->waitFor("2 = I am worried, please take me out.")) << transcript();
        console_->type("1");
        ASSERT_TRUE(console_->waitFor("User accepted the potential risk.")) << transcript();
    }

    void waitForPrompt() {
        ASSERT_TRUE(console_->waitFor(label_ + " detected. Re-mount it read-write?"))
            << transcript();
    }

    std::string acceptPrompt() {
        waitForPrompt();
        console_->type("y");
        return folderShown();
    }

    /// The folder that the program opens; expects this volume to be mounted there.
    std::string folderShown() {
        EXPECT_TRUE(console_->waitFor("The volume is at ")) << transcript();
        const auto folder = console_->restOfLine();
        EXPECT_EQ(shell("findmnt --noheadings --output SOURCE '" + folder + "'"), image_->device());
        return folder;
    }

    [[nodiscard]] const std::string& transcript() const { return console_->output(); }

    /// Unique: the program also sees other attached volumes.
    const std::string label_ = "Brisel" + std::to_string(getpid());
    std::string folder_;
    std::unique_ptr<NTFSImage> image_;
    std::unique_ptr<ConsoleSession> console_;
};

TEST_F(RealVolume, KeptBusyByAnOpenFileStaysReadOnlyAndIsReported) {
    image_->attach();
    const auto mountPoint = image_->mountReadOnly();
    startConsole();
    waitForPrompt();
    {
        const std::ifstream open(mountPoint + "/$MFT");
        const fs::directory_iterator busy(mountPoint);
        console_->type("y");
        ASSERT_TRUE(console_->waitFor("kDAReturnBusy for volume " + image_->name()))
            << transcript();
    }
    ASSERT_TRUE(console_->waitFor("! Volume \"" + label_ + "\" not unmountable")) << transcript();
    console_->type("1");
    ASSERT_TRUE(console_->waitFor("[Brisel: a volume is read-only]")) << transcript();
    EXPECT_TRUE(image_->isMounted());
}

TEST_F(RealVolume, ThatIsFullIsStillRemounted) {
    image_->attach();
    const auto aside = folder_ + "/aside";
    fs::create_directory(aside);
    ASSERT_TRUE(succeeds("ntfs-3g " + image_->device() + " " + aside + " && (cd " + aside + " && " +
                         Filling + ") && umount " + aside));
    startConsole();
    const auto folder = acceptPrompt();
    EXPECT_FALSE(succeeds("touch '" + folder + "/one-more'"));
    ASSERT_TRUE(succeeds("rm '" + folder + "'/filling*"));
    EXPECT_TRUE(succeeds("touch '" + folder + "/one-more'"));
}

TEST_F(RealVolume, MountedReadWriteByAnotherProgramIsShownAsWritable) {
    startConsole();
    image_->attach();
    waitForPrompt();
    ASSERT_TRUE(console_->waitFor("[Brisel: a volume is read-only]")) << transcript();
    shell("udisksctl mount --no-user-interaction -b " + image_->device());
    EXPECT_TRUE(console_->waitFor("[Brisel: a volume is writable]")) << transcript();
}

TEST_F(RealVolume, UnmountedByAnotherProgramLeavesTheMenuAndIsNotMountedAgain) {
    startConsole();
    image_->attach();
    acceptPrompt();
    ASSERT_TRUE(console_->waitFor("[Brisel: a volume is writable]")) << transcript();
    ASSERT_TRUE(console_->choose("mount automatically"));
    ASSERT_TRUE(console_->waitFor("List count: 1")) << transcript();
    shell("udisksctl unmount --no-user-interaction -b " + image_->device());
    ASSERT_TRUE(console_->waitFor("log: disk " + image_->name() + " disappeared")) << transcript();
    ASSERT_TRUE(console_->waitFor("[Brisel: no NTFS volume]")) << transcript();
    EXPECT_EQ(console_->quit(), 0);
    const auto shownOnce = transcript().find("The volume is at ");
    EXPECT_EQ(transcript().rfind("The volume is at "), shownOnce) << transcript();
    EXPECT_FALSE(image_->isMounted());
}

TEST_F(RealVolume, WithAHostileLabelIsStillRemounted) {
    const std::array<std::string, 3> labels{"$(reboot); '\"", "..", "\x1b[2J%@"};
    startConsole();
    for (const auto& label : labels) {
        image_ = std::make_unique<NTFSImage>(folder_, label);
        image_->attach();
        ASSERT_TRUE(console_->waitFor("? ")) << transcript();
        console_->type("y");
        EXPECT_TRUE(console_->waitFor("[Brisel: a volume is writable]")) << transcript();
        image_->pull();
        ASSERT_TRUE(console_->waitFor("[Brisel: no NTFS volume]")) << transcript();
    }
}

}  // namespace

}  // namespace brisel::tests

// Exits with 77, which ctest takes for a skip, and prints the reason if no volume can be mounted.
int main(int argumentCount, char** arguments) {
    constexpr int Skipped = 77;
    using brisel::tests::shell;
    testing::InitGoogleTest(&argumentCount, arguments);
    const std::string scripts = BRISEL_SCRIPTS;
    auto reason = shell(scripts + "/real-volumes-possible");
    const bool lists = testing::GTEST_FLAG(list_tests);
    if (reason.empty() && !lists && !brisel::tests::succeeds(scripts + "/disk-services start")) {
        reason = "the disk services do not start";
    }
    if (!reason.empty()) {
        std::cout << "Skipped, no real volume can be used here: " << reason << '\n';
        return Skipped;
    }
    const int result = RUN_ALL_TESTS();
    shell(scripts + "/disk-services stop");
    return result;
}
