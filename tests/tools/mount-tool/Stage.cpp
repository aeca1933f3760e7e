// Fixture for tests of the mount tool as root.
// SPDX-License-Identifier: MIT
#include "tests/tools/mount-tool/Stage.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace brisel::tests {

namespace fs = std::filesystem;

const TestUser* MountToolStage::user = nullptr;

std::string quoted(const std::string& text) {
    std::string word = "'";
    for (const char character : text)
        word += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return word + "'";
}

TestUser::TestUser() : name_("brisel-mt" + std::to_string(getpid())) {
    home_ = folder_.path() + "/home";
    fs::permissions(folder_.path(), fs::perms::others_exec, fs::perm_options::add);
    fs::create_directory(home_);
    shell("useradd --no-create-home --home-dir " + home_ + " " + name_);
    uid_ = shell("id -u " + name_);
    shell("chown " + name_ + ": " + home_);
}

TestUser::~TestUser() {
    shell("userdel " + name_);
}

std::string TestUser::runs() const {
    return "setpriv --reuid " + uid_ + " --regid $(id -g " + uid_ + ") --clear-groups ";
}

void MountToolStage::SetUp() {
    fs::permissions(folder(), fs::perms::others_exec, fs::perm_options::add);
    image_ = std::make_unique<NTFSImage>(folder(), "Data");
    image_->attach();
    device_ = image_->device();
    useLabel("Data");
}

void MountToolStage::TearDown() {
    shell("umount " + image_->device());
    image_.reset();
    fs::remove_all(brisel());
}

Outcome MountToolStage::runTool(const std::string& before) const {
    const auto command = "env -i PATH=\"$PATH\" PKEXEC_UID=" + user->uid() +
                         " timeout --signal KILL 60 env " + before +
                         " " BRISEL_MOUNT_TOOL " -o rw,auto,nobrowse,noowners,noatime " +
                         quoted(device_) + " " + quoted(mountPoint_);
    const auto text = "\n" + shell("( " + command + " ); echo \"\n$?\"");
    const auto statusLine = text.rfind('\n');
    auto output = text.substr(1, std::max<std::size_t>(statusLine, 2) - 2);
    while (output.ends_with('\n'))
        output.pop_back();
    return {std::stoi(text.substr(statusLine + 1)), output};
}

Outcome MountToolStage::runToolAfter(const std::string& commands) const {
    // These mounts are visible only in this namespace.
    const auto leftovers =
        "grep -e ' " + image_->device() + " ' -e /run/brisel- /proc/self/mountinfo";
    const auto script = commands + "; \"$@\"; status=$?; " + leftovers + " | sed 's/^/" +
                        LeftMounted + "/'; exit $status";
    return runTool("unshare --mount sh -c " + quoted(script) + " sh");
}

std::string MountToolStage::replace(const std::string& program, const std::string& script) const {
    const auto path = folder() + "/" + fs::path(program).filename().string() + "-replacement";
    std::ofstream(path) << "#!/bin/sh\n" << script << '\n';
    fs::permissions(path, fs::perms(0755));
    return "mount --bind " + path + " " + program;
}

bool MountToolStage::stagingIsGone() {
    // Another mount may be in progress.
    return succeeds(
        "for i in $(seq 100); do ls -d /run/brisel-?????? || exit 0; sleep 0.1; done; exit 1");
}

void MountToolStage::useLabel(const std::string& label) {
    mountPoint_ = brisel() + "/" + label;
    fs::create_directories(mountPoint_);
    shell("chown -R " + user->uid() + " " + brisel());
}

std::string MountToolStage::mounted(const std::string& field) const {
    return shell("findmnt --noheadings --output " + field + " --source " + image_->device());
}

void MountToolStage::expectNothingMounted(const Outcome& run, int status,
                                          const std::string& sentence) const {
    EXPECT_EQ(run.status, status) << run.output;
    EXPECT_NE(run.output.find(sentence), std::string::npos) << run.output;
    EXPECT_EQ(run.output.find(LeftMounted), std::string::npos) << run.output;
    EXPECT_EQ(mounted(), "");
    EXPECT_TRUE(stagingIsGone());
    // The driver's command line ends in its staging folder.
    const auto driver = "^[^ ]*(ntfs-3g|real-driver) .*" + image_->device() + " /run/brisel-";
    EXPECT_TRUE(succeeds("for i in $(seq 100); do pgrep --full '" + driver +
                         "' || exit 0; sleep 0.1; done; exit 1"))
        << "a driver still runs";
}

void MountToolStage::expectRefusal(const Outcome& run, const std::string& sentence) const {
    expectNothingMounted(run, 1, sentence);
    EXPECT_EQ(run.output.find('\n'), std::string::npos) << run.output;
}

}  // namespace brisel::tests
