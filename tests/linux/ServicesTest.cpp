// Linux services without a desktop: folders and privileged starts.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "platform/headless/Authorization.h"
#include "platform/headless/FileManager.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/SystemLog.h"
#include "privileged/FileHandle.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::headless {

namespace {

namespace fs = std::filesystem;

class Folders : public testing::Test {
  protected:
    tests::TemporaryFolder folder_;
    std::string mountPoint_ = folder_.path() + "/.brisel/Data";
    FileManager fileManager_{folder_.path()};
};

TEST_F(Folders, AreMadeWithThoseAboveThem) {
    EXPECT_FALSE(fileManager_.createDirectory(mountPoint_).has_value());
    EXPECT_TRUE(fs::is_directory(mountPoint_));
    EXPECT_FALSE(fileManager_.createDirectory(mountPoint_).has_value());
}

TEST_F(Folders, OutsideTheMountFolderAreNeverMade) {
    for (const char* const label :
         {"", ".", "..", "../Documents", "../../tmp/x", "a/b", "a/", "/"}) {
        EXPECT_TRUE(fileManager_.createDirectory(folder_.path() + "/.brisel/" + label)) << label;
    }
    EXPECT_TRUE(fileManager_.createDirectory(folder_.path() + "/Documents").has_value());
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(Folders, MayHaveAnyOtherName) {
    for (const char* const label : {"...", ".hidden", "a b", "$(reboot)", "-r"})
        EXPECT_FALSE(fileManager_.createDirectory(folder_.path() + "/.brisel/" + label)) << label;
}

TEST_F(Folders, LeftByAFailedMountAreRemoved) {
    const auto folder = mountFolderIn(folder_.path());
    fs::create_directories(mountPoint_);
    fs::create_directories(folder + "/Full/inner");
    std::ofstream(folder + "/file") << "x";
    fs::create_directory(folder_.path() + "/elsewhere");
    fs::create_directory_symlink(folder_.path() + "/elsewhere", folder + "/link");
    removeEmptyMountPoints(folder);
    EXPECT_FALSE(fs::exists(mountPoint_));
    EXPECT_TRUE(fs::exists(folder + "/Full/inner"));
    EXPECT_TRUE(fs::exists(folder + "/file"));
    EXPECT_TRUE(fs::exists(folder + "/link"));
    EXPECT_TRUE(fs::exists(folder_.path() + "/elsewhere"));
}

TEST_F(Folders, BehindALinkedMountFolderAreLeftAlone) {
    fs::create_directories(folder_.path() + "/Documents/Empty");
    fs::create_directory_symlink(folder_.path() + "/Documents", mountFolderIn(folder_.path()));
    removeEmptyMountPoints(mountFolderIn(folder_.path()));
    EXPECT_TRUE(fs::exists(folder_.path() + "/Documents/Empty"));
    removeEmptyMountPoints(folder_.path() + "/none");
}

TEST_F(Folders, AreRemovedOnlyWhileTheyAreEmpty) {
    fs::create_directories(mountPoint_);
    std::ofstream(mountPoint_ + "/precious") << "x";
    const auto error = fileManager_.removeItem(mountPoint_);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->localizedDescription, "Directory not empty");
    ASSERT_TRUE(fs::remove(mountPoint_ + "/precious"));
    EXPECT_FALSE(fileManager_.removeItem(mountPoint_).has_value());
    EXPECT_FALSE(fs::exists(mountPoint_));
}

TEST_F(Folders, AboveTheMountFolderSurviveAHostileLabel) {
    fs::create_directories(folder_.path() + "/.brisel");
    fs::create_directories(folder_.path() + "/Documents/Work");
    EXPECT_TRUE(fileManager_.removeItem(folder_.path() + "/.brisel/..").has_value());
    EXPECT_TRUE(fileManager_.removeItem(folder_.path() + "/.brisel/../Documents").has_value());
    EXPECT_TRUE(fs::exists(folder_.path() + "/Documents/Work"));
}

TEST_F(Folders, ListTheirEntriesHiddenOnesIncluded) {
    const auto missing = fileManager_.contentsOfDirectory(FileURL(mountPoint_));
    ASSERT_TRUE(missing.error.has_value());
    EXPECT_EQ(missing.error->localizedDescription, "No such file or directory");
    EXPECT_EQ(missing.error->localizedFailureReason, std::nullopt);
    fs::create_directories(mountPoint_ + "/.hidden");
    std::ofstream(mountPoint_ + "/seen") << "x";
    const auto listing = fileManager_.contentsOfDirectory(FileURL(mountPoint_));
    EXPECT_EQ(listing.entryCount, 2U);
    EXPECT_FALSE(listing.error.has_value());
}

TEST_F(Folders, AreWritableOnlyWhereTheyAre) {
    EXPECT_TRUE(fileManager_.isWritableFileAtPath(folder_.path()));
    EXPECT_FALSE(fileManager_.isWritableFileAtPath(mountPoint_));
    EXPECT_FALSE(fileManager_.isWritableFileAtPath(std::nullopt));
}

TEST(PrivilegedStart, ReturnsTheOutputAndTheChild) {
    if (geteuid() != 0) GTEST_SKIP() << "Without root the start goes through pkexec.";
    Authorization authorization;
    ASSERT_TRUE(authorization.offersExecuteWithPrivileges());
    EXPECT_EQ(authorization.copyRights(nullptr, {}, 0), errAuthorizationSuccess);
    std::string option = "-c";
    std::string script = "echo $0 $1; exit 7";
    std::string first = "one two";
    std::string second = "three";
    const std::array<char*, 5> arguments{option.data(), script.data(), first.data(), second.data(),
                                         nullptr};
    const auto started =
        authorization.executeWithPrivileges(nullptr, "/bin/sh", 0, arguments.data());
    ASSERT_EQ(started.status, errAuthorizationSuccess);
    const int descriptor = fileno(started.communicationsPipe);
    const pid_t child = fcntl(descriptor, F_GETOWN, 0);
    EXPECT_EQ(FileHandle(dup(descriptor)).readDataToEndOfFile(), "one two three\n");
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 7);
    std::fclose(started.communicationsPipe);
}

}  // namespace

}  // namespace brisel::platform::headless
