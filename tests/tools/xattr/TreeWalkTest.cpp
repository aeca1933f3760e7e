// Walking a tree that changes meanwhile.
// SPDX-License-Identifier: MIT
#include "tools/xattr/TreeWalk.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/linux/TemporaryFolder.h"
#include "tests/tools/xattr/UserAttributes.h"
#include "tools/xattr/Attributes.h"

namespace brisel::xattr {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

class AWalk : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(tree_ + "/above/folder/below");
        std::ofstream(tree_ + "/above/folder/below/file") << "content";
        fs::create_directories(elsewhere_ + "/below");
        std::ofstream(elsewhere_ + "/file") << "not to be touched";
    }

    /// Walks the tree and strips it; calls `meddle` on the visit of `where`, a path below the tree.
    void walk(const std::string& where, const std::function<void()>& meddle) {
        const auto visit = [&](const Entry& entry, const std::string& path) {
            visited_.push_back(path.substr(tree_.size()));
            if (visited_.back() == where) meddle();
            EXPECT_EQ(removeUserAttributes(entry), std::nullopt) << path;
        };
        const auto complain = [&](const std::string& path, const std::string& reason) {
            complaints_.emplace_back(path.substr(tree_.size()), reason);
        };
        TreeWalk(visit, complain).run(openAt(AT_FDCWD, tree_, O_PATH), tree_);
    }

    tests::TemporaryFolder place_;
    const std::string tree_ = place_.path() + "/tree";
    const std::string elsewhere_ = place_.path() + "/elsewhere";
    std::vector<std::string> visited_;
    std::vector<std::pair<std::string, std::string>> complaints_;
};

TEST_F(AWalk, VisitsATreeFromItsTopAndEndsInTheFolderWhereItBegan) {
    const auto before = fs::current_path();
    walk("", [] {});
    EXPECT_THAT(visited_, ElementsAre("", "/above", "/above/folder", "/above/folder/below",
                                      "/above/folder/below/file"));
    EXPECT_EQ(fs::current_path(), before);
}

TEST_F(AWalk, DoesNotFollowALinkThatReplacesAFolder) {
    walk("/above/folder", [&] {
        fs::rename(tree_ + "/above/folder", place_.path() + "/aside");
        fs::create_directory_symlink(elsewhere_, tree_ + "/above/folder");
    });
    EXPECT_THAT(visited_, ElementsAre("", "/above", "/above/folder"));
    EXPECT_THAT(complaints_, IsEmpty());
}

TEST_F(AWalk, StripsTheFileOfAFolderThatIsMovedAndNotItsReplacement) {
    const auto file = tests::makeTaggedFile(tree_ + "/above/folder/below/file");
    walk("/above/folder/below/file", [&] {
        fs::rename(tree_ + "/above/folder", elsewhere_ + "/folder");
        fs::create_directories(tree_ + "/above/folder/below");
        tests::makeTaggedFile(file);
    });
    EXPECT_FALSE(tests::isTagged(elsewhere_ + "/folder/below/file"));
    EXPECT_TRUE(tests::isTagged(file));
}

TEST_F(AWalk, DoesNotFollowALinkThatReplacesAFile) {
    const auto file = tests::makeTaggedFile(tree_ + "/above/folder/below/file");
    const auto other = tests::makeTaggedFile(elsewhere_ + "/file");
    walk("/above/folder/below/file", [&] {
        fs::remove(file);
        fs::create_symlink(other, file);
    });
    EXPECT_TRUE(tests::isTagged(other));
}

TEST_F(AWalk, LeavesFilesOfOtherFileSystemsAlone) {
    const auto file = tests::makeTaggedFile(tree_ + "/file");
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(removeUserAttributes(Entry(file, status.st_dev + 1)), std::nullopt);
    EXPECT_TRUE(tests::isTagged(file));
    EXPECT_EQ(removeUserAttributes(Entry(file, status.st_dev)), std::nullopt);
    EXPECT_FALSE(tests::isTagged(file));
}

TEST_F(AWalk, LeavesOutAFolderThatIsGone) {
    walk("/above/folder", [&] { fs::remove_all(tree_ + "/above/folder"); });
    EXPECT_THAT(visited_, ElementsAre("", "/above", "/above/folder"));
    EXPECT_THAT(complaints_, IsEmpty());
}

TEST_F(AWalk, LeavesOutAFileThatIsGone) {
    const auto file = [this](const char* name) { return tree_ + "/above/folder/below/" + name; };
    std::ofstream(file("other")) << "content";
    // The order of visits is not defined; one of the two walks removes a file before its visit.
    walk("/above/folder/below/file", [&] { fs::remove(file("other")); });
    fs::remove(file("other"));
    std::ofstream(file("other")) << "content";
    walk("/above/folder/below/other", [&] { fs::remove(file("file")); });
    EXPECT_THAT(complaints_, IsEmpty());
}

TEST_F(AWalk, EndsWithAComplaintWhenAFolderIsMovedAwayWithIt) {
    fs::create_directory(tree_ + "/above/folder/below/deep");
    std::ofstream(tree_ + "/above/folder/below/deep/end") << "content";
    walk("/above/folder/below/deep/end",
         [&] { fs::rename(tree_ + "/above/folder", elsewhere_ + "/folder"); });
    EXPECT_THAT(visited_,
                UnorderedElementsAre("", "/above", "/above/folder", "/above/folder/below",
                                     "/above/folder/below/file", "/above/folder/below/deep",
                                     "/above/folder/below/deep/end"));
    EXPECT_THAT(complaints_,
                ElementsAre(Pair("/above/folder", testing::HasSubstr("moved during the walk"))));
}

}  // namespace

}  // namespace brisel::xattr
