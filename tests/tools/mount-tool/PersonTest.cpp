// The user on whose behalf the mount tool runs.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/Person.h"

#include <gtest/gtest.h>
#include <pwd.h>

#include <string>

namespace brisel::mounttool {

namespace {

TEST(Person, IsRootWithoutPkexec) {
    auto person = whoAsked(nullptr);
    ASSERT_TRUE(person);
    EXPECT_EQ(person->uid, 0U);
    EXPECT_EQ(person->home, getpwuid(0)->pw_dir);
}

TEST(Person, IsTheUserWhoCalledPkexec) {
    const passwd daemon = *getpwnam("daemon");
    const std::string home = daemon.pw_dir;
    auto person = whoAsked(std::to_string(daemon.pw_uid).c_str());
    ASSERT_TRUE(person);
    EXPECT_EQ(person->uid, daemon.pw_uid);
    EXPECT_EQ(person->gid, daemon.pw_gid);
    EXPECT_EQ(person->home, home);
}

TEST(Person, IsAbsentIfTheUserIDIsInvalid) {
    for (const char* const text :
         {"", " ", "root", "-1", "+0", " 0", "0 ", "00", "01", "0x0", "0\n", "1e0", "1.0",
          "4294967295", "4294967296", "18446744073709551616", "99999999999999999999999999", "٣"})
        EXPECT_FALSE(whoAsked(text)) << text;
}

TEST(Person, MustExist) {
    constexpr const char* Unused = "4294967213";
    ASSERT_EQ(getpwuid(4294967213U), nullptr);
    EXPECT_FALSE(whoAsked(Unused));
}

}  // namespace

}  // namespace brisel::mounttool
