// The adapter of the main bundle: texts and images.
// SPDX-License-Identifier: MIT
#include "platform/macos/Bundle.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

class BundleAdapter : public AdapterTest {
  protected:
    platform::macos::Bundle adapter;
};

TEST_F(BundleAdapter, HasTheTextsOfItsTables) {
    EXPECT_EQ(adapter.localizedString("An error ocurred"), "Ein Fehler ist aufgetreten");
}

TEST_F(BundleAdapter, GivesTheKeyWhereThereIsNoText) {
    EXPECT_EQ(adapter.localizedString("no such key, %@ 💾"), "no such key, %@ 💾");
    EXPECT_EQ(adapter.localizedString(""), "");
}

TEST_F(BundleAdapter, HasItsImagesAndNoOthers) {
    EXPECT_TRUE(adapter.hasImage("brisel-status-grey-light"));
    EXPECT_FALSE(adapter.hasImage("brisel-status-pink-light"));
}

}  // namespace
}  // namespace brisel::tests::macos
