// Removing the attributes of files and trees, on several file systems.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Stripper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>
#include <thread>

#include "tests/linux/TemporaryFolder.h"
#include "tests/tools/xattr/UserAttributes.h"

namespace brisel::xattr {

namespace {

namespace fs = std::filesystem;
using namespace tests;

/// A folder on the file system of temporary files, or on tmpfs.
class Stripping : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        const auto within = GetParam() == "Memory" ? "/dev/shm" : fs::temp_directory_path();
        if (!fs::exists(within)) GTEST_SKIP() << "there is no " << within;
        folder_ = std::make_unique<TemporaryFolder>(within);
        if (const int error = setAttribute(folder_->path(), "user.probe"); error != 0) {
            GTEST_SKIP() << within << " holds no user attributes: " << strerror(error);
        }
    }

    [[nodiscard]] std::string at(const std::string& name) const {
        return folder_->path() + '/' + name;
    }

    void stripAll() { stripper_.strip(folder_->path(), Depth::EverythingBelow); }

    std::unique_ptr<TemporaryFolder> folder_;
    std::ostringstream complaints_;
    Stripper stripper_{complaints_};
};

TEST_P(Stripping, RemovesEveryUserAttributeOfAFileAndKeepsItsContent) {
    const auto file = makeTaggedFile(at("file"));
    ASSERT_EQ(setAttribute(file, "user.other"), 0);
    stripper_.strip(file, Depth::ItselfOnly);
    EXPECT_EQ(listxattr(file.c_str(), nullptr, 0), 0);
    EXPECT_EQ(complaints_.str(), "");
    EXPECT_EQ(fs::file_size(file), file.size());
}

TEST_P(Stripping, MayLeaveTheContentsOfAFolderAlone) {
    const auto folder = makeTaggedFolder(at("folder"));
    const auto file = makeTaggedFile(at("folder/file"));
    stripper_.strip(folder, Depth::ItselfOnly);
    EXPECT_FALSE(isTagged(folder));
    EXPECT_TRUE(isTagged(file));
}

TEST_P(Stripping, ReachesEverythingBelow) {
    std::vector<std::string> paths;
    for (const char* name : {"a", "a/b", "a/b/c", ".hidden", "a/line\nend", "-cr", "d"})
        paths.push_back(makeTaggedFolder(at(name)));
    for (const char* name : {"file", "a/file", "a/b/.file", "a/line\nend/file", "d/\xff\xfe"})
        paths.push_back(makeTaggedFile(at(name)));
    stripAll();
    for (const auto& path : paths)
        EXPECT_FALSE(isTagged(path)) << path;
    EXPECT_FALSE(hasAttribute(folder_->path(), "user.probe"));
    EXPECT_FALSE(stripper_.hasFailed()) << complaints_.str();
}

TEST_P(Stripping, LeavesAttributesOfTheSystemAlone) {
    const auto file = makeTaggedFile(at("file"));
    // ACL version 2: owner, user 1, group and mask may read; others may not.
    constexpr std::array<unsigned, 11> List{2,   0x40001, ~0U, 0x40002, 1,  0x40004,
                                            ~0U, 0x40010, ~0U, 0x20,    ~0U};
    const auto* name = "system.posix_acl_access";
    if (setxattr(file.c_str(), name, List.data(), sizeof List, 0) != 0) {
        GTEST_SKIP() << "no access list can be set here: " << strerror(errno);
    }
    stripAll();
    EXPECT_FALSE(isTagged(file));
    EXPECT_TRUE(hasAttribute(file, name));
    EXPECT_EQ(complaints_.str(), "");
}

TEST_P(Stripping, DoesNotFollowLinks) {
    const TemporaryFolder elsewhere(folder_->path());
    const auto folder = makeTaggedFolder(elsewhere.path() + "/folder");
    const auto file = makeTaggedFile(folder + "/file");
    const auto tree = makeTaggedFolder(at("tree"));
    fs::create_symlink(folder, tree + "/toFolder");
    fs::create_symlink(file, tree + "/toFile");
    stripper_.strip(tree, Depth::EverythingBelow);
    EXPECT_FALSE(isTagged(tree));
    EXPECT_TRUE(isTagged(folder));
    EXPECT_TRUE(isTagged(file));
    EXPECT_EQ(complaints_.str(), "");
}

