// Path of the application that contains the login item.
// SPDX-License-Identifier: MIT
#include "helper/EnclosingApplication.h"

#include <gtest/gtest.h>

namespace brisel::helper {
namespace {

constexpr const char* Inside = "/Contents/Library/LoginItems/BriselHelper.app";

TEST(EnclosingApplication, IsFourLevelsAboveTheLoginItem) {
    EXPECT_EQ(enclosingApplication(std::string("/Applications/Brisel.app") + Inside),
              "/Applications/Brisel.app");
}

TEST(EnclosingApplication, MayBeRenamedAndMoved) {
    EXPECT_EQ(enclosingApplication(std::string("/Users/user/My Programs/Brisel 2.app") + Inside),
              "/Users/user/My Programs/Brisel 2.app");
}

TEST(EnclosingApplication, IsFoundWhereThePathEndsInASlash) {
    EXPECT_EQ(enclosingApplication(std::string("/Applications/Brisel.app") + Inside + "/"),
              "/Applications/Brisel.app");
}

TEST(EnclosingApplication, IsAbsentOutsideAnApplication) {
    EXPECT_EQ(enclosingApplication("/Users/user/Downloads/a/b/BriselHelper.app"), std::nullopt);
}

TEST(EnclosingApplication, IsAbsentAtAnotherDepth) {
    EXPECT_EQ(enclosingApplication("/Applications/Brisel.app/Contents/LoginItems/BriselHelper.app"),
              std::nullopt);
    EXPECT_EQ(enclosingApplication("/Brisel.app/Contents/Library/Login/Items/BriselHelper.app"),
              std::nullopt);
}

TEST(EnclosingApplication, IsAbsentInAFolderThatIsNoApplication) {
    EXPECT_EQ(enclosingApplication(std::string("/Applications/.app") + Inside), std::nullopt);
    EXPECT_EQ(enclosingApplication(std::string("/Applications/Brisel.apple") + Inside),
              std::nullopt);
}

TEST(EnclosingApplication, IsAbsentNearTheRoot) {
    EXPECT_EQ(enclosingApplication("/BriselHelper.app"), std::nullopt);
    EXPECT_EQ(enclosingApplication("/"), std::nullopt);
    EXPECT_EQ(enclosingApplication(""), std::nullopt);
}

}  // namespace
}  // namespace brisel::helper
