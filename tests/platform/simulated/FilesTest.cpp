// Simulated folders, and the file manager on top of them.
// SPDX-License-Identifier: MIT
#include "tests/support/Matchers.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {
namespace {

using Call = platform::simulated::FileManager::Call;

class Folders : public testing::Test {
  protected:
    platform::simulated::FileSystem files;
};

TEST_F(Folders, AreMadeWithThoseAboveThem) {
    files.makeFolder("/a/b/c");
    EXPECT_TRUE(files.hasFolder("/a"));
    EXPECT_TRUE(files.hasFolder("/a/b/c/"));
    EXPECT_FALSE(files.hasFolder("/a/b/c/d"));
}

TEST_F(Folders, AreRemovedWithTheirContents) {
    files.makeFile("/h/inner/deep");
    files.makeFolder("/hx");
    files.removeFolder("/h");
    EXPECT_FALSE(files.hasFolder("/h"));
    EXPECT_FALSE(files.hasFolder("/h/inner"));
    EXPECT_TRUE(files.hasFolder("/hx"));
    files.makeFolder("/h/inner");
    EXPECT_EQ(files.entryCount("/h/inner"), 0U);
}

TEST_F(Folders, StayWhenTheyAreEmptied) {
    files.makeFile("/h/inner/deep");
    files.emptyFolder("/h");
    EXPECT_TRUE(files.hasFolder("/h"));
    EXPECT_EQ(files.entryCount("/h"), 0U);
    files.emptyFolder("/none");
    EXPECT_FALSE(files.hasFolder("/none"));
}

TEST_F(Folders, ResolveDotsByTheText) {
    files.makeFolder("/h/.brisel/../x/./y//");
    EXPECT_THAT(files.foldersFrom("/h"), ElementsAre("/h", "/h/x", "/h/x/y"));
    files.makeFolder("/../..");
    EXPECT_TRUE(files.hasFolder("/h/x/../x/y"));
}

class Files : public testing::Test, public SimulatedProgram {
  protected:
    platform::simulated::FileManager& manager = mac.fileManager;
    static platform::Error error(const std::string& text) {
        return {.localizedDescription = text, .localizedFailureReason = {}};
    }
};

TEST_F(Files, RecordEachRequestRegardlessOfItsOutcome) {
    manager.fail(Call::Create, error("x"));
    EXPECT_TRUE(manager.createDirectory("/a"));
    EXPECT_FALSE(manager.createDirectory("/a"));
    EXPECT_FALSE(manager.createDirectory("/a"));
    EXPECT_FALSE(manager.removeItem("/a"));
    EXPECT_TRUE(manager.removeItem("/a"));
    EXPECT_THAT(newLines(),
                ElementsAre("mkdir: /a", "mkdir: /a", "mkdir: /a", "delete: /a", "delete: /a"));
}

TEST_F(Files, AreWritableIfTheirDiskIs) {
    auto disk = ntfsDisk("Data");
    disk.writable = true;
    mac.diskArbitration.attach("disk4", disk);
    EXPECT_TRUE(manager.isWritableFileAtPath("/Volumes/Data"));
    EXPECT_FALSE(manager.isWritableFileAtPath("/Volumes/Data/inner"));
    EXPECT_FALSE(manager.isWritableFileAtPath("/"));
    EXPECT_FALSE(manager.isWritableFileAtPath(std::nullopt));
    mac.diskArbitration.detach("disk4");
    EXPECT_FALSE(manager.isWritableFileAtPath("/Volumes/Data"));
}

}  // namespace
}  // namespace brisel::tests