TEST_P(Stripping, HasNothingToDoForALinkOrAPipe) {
    const auto file = makeTaggedFile(at("file"));
    fs::create_symlink(file, at("link"));
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
    for (const auto depth : {Depth::ItselfOnly, Depth::EverythingBelow}) {
        stripper_.strip(at("link"), depth);
        stripper_.strip(at("pipe"), depth);
    }
    EXPECT_TRUE(isTagged(file));
    EXPECT_EQ(complaints_.str(), "");
}

/// Sets attributes with long names until one fails or `limit` is reached; returns their number.
int setManyAttributes(const std::string& path, int limit) {
    int count = 0;
    while (count < limit &&
           setAttribute(path, "user." + std::to_string(count) + std::string(200, 'n')) == 0) {
        ++count;
    }
    return count;
}

TEST_P(Stripping, RemovesAsManyAttributesAsFit) {
    const auto file = makeTaggedFile(at("file"));
    constexpr int Fitting = 310;
    ASSERT_GT(setManyAttributes(file, Fitting), 1);
    stripAll();
    EXPECT_EQ(listxattr(file.c_str(), nullptr, 0), 0);
    EXPECT_EQ(complaints_.str(), "");
}

TEST_P(Stripping, ReportsMoreAttributesThanTheSystemCanList) {
    const auto file = makeTaggedFile(at("file"));
    const auto next = makeTaggedFile(at("next"));
    constexpr int TooMany = 400;
    if (setManyAttributes(file, TooMany) < TooMany) GTEST_SKIP() << "a file holds fewer here";
    stripAll();
    EXPECT_EQ(complaints_.str(),
              "xattr: " + file + ": it has more attributes than the system can list\n");
    EXPECT_FALSE(isTagged(next));
}

TEST_P(Stripping, IgnoresAnAttributeThatVanishesMeanwhile) {
    const auto file = makeTaggedFile(at("file"));
    constexpr int Rounds = 50;
    for (int round = 0; round < Rounds; ++round) {
        setManyAttributes(file, 300);
        std::ostringstream otherComplaints;
        Stripper other(otherComplaints);
        std::jthread thread([&] { other.strip(file, Depth::ItselfOnly); });
        stripper_.strip(file, Depth::ItselfOnly);
        thread.join();
        ASSERT_EQ(complaints_.str() + otherComplaints.str(), "");
    }
}

/// Changes the current folder while in scope, for trees deeper than PATH_MAX.
class Visiting {
  public:
    explicit Visiting(const std::string& folder) : before_(fs::current_path()) {
        fs::current_path(folder);
    }
    Visiting(const Visiting&) = delete;
    Visiting& operator=(const Visiting&) = delete;
    ~Visiting() { fs::current_path(before_); }

  private:
    fs::path before_;
};

TEST_P(Stripping, GoesAsDeepAsATreeAndBackWithFewDescriptors) {
    constexpr int Levels = 1000;
    constexpr int MostDescriptors = 40;
    const auto side = [](int level) { return "side" + std::to_string(level); };
    {
        const Visiting there(folder_->path());
        for (int level = 0; level < Levels; ++level) {
            fs::create_directory(side(level));
            makeTaggedFile(side(level) + "/file");
            fs::create_directory("down");
            fs::create_directory(side(-level));
            makeTaggedFile(side(-level) + "/file");
            fs::current_path("down");
        }
    }
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit few{.rlim_cur = MostDescriptors, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &few);
    stripAll();
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(complaints_.str(), "");
    const Visiting there(folder_->path());
    for (int level = 0; level < Levels; ++level) {
        ASSERT_FALSE(isTagged(side(level) + "/file")) << level;
        ASSERT_FALSE(isTagged(side(-level) + "/file")) << level;
        fs::current_path("down");
    }
}

INSTANTIATE_TEST_SUITE_P(On, Stripping, testing::Values("Memory", "TemporaryFiles"),
                         [](const auto& of) { return of.param; });

TEST(AVisibleText, HasItsControlCharactersSpelledOut) {
    EXPECT_EQ(escaped("a b"), "a b");
    EXPECT_EQ(escaped(std::string("\0\t\x7f", 3)), "\\x00\\x09\\x7f");
    EXPECT_EQ(escaped("\xc2\x9b"
                      "31m"),
              "\\xc2\\x9b31m");
    EXPECT_EQ(escaped("M\xc3\xa4rz \xe2\x82\xac \xc2\xa0"), "M\xc3\xa4rz \xe2\x82\xac \xc2\xa0");
    EXPECT_EQ(escaped("cut \xc2"), "cut \xc2");
}

}  // namespace

}  // namespace brisel::xattr
