// The workspace adapter.
// SPDX-License-Identifier: MIT
#include "platform/macos/Workspace.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

class WorkspaceAdapter : public AdapterTest {
  protected:
    platform::macos::Workspace adapter;
};

TEST_F(WorkspaceAdapter, SurvivesAnExceptionForNone) {
    orders().nextCallRaises = true;
    adapter.openURL(std::nullopt);
    EXPECT_THAT(logLines(), ElementsAre("The system refused to open a folder: raised as told"));
}

}  // namespace
}  // namespace brisel::tests::macos
