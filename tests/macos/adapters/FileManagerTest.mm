// The file manager adapter.
// SPDX-License-Identifier: MIT
#include "platform/macos/FileManager.h"

#include <filesystem>
#include <fstream>

#include "tests/linux/TemporaryFolder.h"
#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

namespace fs = std::filesystem;
using platform::Error;
using platform::FileURL;
using Call = platform::simulated::FileManager::Call;

class FileManagerAdapter : public AdapterTest {
  protected:
    platform::macos::FileManager adapter;
};

TEST_F(FileManagerAdapter, KnowsTheStandardFolders) {
    mac.fileManager.setHomeDirectory("/Users/größe");
    EXPECT_EQ(adapter.homeDirectory(), "/Users/größe");
    EXPECT_EQ(adapter.volumesDirectory(), "/Volumes");
    EXPECT_EQ(adapter.currentDirectoryPath(), "/");
}

TEST_F(FileManagerAdapter, TellsWhatIsWritable) {
    auto disk = ntfsDisk("Data");
    mac.diskArbitration.attach("disk4s1", disk);
    EXPECT_FALSE(adapter.isWritableFileAtPath("/Volumes/Data"));
    disk.writable = true;
    mac.diskArbitration.change("disk4s1", disk);
    EXPECT_TRUE(adapter.isWritableFileAtPath("/Volumes/Data"));
    EXPECT_FALSE(adapter.isWritableFileAtPath(std::nullopt));
}

TEST_F(FileManagerAdapter, CountsWhatIsInAFolder) {
    mac.fileSystem.makeFile("/Users/user/.brisel/.hidden");
    mac.fileSystem.makeFile("/Users/user/.brisel/shown");
    const auto listing = adapter.contentsOfDirectory(FileURL("/Users/user/.brisel"));
    EXPECT_EQ(listing.entryCount, 2U);
    EXPECT_FALSE(listing.error);
}

TEST_F(FileManagerAdapter, DistinguishesAnEmptyFolderFromAMissingOne) {
    mac.fileSystem.makeFolder("/Users/user/empty");
    const auto empty = adapter.contentsOfDirectory(FileURL("/Users/user/empty"));
    EXPECT_EQ(empty.entryCount, 0U);
    EXPECT_FALSE(empty.error);
    const auto none = adapter.contentsOfDirectory(FileURL("/Users/user/none"));
    EXPECT_EQ(none.entryCount, 0U);
    EXPECT_TRUE(none.error);
}

TEST_F(FileManagerAdapter, MakesAFolderWithThoseAboveIt) {
    EXPECT_FALSE(adapter.createDirectory("/Users/user/.brisel/Größe 💾"));
    EXPECT_TRUE(mac.fileSystem.hasFolder("/Users/user/.brisel/Größe 💾"));
    EXPECT_FALSE(adapter.createDirectory("/Users/user/.brisel/Größe 💾"));
}

TEST_F(FileManagerAdapter, ConvertsErrors) {
    const Error error{.localizedDescription = "It cannot be.",
                      .localizedFailureReason = "It must not be."};
    for (const auto call : {Call::Create, Call::List, Call::Delete})
        mac.fileManager.fail(call, error);
    for (const auto& seen : {adapter.createDirectory("/a"), adapter.removeItem("/a"),
                             adapter.contentsOfDirectory(FileURL("/a")).error}) {
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen->localizedDescription, "It cannot be.");
        EXPECT_EQ(seen->localizedFailureReason, "It must not be.");
    }
}

TEST_F(FileManagerAdapter, HasNoReasonIfTheSystemGivesNone) {
    mac.fileManager.fail(Call::Create,
                         {.localizedDescription = "No.", .localizedFailureReason = {}});
    const auto error = adapter.createDirectory("/a");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription, "No.");
    EXPECT_EQ(error->localizedFailureReason, std::nullopt);
}

TEST_F(FileManagerAdapter, TurnsAnExceptionIntoAnError) {
    orders().nextCallRaises = true;
    EXPECT_TRUE(adapter.createDirectory("/a"));
    orders().nextCallRaises = true;
    EXPECT_TRUE(adapter.removeItem("/a"));
    orders().nextCallRaises = true;
    const auto listing = adapter.contentsOfDirectory(FileURL("/a"));
    EXPECT_TRUE(listing.error);
    EXPECT_EQ(listing.entryCount, 0U);
    EXPECT_THAT(logLines(), ElementsAre("The system refused to create a folder: raised as told",
                                        "The system refused to delete a folder: raised as told",
                                        "The system refused to list a folder: raised as told"));
}

TEST_F(FileManagerAdapter, ReportsAnErrorIfADeletedFolderStillExists) {
    mac.fileSystem.makeFolder("/Users/user/.brisel/Data");
    orders().onlySaysItDeletes = true;
    EXPECT_TRUE(adapter.removeItem("/Users/user/.brisel/Data"));
}

class RealFolder : public FileManagerAdapter {
  protected:
    RealFolder() { orders().deletesRealFiles = true; }

    TemporaryFolder folder;
    const std::string path = folder.path() + "/Größe 💾";

    void SetUp() override { fs::create_directory(path); }
};

TEST_F(RealFolder, IsRemovedIfItIsEmpty) {
    EXPECT_FALSE(adapter.removeItem(path));
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::exists(folder.path()));
}

TEST_F(RealFolder, IsKeptWithItsContents) {
    fs::create_directories(path + "/deep/er");
    std::ofstream(path + "/precious") << "x";
    std::ofstream(path + "/deep/er/precious") << "x";
    const auto error = adapter.removeItem(path);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedFailureReason, "Directory not empty");
    EXPECT_TRUE(fs::exists(path + "/precious"));
    EXPECT_TRUE(fs::exists(path + "/deep/er/precious"));
}

TEST_F(RealFolder, IsKeptIfItContainsAnEmptyFolder) {
    fs::create_directory(path + "/empty");
    EXPECT_TRUE(adapter.removeItem(path));
    EXPECT_TRUE(fs::exists(path + "/empty"));
}

TEST_F(RealFolder, IsCheckedInEachCall) {
    EXPECT_FALSE(adapter.removeItem(path));
    fs::create_directory(path);
    fs::create_directory(path + "/empty");
    EXPECT_TRUE(adapter.removeItem(path));
    EXPECT_FALSE(adapter.removeItem(path + "/empty"));
    EXPECT_FALSE(adapter.removeItem(path));
}

}  // namespace
}  // namespace brisel::tests::macos
