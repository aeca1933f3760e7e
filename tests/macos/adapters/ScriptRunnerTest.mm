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

TEST_F(ScriptRunnerAdapter, TreatsAnExceptionAsAFailure) {
    orders().nextCallRaises = true;
    EXPECT_THAT(adapter.execute("x").error, Optional(IsEmpty()));
    EXPECT_THAT(logLines(), ElementsAre("The system refused to run a script: raised as told"));
}

}  // namespace
}  // namespace brisel::tests::macos
