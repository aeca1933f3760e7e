// The system log adapter.
// SPDX-License-Identifier: MIT
#include "platform/macos/SystemLog.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

class SystemLogAdapter : public AdapterTest {
  protected:
    platform::macos::SystemLog adapter;
};

TEST_F(SystemLogAdapter, WritesATextAsItStands) {
    adapter.write("Größe 💾");
    adapter.write("");
    EXPECT_THAT(logLines(), ElementsAre("Größe 💾", ""));
}

TEST_F(SystemLogAdapter, NeverTakesATextForAFormat) {
    adapter.write("100% %@ %s %n %%");
    EXPECT_THAT(logLines(), ElementsAre("100% %@ %s %n %%"));
}

TEST_F(SystemLogAdapter, WritesBytesThatAreNoTextAsOtherCharacters) {
    adapter.write("disk \xFF\xC3 end");
    EXPECT_THAT(logLines(), ElementsAre("disk ÿÃ end"));
}

TEST_F(SystemLogAdapter, KeepsLineBreaksAndNulls) {
    adapter.write(std::string("a\nb\0c", 5));
    EXPECT_THAT(logLines(), ElementsAre(std::string("a\\nb\0c", 6)));
}

}  // namespace
}  // namespace brisel::tests::macos
