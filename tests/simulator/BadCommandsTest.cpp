// Bad commands: each stops a scenario in its line.
// SPDX-License-Identifier: MIT
#include "tests/simulator/ScriptedScenario.h"

namespace brisel::tests {
namespace {

using testing::Contains;

class BadCommand : public ScriptedScenario {};

TEST_F(BadCommand, IsToldWithItsLine) {
    EXPECT_EQ(stoppedIn("# one\n\nsystem 12\nnonsense x\nsystem 11\n"), 4U);
    ASSERT_EQ(complaints.size(), 1U);
    EXPECT_EQ(complaints[0].complaint, "there is no command \"nonsense\"");
}

TEST_F(BadCommand, IsEchoedLikeAnyOther) {
    EXPECT_EQ(stoppedIn("nonsense x\n"), 1U);
    EXPECT_THAT(lines, testing::ElementsAre("> nonsense x"));
}

TEST_F(BadCommand, IsALineWhoseQuoteDoesNotEnd) {
    EXPECT_EQ(stoppedIn("home \"/x\n"), 1U);
    EXPECT_EQ(complaints.back().complaint, "a quote does not end");
}

TEST_F(BadCommand, IsHelpInAFile) {
    EXPECT_EQ(stoppedIn("help\n"), 1U);
}

/// One bad line after others, all before the start.
class BadBeforeStart : public BadCommand, public testing::WithParamInterface<const char*> {};

TEST_P(BadBeforeStart, StopsTheScenario) {
    EXPECT_EQ(stoppedIn(std::string("attach d kind=ntfs\n") + GetParam() + "\n"), 2U);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, BadBeforeStart,
    testing::Values("system", "system 13", "system 11 12", "home", "home a b", "language",
                    "language a b", "default", "default key", "default key MAYBE",
                    "default key YES NO", "start now", "choose", "choose \"Quit Brisel\"",
                    "press OK", "press", "password ok", "password", "password maybe",
                    "password fail", "password fail x", "respond DO_MOUNT", "respond", "attach",
                    "attach d", "attach e nonsense", "attach e colour=red",
                    "attach e mountable=maybe", "attach e writable=maybe", "set d", "set e name=x",
                    "set d colour=red", "set d name", "report e", "report", "report d d",
                    "detach e", "detach", "refuse unmount e 1", "refuse unmount d",
                    "refuse unmount d x", "refuse eject d 1", "refuse", "hold on", "release all",
                    "tool", "tool exit", "tool exit=x", "tool exit=256", "tool exit=-1",
                    "tool signal=0", "tool signal=32", "tool end=1", "tool exit=0 text=x",
                    "tool signal=9 output=x", "tool exit=0 output=x y", "launch", "launch fail",
                    "launch fail x", "launch fail 0", "launch lost", "file", "file a b", "rmdir",
                    "fail", "fail create", "fail open x", "fail list a b c", "script", "script run",
                    "script fail nonsense", "notifications", "notifications maybe", "login-items",
                    "login-items maybe", "appearance", "appearance a b", "show", "show nothing",
                    "show menu volumes", "quit now"));

/// One bad line while the program runs.
class BadWhileRunning : public BadCommand, public testing::WithParamInterface<const char*> {};

TEST_P(BadWhileRunning, StopsTheScenario) {
    EXPECT_EQ(stoppedIn(std::string(Started) + GetParam() + "\n"), 3U);
}

INSTANTIATE_TEST_SUITE_P(Commands, BadWhileRunning,
                         testing::Values("start", "system 11", "home /x", "language de",
                                         "default key YES", "launch missing",
                                         "choose \"No NTFS Volumes to re-mount\"", "choose Nothing",
                                         "choose \"About Brisel\" 2", "choose \"About Brisel\" 0",
                                         "choose \"About Brisel\" x", "choose \"About Brisel\" 1 1",
                                         "respond DO_MOUNT", "respond maybe volume=d",
                                         "respond NOTHING colour=red volume=d", "press OK",
                                         "password ok"));

/// One bad line while the warning notice is up.
class BadWhileAnAlertIsUp : public BadCommand, public testing::WithParamInterface<const char*> {};

TEST_P(BadWhileAnAlertIsUp, StopsTheScenario) {
    EXPECT_EQ(stoppedIn(std::string("start\n") + GetParam() + "\n"), 2U);
    EXPECT_FALSE(complaints.empty());
}

INSTANTIATE_TEST_SUITE_P(Commands, BadWhileAnAlertIsUp,
                         testing::Values("quit", "choose \"About Brisel\"",
                                         "respond DO_MOUNT volume=d", "start", "press OK",
                                         "password ok", "nonsense"));

/// Lines that are good although they look odd.
class OddCommand : public BadCommand, public testing::WithParamInterface<const char*> {};

TEST_P(OddCommand, IsCarriedOut) {
    EXPECT_EQ(stoppedIn(std::string("attach d kind=ntfs\n") + GetParam() + "\n"), 0U);
    EXPECT_TRUE(complaints.empty());
}

INSTANTIATE_TEST_SUITE_P(Commands, OddCommand,
                         testing::Values("default volumeList", "default volumeList A B",
                                         "set d name= path=", "set d mountable=", "attach e",
                                         "attach e \"name=a=b\"", "report d", "detach d",
                                         "detach d\nrefuse mount d 0xF8DA0001",
                                         "refuse unmount d 0", "hold\nhold", "release",
                                         "tool exit=255 output=", "tool signal=31",
                                         "launch fail -1", "launch missing", "file /a/b",
                                         "rmdir /nothing", "fail delete x", "fail delete x y",
                                         "script fail", "script fail a=b c=d", "show volumes",
                                         "show menu\nshow progress\nshow defaults\nshow folders"));

class Response : public ScriptedScenario {};

TEST_F(Response, MayNameAnyDeviceWithoutAPrompt) {
    EXPECT_TRUE(run(std::string(Started) + "respond DO_MOUNT volume=disk9\npress OK\n"));
    EXPECT_THAT(lines, Contains("alert: Volume not mounted"));
}

TEST_F(Response, CarriesWhatThePromptCarries) {
    EXPECT_TRUE(run(std::string(Started) +
                    "attach d kind=ntfs name=Data path=/Volumes/Data\nrespond DO_MOUNT\n"
                    "password cancel\nattach e kind=ntfs name=Other path=/Volumes/Other\n"
                    "respond DO_MOUNT id=other\nrespond NOTHING\nrespond dismiss\nrespond default\n"
                    "show progress\n"));
    EXPECT_THAT(lines, Contains("unmount: d"));
    EXPECT_THAT(lines, testing::Not(Contains("unmount: e")));
    EXPECT_EQ(lines.back(), "progress: no");
}

class Choice : public ScriptedScenario {};

TEST_F(Choice, CountsItemsOfOneTitleFromTheTop) {
    EXPECT_TRUE(run(std::string(Started) +
                    "attach d kind=ntfs name=A path=/A writable=yes\n"
                    "attach e kind=ntfs name=B path=/B writable=yes\nchoose unmount 2\n"));
    EXPECT_THAT(lines, Contains("unmount: d"));
    EXPECT_THAT(lines, testing::Not(Contains("unmount: e")));
}

}  // namespace
}  // namespace brisel::tests
