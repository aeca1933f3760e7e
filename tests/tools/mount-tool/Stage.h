// Fixture for tests of the mount tool as root: a user, an NTFS volume, and runs of the tool.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/linux/NTFSImage.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::tests {

/// Quotes `text` for the shell.
std::string quoted(const std::string& text);

/// A user account, deleted with the object.
class TestUser {
  public:
    TestUser();
    TestUser(const TestUser&) = delete;
    TestUser& operator=(const TestUser&) = delete;
    ~TestUser();

    [[nodiscard]] const std::string& home() const { return home_; }
    [[nodiscard]] const std::string& uid() const { return uid_; }
    /// Command prefix that runs a command as this user.
    [[nodiscard]] std::string runs() const;

  private:
    TemporaryFolder folder_;
    std::string name_;
    std::string home_;
    std::string uid_;
};

/// Exit status and output of the tool.
struct Outcome {
    int status = 0;
    std::string output;
};

class MountToolStage : public testing::Test {
  public:
    /// Shared by all tests; created in main().
    static const TestUser* user;

  protected:
    static constexpr const char* LeftMounted = "left mounted: ";

    void SetUp() override;
    void TearDown() override;

    /// Runs the tool as if the user had called pkexec. `before` precedes the command: more
    /// environment variables, or a program that starts the tool.
    Outcome runTool(const std::string& before = "") const;
    /// Runs `commands`, then runTool(), in a new mount namespace. Appends to the output each mount
    /// left there, prefixed with LeftMounted.
    Outcome runToolAfter(const std::string& commands) const;
    /// Command for runToolAfter() that bind-mounts a shell script over `program`.
    [[nodiscard]] std::string replace(const std::string& program, const std::string& script) const;

    /// Creates ~/.brisel/LABEL, owned by the user, as the mount point.
    void useLabel(const std::string& label);
    [[nodiscard]] std::string brisel() const { return user->home() + "/.brisel"; }
    [[nodiscard]] const std::string& mountPoint() const { return mountPoint_; }
    [[nodiscard]] const std::string& folder() const { return folder_.path(); }
    NTFSImage& image() { return *image_; }
    /// A findmnt column of the volume; empty if it is not mounted.
    [[nodiscard]] std::string mounted(const std::string& field = "TARGET") const;

    /// Expects exit status 1, one line of output with `sentence`, and no mount.
    void expectRefusal(const Outcome& run, const std::string& sentence) const;
    /// True once the tool's staging folders are gone; waits up to 10 seconds.
    [[nodiscard]] static bool stagingIsGone();
    void expectNothingMounted(const Outcome& run, int status, const std::string& sentence) const;

    std::string device_;
    std::string mountPoint_;

  private:
    TemporaryFolder folder_;
    std::unique_ptr<NTFSImage> image_;
};

}  // namespace brisel::tests
