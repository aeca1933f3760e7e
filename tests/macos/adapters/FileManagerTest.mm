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
using platform::FileURL;

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
