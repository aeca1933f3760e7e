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

TEST_F(WorkspaceAdapter, OpensAFolder) {
    adapter.openURL(platform::FileURL("/Volumes/Größe 100%"));
    EXPECT_THAT(lines(), ElementsAre("open: file:///Volumes/Gr%C3%B6%C3%9Fe%20100%25/"));
}

TEST_F(WorkspaceAdapter, PassesNilOn) {
    adapter.openURL(std::nullopt);
    EXPECT_THAT(lines(), ElementsAre("open: (null)"));
}

TEST_F(WorkspaceAdapter, SurvivesAnExceptionForNone) {
    orders().nextCallRaises = true;
    adapter.openURL(std::nullopt);
    EXPECT_THAT(logLines(), ElementsAre("The system refused to open a folder: raised as told"));
}

}  // namespace
}  // namespace brisel::tests::macos
