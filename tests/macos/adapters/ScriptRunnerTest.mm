// The script runner adapter: AppleScript.
// SPDX-License-Identifier: MIT
#include "platform/macos/ScriptRunner.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

class ScriptRunnerAdapter : public AdapterTest {
  protected:
    platform::macos::ScriptRunner adapter;
};

TEST_F(ScriptRunnerAdapter, RunsTheSourceAsItStands) {
    EXPECT_FALSE(adapter.execute("do shell script \"xattr -c 'Größe 💾' %@\"").error);
    EXPECT_THAT(lines(), ElementsAre("script: do shell script \"xattr -c 'Größe 💾' %@\""));
}

TEST_F(ScriptRunnerAdapter, HandsOnTheErrorInItsOrder) {
    mac.scriptRunner.failNext({{"NSAppleScriptErrorNumber", "1"},
                               {"NSAppleScriptErrorMessage", "It is größer."},
                               {"NSAppleScriptErrorBriefMessage", "%s"}});
    EXPECT_THAT(adapter.execute("x").error,
                Optional(ElementsAre(Pair("NSAppleScriptErrorNumber", "1"),
                                     Pair("NSAppleScriptErrorMessage", "It is größer."),
                                     Pair("NSAppleScriptErrorBriefMessage", "%s"))));
}

TEST_F(ScriptRunnerAdapter, DistinguishesAnEmptyErrorFromSuccess) {
    mac.scriptRunner.failNext({});
    EXPECT_THAT(adapter.execute("x").error, Optional(IsEmpty()));
    EXPECT_FALSE(adapter.execute("x").error);
}

TEST_F(ScriptRunnerAdapter, TreatsAnExceptionAsAFailure) {
    orders().nextCallRaises = true;
    EXPECT_THAT(adapter.execute("x").error, Optional(IsEmpty()));
    EXPECT_THAT(logLines(), ElementsAre("The system refused to run a script: raised as told"));
}

}  // namespace
}  // namespace brisel::tests::macos
