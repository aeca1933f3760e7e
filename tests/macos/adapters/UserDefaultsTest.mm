// The user defaults adapter.
// SPDX-License-Identifier: MIT
#include "platform/macos/UserDefaults.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

using List = std::vector<std::string>;

class UserDefaultsAdapter : public AdapterTest {
  protected:
    platform::macos::UserDefaults adapter;

    void setList(List list) {
        adapter.setStringArray("List", std::make_shared<const List>(std::move(list)));
    }
};

TEST_F(UserDefaultsAdapter, AnswersWithWhatIsStoredElseWithWhatIsRegistered) {
    EXPECT_FALSE(adapter.boolForKey("Yes"));
    adapter.registerDefaults({{"Yes", true}, {"No", false}});
    EXPECT_TRUE(adapter.boolForKey("Yes"));
    EXPECT_FALSE(adapter.boolForKey("No"));
    adapter.setBool("Yes", false);
    adapter.setBool("No", true);
    EXPECT_FALSE(adapter.boolForKey("Yes"));
    EXPECT_TRUE(adapter.boolForKey("No"));
}

TEST_F(UserDefaultsAdapter, DistinguishesAnEmptyListFromAnAbsentOne) {
    EXPECT_EQ(adapter.stringArrayForKey("List"), nullptr);
    setList({});
    EXPECT_THAT(adapter.stringArrayForKey("List"), Pointee(IsEmpty()));
}

TEST_F(UserDefaultsAdapter, TakesAValueOfAnotherTypeAsAbsent) {
    mac.userDefaults.store("List", true);
    mac.userDefaults.store("Flag", std::string("text"));
    EXPECT_EQ(adapter.stringArrayForKey("List"), nullptr);
    EXPECT_FALSE(adapter.boolForKey("Flag"));
}

}  // namespace
}  // namespace brisel::tests::macos
