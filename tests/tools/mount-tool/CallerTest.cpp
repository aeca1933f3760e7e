// The user on whose behalf the mount tool runs.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/Caller.h"

#include <gtest/gtest.h>
#include <pwd.h>

#include <string>

namespace brisel::mounttool {

namespace {

TEST(Caller, IsRootWithoutPkexec) {
    auto caller = callerOf(nullptr);
    ASSERT_TRUE(caller);
    EXPECT_EQ(caller->uid, 0U);
    EXPECT_EQ(caller->home, getpwuid(0)->pw_dir);
}

TEST(Caller, IsTheUserWhoCalledPkexec) {
    const passwd daemon = *getpwnam("daemon");
    const std::string home = daemon.pw_dir;
    auto caller = callerOf(std::to_string(daemon.pw_uid).c_str());
    ASSERT_TRUE(caller);
    EXPECT_EQ(caller->uid, daemon.pw_uid);
    EXPECT_EQ(caller->gid, daemon.pw_gid);
    EXPECT_EQ(caller->home, home);
}

TEST(Caller, IsAbsentIfTheUserIDIsInvalid) {
    for (const char* const text :
         {"", " ", "root", "-1", "+0", " 0", "0 ", "00", "01", "0x0", "0\n", "1e0", "1.0",
          "4294967295", "4294967296", "18446744073709551616", "99999999999999999999999999", "٣"})
        EXPECT_FALSE(callerOf(text)) << text;
}

TEST(Caller, MustExist) {
    constexpr const char* Unused = "4294967213";
    ASSERT_EQ(getpwuid(4294967213U), nullptr);
    EXPECT_FALSE(callerOf(Unused));
}

}  // namespace

}  // namespace brisel::mounttool
