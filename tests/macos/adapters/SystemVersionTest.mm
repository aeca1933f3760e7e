// The adapter of the system version.
// SPDX-License-Identifier: MIT
#include "platform/macos/SystemVersion.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

class SystemVersionAdapter : public AdapterTest {
  protected:
    platform::macos::SystemVersion adapter;
};

TEST_F(SystemVersionAdapter, IsAskedForOnceInAProcess) {
    EXPECT_TRUE(adapter.isMacOS12OrLater());
    mac.systemVersion.setMacOS12OrLater(false);
    EXPECT_TRUE(adapter.isMacOS12OrLater());
    EXPECT_TRUE(platform::macos::SystemVersion().isMacOS12OrLater());
}

}  // namespace
}  // namespace brisel::tests::macos
