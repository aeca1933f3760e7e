// The owner of a Core Foundation reference.
// SPDX-License-Identifier: MIT
#include "platform/macos/Owned.h"

#import "tests/macos/adapters/AdapterTest.h"
#import "tests/macos/frameworks/Counted.h"

namespace brisel::tests::macos {
namespace {

using platform::macos::Owned;
using platform::macos::retained;
using Object = StageCounted*;

class OwnedReference : public AdapterTest {
  protected:
    static Owned<Object> made() { return Owned<Object>([[StageCounted alloc] init]); }
    static int live() { return liveObjects()["StageCounted"]; }
};

TEST_F(OwnedReference, IsReleasedWhenItsOwnerGoes) {
    {
        const auto owner = made();
        EXPECT_EQ(live(), 1);
        EXPECT_TRUE(owner);
        EXPECT_NE(owner.get(), nil);
    }
    EXPECT_EQ(live(), 0);
}

TEST_F(OwnedReference, MovesOnWithoutBeingReleased) {
    auto first = made();
    const Object object = first.get();
    const Owned<Object> second(std::move(first));
    EXPECT_EQ(second.get(), object);
    EXPECT_FALSE(first);  // NOLINT: what is moved from owns nothing.
    EXPECT_EQ(live(), 1);
}

TEST_F(OwnedReference, IsSwappedOnMoveAssignment) {
    auto first = made();
    {
        auto second = made();
        const Object object = second.get();
        first = std::move(second);
        EXPECT_EQ(first.get(), object);
    }
    EXPECT_EQ(live(), 1);
}

TEST_F(OwnedReference, SurvivesBeingMovedOntoItself) {
    auto owner = made();
    auto& same = owner;
    owner = std::move(same);
    EXPECT_TRUE(owner);
    EXPECT_EQ(live(), 1);
}

TEST_F(OwnedReference, MayBeNull) {
    const Owned<Object> none;
    const Owned<Object> null(nil);
    EXPECT_FALSE(none);
    EXPECT_FALSE(null);
    EXPECT_FALSE(retained<Object>(nil));
    EXPECT_EQ(null.get(), nil);
}

TEST_F(OwnedReference, ToABorrowedObjectRetainsIt) {
    const auto theirs = made();
    EXPECT_EQ([theirs.get() retainCount], 1U);
    {
        const auto ours = retained(theirs.get());
        EXPECT_EQ([theirs.get() retainCount], 2U);
    }
    EXPECT_EQ([theirs.get() retainCount], 1U);
}

}  // namespace
}  // namespace brisel::tests::macos
