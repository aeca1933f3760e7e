// The services that a Linux machine answers by itself: folders, scripts, privileged starts.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "platform/linux/Authorization.h"
#include "platform/linux/FileManager.h"
#include "platform/linux/ScriptRunner.h"
#include "platform/linux/SystemLog.h"
#include "privileged/FileHandle.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::linux {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Pair;

class Folders : public testing::Test {
  protected:
    tests::TemporaryFolder folder_;
    std::string mountPoint_ = folder_.path() + "/.brisel/Data";
    FileManager fileManager_;
};

TEST_F(Folders, AreMadeWithThoseAboveThem) {
    EXPECT_FALSE(fileManager_.createDirectory(mountPoint_).has_value());
    EXPECT_TRUE(fs::is_directory(mountPoint_));
    EXPECT_FALSE(fileManager_.createDirectory(mountPoint_).has_value());
}

TEST_F(Folders, ThatHoldSomethingAreNeverRemoved) {
    fs::create_directories(mountPoint_);
    std::ofstream(mountPoint_ + "/precious") << "x";
    const auto error = fileManager_.removeItem(mountPoint_);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->localizedDescription, "Directory not empty");
    EXPECT_TRUE(fs::exists(mountPoint_ + "/precious"));
}

TEST_F(Folders, AboveTheMountFolderSurviveAHostileLabel) {
    fs::create_directories(folder_.path() + "/.brisel");
    fs::create_directories(folder_.path() + "/Documents/Work");
    EXPECT_TRUE(fileManager_.removeItem(folder_.path() + "/.brisel/..").has_value());
    EXPECT_TRUE(fileManager_.removeItem(folder_.path() + "/.brisel/../Documents").has_value());
    EXPECT_TRUE(fs::exists(folder_.path() + "/Documents/Work"));
}

TEST_F(Folders, ThatAreEmptyAreRemoved) {
    fs::create_directories(mountPoint_);
    EXPECT_FALSE(fileManager_.removeItem(mountPoint_).has_value());
    EXPECT_FALSE(fs::exists(mountPoint_));
}

TEST_F(Folders, ListTheirEntriesHiddenOnesIncluded) {
    fs::create_directories(mountPoint_ + "/.hidden");
    std::ofstream(mountPoint_ + "/seen") << "x";
    const auto listing = fileManager_.contentsOfDirectory(FileURL(mountPoint_));
    EXPECT_EQ(listing.entryCount, 2U);
    EXPECT_FALSE(listing.error.has_value());
}

TEST_F(Folders, ThatAreMissingGiveAnError) {
    const auto listing = fileManager_.contentsOfDirectory(FileURL(mountPoint_));
    ASSERT_TRUE(listing.error.has_value());
    EXPECT_EQ(listing.error->localizedDescription, "No such file or directory");
    EXPECT_EQ(listing.error->localizedFailureReason, std::nullopt);
}

TEST_F(Folders, AreWritableOnlyWhereTheyAre) {
    EXPECT_TRUE(fileManager_.isWritableFileAtPath(folder_.path()));
    EXPECT_FALSE(fileManager_.isWritableFileAtPath(mountPoint_));
    EXPECT_FALSE(fileManager_.isWritableFileAtPath(std::nullopt));
}

TEST(Script, IsTheCommandBetweenTheQuotes) {
    EXPECT_EQ(shellCommandOf(R"(do shell script "xattr -cr /a/My Data")"), "xattr -cr /a/My Data");
    EXPECT_EQ(shellCommandOf(R"(do shell script "a \"b\" \\c")"), R"(a "b" \c)");
}

TEST(Script, ThatIsAnythingElseIsASyntaxError) {
    EXPECT_EQ(shellCommandOf(R"(do shell script "a" & "b")"), std::nullopt);
    EXPECT_EQ(shellCommandOf(R"(do shell script "a)"), std::nullopt);
    EXPECT_EQ(shellCommandOf(R"(do shell script "a\)"), std::nullopt);
    EXPECT_EQ(shellCommandOf("beep"), std::nullopt);
    EXPECT_TRUE(ScriptRunner().execute("beep").error.has_value());
}

TEST(Script, ThatSucceedsHasNoError) {
    EXPECT_FALSE(ScriptRunner().execute(R"(do shell script "exit 0")").error.has_value());
}

TEST(Script, ThatFailsTellsWhatItPrintedAndItsStatus) {
    const auto result =
        ScriptRunner().execute(R"(do shell script "echo no such thing >&2; exit 3")");
    ASSERT_TRUE(result.error.has_value());
    EXPECT_THAT(*result.error, ElementsAre(Pair("NSAppleScriptErrorMessage", "no such thing"),
                                           Pair("NSAppleScriptErrorNumber", "3")));
}

TEST(PrivilegedStart, HandsBackTheOutputAndTheChild) {
    if (geteuid() != 0) GTEST_SKIP() << "Without root the start goes through polkit.";
    SystemLog log([](const std::string&) {});
    Authorization authorization(log);
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

}  // namespace brisel::platform::linux
