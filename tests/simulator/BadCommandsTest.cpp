// Bad commands: each stops a scenario in its line.
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "tests/simulator/ScriptedScenario.h"

namespace brisel::tests {
namespace {

constexpr const char* Attached = "attach d kind=ntfs\n";
constexpr const char* UnderAnAlert = "start\n";
const std::string UnderThePasswordPrompt =
    std::string(Started) + "attach d kind=ntfs name=Data path=/Volumes/Data\nrespond DO_MOUNT\n";

struct Refusal {
    /// Good commands before the bad one.
    std::string before;
    std::string complaint;
    /// Each of these draws the complaint.
    std::vector<std::string> commands;
};

const std::vector<Refusal> Refusals{
    {Attached, "there is no command \"nonsense\"", {"nonsense x"}},
    {Attached, "there is no command \"help\"", {"help"}},
    {Attached, "a quote does not end", {"home \"/x"}},
    {Attached, "usage: system 11|12", {"system", "system 10", "system 13", "system 11 12"}},
    {Attached, "usage: home PATH", {"home", "home a b"}},
    {Attached, "usage: language CODE", {"language", "language a b"}},
    {Attached,
     "usage: default KEY YES|NO, default volumeList [UUID...]",
     {"default", "default key", "default key MAYBE", "default key YES NO"}},
    {Attached, "usage: start", {"start now"}},
    {Attached,
     "the program has not been started",
     {"choose", "choose \"Quit Brisel\"", "respond", "respond DO_MOUNT",
      "respond DO_MOUNT volume=d", "quit", "quit now"}},
    {Attached, "no alert is up", {"press OK"}},
    {Attached, "usage: press TITLE", {"press"}},
    {Attached, "no administrator prompt is up", {"password ok"}},
    {Attached,
     "usage: password ok|cancel, password fail CODE",
     {"password", "password maybe", "password fail", "password fail x"}},
    {Attached,
     "usage: attach DEVICE [mountable=yes|no] [kind=KIND] [name=NAME] [path=PATH] "
     "[media-uuid=UUID] [volume-uuid=UUID] [writable=yes|no]",
     {"attach", "attach e nonsense", "attach e colour=red", "attach e mountable=maybe",
      "attach e writable=maybe"}},
    {Attached, "that disk is there already", {"attach d"}},
    {Attached,
     "usage: set DEVICE KEY=VALUE...",
     {"set d", "set d colour=red", "set d name", "set d mountable=maybe"}},
    {Attached, "there is no such disk", {"set e name=x", "report e", "detach e"}},
    {"attach d\ndetach d\n", "there is no such disk", {"detach d"}},
    {Attached, "usage: report DEVICE", {"report", "report d d"}},
    {Attached, "usage: detach DEVICE", {"detach"}},
    {Attached, "there never was such a disk", {"refuse unmount e 1"}},
    {Attached,
     "usage: refuse unmount|mount DEVICE STATUS",
     {"refuse", "refuse unmount d", "refuse unmount d x", "refuse eject d 1"}},
    {Attached, "usage: hold", {"hold on"}},
    {Attached, "usage: release", {"release all"}},
    {Attached,
     "usage: tool exit=N [output=TEXT], tool signal=N",
     {"tool", "tool exit", "tool exit=x", "tool exit=256", "tool exit=-1", "tool signal=0",
      "tool signal=32", "tool end=1", "tool exit=0 text=x", "tool signal=9 output=x",
      "tool exit=0 output=x y", "tool crash"}},
    {Attached,
     "usage: launch fail CODE, launch missing",
     {"launch", "launch fail", "launch fail x", "launch fail 0", "launch lost"}},
    {Attached, "usage: file PATH", {"file", "file a b"}},
    {Attached, "usage: rmdir PATH", {"rmdir"}},
    {Attached,
     "usage: fail create|list|delete DESCRIPTION [REASON]",
     {"fail", "fail create", "fail move \"No\"", "fail list a b c"}},
    {Attached,
     "usage: script fail [KEY=VALUE...]",
     {"script", "script succeed", "script fail nonsense"}},
    {Attached,
     "usage: notifications allow|deny|error|add-error",
     {"notifications", "notifications maybe"}},
    {Attached, "usage: login-items accept|refuse", {"login-items", "login-items maybe"}},
    {Attached, "usage: appearance NAME", {"appearance", "appearance a b"}},
    {Attached,
     "usage: show menu|volumes|progress|defaults|folders",
     {"show", "show nothing", "show menu volumes"}},

    {Started,
     "the program has been started already",
     {"start", "system 11", "home /x", "language de", "default key YES",
      "default showDisclaimer YES", "launch missing"}},
    {Started, "that menu item has no action", {"choose \"No NTFS Volumes to re-mount\""}},
    {Started, "there is no such menu item", {"choose Nothing", "choose \"About Brisel\" 2"}},
    {Started,
     "usage: choose TITLE [N]",
     {"choose \"About Brisel\" 0", "choose \"About Brisel\" x", "choose \"About Brisel\" 1 1"}},
    {Started, "no prompt was shown yet", {"respond DO_MOUNT"}},
    {Started,
     "usage: respond DO_MOUNT|NOTHING|default|dismiss [id=ID] [volume=DEVICE]",
     {"respond maybe volume=d", "respond NOTHING colour=red volume=d"}},
    {Started, "no alert is up", {"press OK"}},
    {Started, "no administrator prompt is up", {"password ok", "password cancel"}},

    {UnderAnAlert,
     "an alert or prompt is up",
     {"quit", "choose \"About Brisel\"", "respond DO_MOUNT volume=d"}},
    {UnderAnAlert, "the program has been started already", {"start"}},
    {UnderAnAlert, "the alert has no such button", {"press OK"}},
    {UnderAnAlert, "no administrator prompt is up", {"password ok"}},
    {UnderAnAlert, "there is no command \"nonsense\"", {"nonsense"}},

    {UnderThePasswordPrompt,
     "usage: password ok|cancel, password fail CODE",
     {"password swordfish"}},
    {UnderThePasswordPrompt, "no alert is up", {"press OK"}},
    {UnderThePasswordPrompt, "an alert or prompt is up", {"respond NOTHING", "quit"}},
};

class BadCommand : public ScriptedScenario {};

TEST_F(BadCommand, StopsTheScenarioInItsLineWithAComplaint) {
    for (const auto& refusal : Refusals) {
        for (const auto& command : refusal.commands) {
            SCOPED_TRACE(command);
            lines.clear();
            const auto line = std::count(refusal.before.begin(), refusal.before.end(), '\n') + 1;
            EXPECT_EQ(stoppedIn(refusal.before + command + "\nshow menu\n"), line);
            ASSERT_EQ(complaints.size(), 1U);
            EXPECT_EQ(complaints[0].complaint, refusal.complaint);
            EXPECT_EQ(lines.back(), "> " + command);
        }
    }
}

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

}  // namespace
}  // namespace brisel::tests
