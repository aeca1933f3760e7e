// Parsing of the mount tool's command line.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/CommandLine.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace brisel::mounttool {

namespace {

constexpr const char* Options = "rw,auto,nobrowse,noowners,noatime";
const std::string Home = "/home/ann";
const std::string MountPoint = Home + "/.brisel/Data";

Result<MountRequest> parse(const std::vector<std::string>& words) {
    std::vector<const char*> arguments{"mount_ntfs"};
    for (const auto& word : words)
        arguments.push_back(word.c_str());
    return parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

bool acceptsOptions(const std::string& options) {
    return static_cast<bool>(parse({"-o", options, "/dev/sda1", MountPoint}));
}

bool acceptsDevice(const std::string& device) {
    return static_cast<bool>(parse({"-o", Options, device, MountPoint}));
}

bool acceptsMountPoint(const std::string& path) {
    return static_cast<bool>(labelOf(path, Home));
}

TEST(CommandLine, GivesDeviceAndMountPoint) {
    auto request = parse({"-o", Options, "/dev/disk4s1", MountPoint});
    ASSERT_TRUE(request);
    EXPECT_EQ(request->device, "/dev/disk4s1");
    EXPECT_EQ(request->mountPoint, MountPoint);
}

TEST(CommandLine, KnowsItsOptionsAndNoOthers) {
    EXPECT_TRUE(acceptsOptions("rw"));
    EXPECT_TRUE(acceptsOptions("noatime,rw"));
    for (const char* const options :
         {"",          "auto",         ",",       "rw,",    ",rw",     "rw,,auto",
          "rw,rw",     "rw,auto,auto", "rw,suid", "rw,dev", "rw,exec", "rw,remove_hiberfile",
          "rw,force",  "rw,uid=0",     "RW",      " rw",    "rw ",     "rw,ro",
          "rw,noatim", "rw,noatimes",  "rw\n",    "rw;auto"})
        EXPECT_FALSE(acceptsOptions(options)) << options;
    EXPECT_FALSE(acceptsOptions("rw," + std::string(PATH_MAX, 'a')));
}

TEST(CommandLine, TakesFourArgumentsInOneOrder) {
    EXPECT_FALSE(parse({}));
    EXPECT_FALSE(parse({"-o", Options, "/dev/sda1"}));
    EXPECT_FALSE(parse({"-o", Options, "/dev/sda1", MountPoint, MountPoint}));
    EXPECT_FALSE(parse({"-o", Options, "-o", Options, "/dev/sda1", MountPoint}));
    EXPECT_FALSE(parse({"/dev/sda1", MountPoint, "-o", Options}));
    EXPECT_FALSE(parse({"-o", Options, MountPoint, "/dev/sda1"}));
    EXPECT_FALSE(parse({"-O", Options, "/dev/sda1", MountPoint}));
    EXPECT_FALSE(parse({"", Options, "/dev/sda1", MountPoint}));
    EXPECT_FALSE(parseCommandLine(0, nullptr));
}

TEST(CommandLine, WantsADeviceDirectlyInDev) {
    EXPECT_TRUE(acceptsDevice("/dev/nvme0n1p1"));
    EXPECT_TRUE(acceptsDevice("/dev/dm-0"));
    for (const char* const device :
         {"", "/dev/", "/dev", "sda1", "dev/sda1", "/dev//sda1", "/dev/sda1/", "/dev/..", "/dev/.",
          "/dev/.hidden", "/dev/../etc/passwd", "/dev/mapper/x", "/DEV/sda1", "/dev/sda 1",
          "/dev/sda\n", "/dev/s,da", "/dev/s\xC3\xA4", "//dev/sda1", " /dev/sda1"})
        EXPECT_FALSE(acceptsDevice(device)) << device;
    EXPECT_FALSE(acceptsDevice("/dev/" + std::string(PATH_MAX, 'a')));
}

TEST(CommandLine, WantsAnAbsoluteMountPointThatIsNoLongerThanAPath) {
    EXPECT_FALSE(parse({"-o", Options, "/dev/sda1", ""}));
    EXPECT_FALSE(parse({"-o", Options, "/dev/sda1", "home/ann/.brisel/Data"}));
    EXPECT_FALSE(parse({"-o", Options, "/dev/sda1", "/" + std::string(PATH_MAX - 1, 'a')}));
    EXPECT_TRUE(parse({"-o", Options, "/dev/sda1", "/" + std::string(PATH_MAX - 2, 'a')}));
}

TEST(CommandLine, TakesTheLabelFromAMountPointInTheHome) {
    for (const std::string label :
         {"Data", "My Disk", "-o", "...", ".hidden", "$(reboot)'\"", "D\xC3\xA4ten", "\xFF\xFE"}) {
        auto found = labelOf(Home + "/.brisel/" + label, Home);
        ASSERT_TRUE(found) << label;
        EXPECT_EQ(*found, label);
    }
    EXPECT_TRUE(acceptsMountPoint(Home + "/.brisel/" + std::string(NAME_MAX, 'a')));
}

TEST(CommandLine, RefusesAMountPointAnywhereElse) {
    for (const std::string label :
         {"", "/", ".", "..", "a/b", "../x", "Data/", "a\nb", "\x1b[2J", "\x7f", "\x01"})
        EXPECT_FALSE(acceptsMountPoint(Home + "/.brisel/" + label)) << label;
    for (const std::string path :
         {"/home/ann/.brisel", "/home/ann//.brisel/Data", "/home/ann/.briselx/Data",
          "/home/ann/Data", "/home/bob/.brisel/Data", "/home/annex/.brisel/Data",
          "/home/./ann/.brisel/Data", "/home/ann", "/", "/etc"})
        EXPECT_FALSE(acceptsMountPoint(path)) << path;
    EXPECT_FALSE(acceptsMountPoint(Home + "/.brisel/" + std::string(NAME_MAX + 1, 'a')));
}

TEST(CommandLine, SaysWhichLabelsItRefuses) {
    EXPECT_EQ(labelOf(Home + "/.brisel/a\nb", Home).refusal().sentence,
              "The label contains control characters: rename the volume, then try again.");
    EXPECT_EQ(labelOf(Home + "/.brisel/a/b", Home).refusal().sentence,
              "The mount point's name is not a valid folder name.");
}

}  // namespace

}  // namespace brisel::mounttool
