// What a test of the mount tool as root needs: a user with a home, an NTFS volume, the tool's runs.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/linux/NTFSImage.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::tests {

/// Words for a shell that stands for exactly this text.
std::string quoted(const std::string& text);

/// A user of this machine, for as long as the object lives.
class TestUser {
  public:
    TestUser();
    TestUser(const TestUser&) = delete;
    TestUser& operator=(const TestUser&) = delete;
    ~TestUser();

    [[nodiscard]] const std::string& home() const { return home_; }
    [[nodiscard]] const std::string& uid() const { return uid_; }
    /// Prefix of a command that this user is to run.
    [[nodiscard]] std::string runs() const;

  private:
    TemporaryFolder folder_;
    std::string name_;
    std::string home_;
    std::string uid_;
};

/// How a run of the tool ended.
struct Outcome {
    int status = 0;
    std::string output;
};

class MountToolStage : public testing::Test {
  public:
    /// The user of all tests; made by the program's `main`.
    static const TestUser* user;

  protected:
    static constexpr const char* LeftMounted = "left mounted: ";

    void SetUp() override;
    void TearDown() override;

    /// Runs the tool as if the user had asked by pkexec. `before` goes before the command: more of
    /// the environment, or a program that starts the tool.
    Outcome runTool(const std::string& before = "") const;
    /// The same in mounts of its own, which shell commands change first. What is still mounted
    /// there when the tool has ended follows its output, `LeftMounted` before each line.
    Outcome runToolAfter(const std::string& commands) const;
    /// Bind-mounts a shell script over a program; a command for `runToolAfter`.
    [[nodiscard]] std::string replace(const std::string& program, const std::string& script) const;

    /// Makes a folder in ~/.brisel the mount point, the user's own.
    void useLabel(const std::string& label);
    [[nodiscard]] std::string brisel() const { return user->home() + "/.brisel"; }
    [[nodiscard]] const std::string& mountPoint() const { return mountPoint_; }
    [[nodiscard]] const std::string& folder() const { return folder_.path(); }
    NTFSImage& image() { return *image_; }
    /// The field of the machine's table of mounts for the volume; empty when it is not mounted.
    [[nodiscard]] std::string mounted(const std::string& field = "TARGET") const;

    /// Refused for the request's own sake: by this sentence, and nothing is left of it.
    void expectRefusal(const Outcome& run, const std::string& sentence) const;
    /// Whether no folder that the tool mounts on first is left.
    [[nodiscard]] static bool stagingIsGone();
    void expectNothingMounted(const Outcome& run, int status, const std::string& sentence) const;

    std::string device_;
    std::string mountPoint_;

  private:
    TemporaryFolder folder_;
    std::unique_ptr<NTFSImage> image_;
};

}  // namespace brisel::tests
