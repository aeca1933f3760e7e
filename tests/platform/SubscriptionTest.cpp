// Subscriptions: a registration ends with its owner.
// SPDX-License-Identifier: MIT
#include "platform/Subscription.h"

#include <gtest/gtest.h>

namespace brisel::tests {
namespace {

using platform::Subscription;

class Registration : public testing::Test {
  protected:
    int ends = 0;
    Subscription made() {
        return Subscription([this] { ++ends; });
    }
};

TEST_F(Registration, EndsWithItsOwner) {
    {
        const auto owner = made();
        EXPECT_EQ(ends, 0);
    }
    EXPECT_EQ(ends, 1);
}

TEST_F(Registration, EndsOnceOnly) {
    {
        auto owner = made();
        owner.reset();
        owner.reset();
        EXPECT_EQ(ends, 1);
    }
    EXPECT_EQ(ends, 1);
}

TEST_F(Registration, MovesWithoutEnding) {
    auto first = made();
    {
        const auto second = std::move(first);
        EXPECT_EQ(ends, 0);
    }
    EXPECT_EQ(ends, 1);
}

TEST_F(Registration, EndsWhenAnotherIsAssigned) {
    auto owner = made();
    owner = made();
    EXPECT_EQ(ends, 1);
    owner = Subscription();
    EXPECT_EQ(ends, 2);
}

TEST_F(Registration, SurvivesBeingAssignedToItself) {
    auto owner = made();
    auto& same = owner;
    owner = std::move(same);
    EXPECT_EQ(ends, 0);
}

TEST_F(Registration, MayBeEndedByItsOwnEnd) {
    Subscription owner;
    owner = Subscription([&] {
        ++ends;
        owner.reset();
    });
    owner.reset();
    EXPECT_EQ(ends, 1);
}

TEST_F(Registration, MayBeEmpty) {
    Subscription().reset();
}

}  // namespace
}  // namespace brisel::tests
