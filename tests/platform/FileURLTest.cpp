// The file URL of a folder.
// SPDX-License-Identifier: MIT
#include "platform/FileURL.h"

#include <gtest/gtest.h>

#include "platform/Platform.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {
namespace {

using platform::FileURL;

TEST(FileURL, EndsWithASlash) {
    EXPECT_EQ(FileURL("/Volumes/Data").absoluteString(), "file:///Volumes/Data/");
    EXPECT_EQ(FileURL("/").absoluteString(), "file:///");
}

TEST(FileURL, DropsSlashesAtItsEnd) {
    EXPECT_EQ(FileURL("/Volumes/Data//").path(), "/Volumes/Data");
    EXPECT_EQ(FileURL("///").path(), "/");
    EXPECT_EQ(FileURL("/Volumes/Data/"), FileURL("/Volumes/Data"));
    EXPECT_NE(FileURL("/Volumes/Data"), FileURL("/Volumes/data"));
}

TEST(FileURL, LeavesTheseCharactersAsTheyAre) {
    const std::string plain = "/AZaz09!$&'()*+,-.:=@_~";
    EXPECT_EQ(FileURL(plain).absoluteString(), "file://" + plain + "/");
}

TEST(FileURL, EncodesEverythingElseInUpperCase) {
    EXPECT_EQ(FileURL("/My Data").absoluteString(), "file:///My%20Data/");
    EXPECT_EQ(FileURL("/;?#%\"<>[]\\^`{|}").absoluteString(),
              "file:///%3B%3F%23%25%22%3C%3E%5B%5D%5C%5E%60%7B%7C%7D/");
    EXPECT_EQ(FileURL("/\xC3\xA9\xFF\n\x7F").absoluteString(), "file:///%C3%A9%FF%0A%7F/");
    EXPECT_EQ(FileURL(std::string("/a\0b", 4)).absoluteString(), "file:///a%00b/");
}

TEST(FileURL, EncodesEveryByteButThose) {
    const std::string plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/!$&'()*+,-.:=@_~";
    for (int byte = 0; byte < 256; ++byte) {
        const auto character = static_cast<char>(byte);
        const auto text = FileURL(std::string("/x") + character + "y").absoluteString();
        const bool kept = plain.find(character) != std::string::npos;
        EXPECT_EQ(text.find('%') == std::string::npos, kept) << byte;
    }
}

TEST(InstalledPlatform, IsTheOneInstalledLast) {
    SimulatedProgram one;
    SimulatedProgram other;
    platform::install(one.mac.platform);
    EXPECT_EQ(&platform::installed().systemLog, &one.mac.systemLog);
    platform::install(other.mac.platform);
    EXPECT_EQ(&platform::installed().systemLog, &other.mac.systemLog);
}

}  // namespace
}  // namespace brisel::tests
