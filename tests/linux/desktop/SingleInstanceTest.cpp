// Single instance per session: the first launch, and the effect of a second one.
// SPDX-License-Identifier: MIT
#include "platform/desktop/SingleInstance.h"

#include <gtest/gtest.h>

#include <future>

#include "tests/linux/desktop/FakeService.h"

namespace brisel::platform::desktop {

namespace {

using Place = SingleInstance::Place;
using tests::SessionBus;
using tests::turnUntil;

class AStart : public testing::Test {
  protected:
    AStart() = default;
    ~AStart() override {
        for (const auto& bus : {first_.get(), second_.get()})
            g_dbus_connection_close_sync(bus, nullptr, nullptr);
    }

    tests::TestLoop loop_;
    ActivationToken tokenOfFirst_;
    ActivationToken tokenOfSecond_;
    tests::OwnedObject<GDBusConnection> first_ = SessionBus::shared().connect();
    tests::OwnedObject<GDBusConnection> second_ = SessionBus::shared().connect();
};

TEST_F(AStart, ActivatesTheFirstAndGivesItsToken) {
    SingleInstance first(first_.get(), tokenOfFirst_);
    std::vector<std::string> tokens;
    first.listen([&] { tokens.push_back(tokenOfFirst_.take()); });
    const SingleInstance second(second_.get(), tokenOfSecond_);
    for (const std::size_t times : {1U, 2U}) {
        tokenOfSecond_.set("of-launch-" + std::to_string(times));
        auto answered = std::async(std::launch::async, [&] { return second.activateFirst(); });
        turnUntil([&] { return tokens.size() == times; });
        EXPECT_TRUE(answered.get());
        EXPECT_EQ(tokens.back(), "of-launch-" + std::to_string(times));
    }
}

TEST_F(AStart, BeforeTheFirstListensIsNotLost) {
    SingleInstance first(first_.get(), tokenOfFirst_);
    const SingleInstance second(second_.get(), tokenOfSecond_);
    auto answered = std::async(std::launch::async, [&] { return second.activateFirst(); });
    turnUntil(
        [&] { return answered.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    EXPECT_TRUE(answered.get());
    int activated = 0;
    first.listen([&activated] { ++activated; });
    EXPECT_EQ(activated, 1);
    first.listen([&activated] { ++activated; });
    EXPECT_EQ(activated, 1);
}

TEST_F(AStart, IsUnknownWithoutABus) {
    g_dbus_connection_close_sync(first_.get(), nullptr, nullptr);
    EXPECT_EQ(SingleInstance(first_.get(), tokenOfFirst_).place(), Place::Unknown);
}

}  // namespace

}  // namespace brisel::platform::desktop
