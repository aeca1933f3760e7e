// Single instance per session: the first launch, and the effect of a second one.
// SPDX-License-Identifier: MIT
#include "platform/desktop/SingleInstance.h"

#include <gtest/gtest.h>

#include <atomic>
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
    /// The connections of two instances.
    tests::OwnedObject<GDBusConnection> first_ = SessionBus::shared().connect();
    tests::OwnedObject<GDBusConnection> second_ = SessionBus::shared().connect();
};

TEST_F(AStart, IsTheFirstOrTheSecond) {
    const SingleInstance first(first_.get(), tokenOfFirst_);
    const SingleInstance second(second_.get(), tokenOfSecond_);
    EXPECT_EQ(first.place(), Place::First);
    EXPECT_EQ(second.place(), Place::Second);
}

TEST_F(AStart, ActivatesTheFirst) {
    SingleInstance first(first_.get(), tokenOfFirst_);
    int activated = 0;
    first.listen([&activated] { ++activated; });
    const SingleInstance second(second_.get(), tokenOfSecond_);
    for (const int times : {1, 2}) {
        auto answered = std::async(std::launch::async, [&] { return second.activateFirst(); });
        turnUntil([&] { return activated == times; });
        EXPECT_TRUE(answered.get());
    }
}

TEST_F(AStart, GivesItsTokenToTheFirst) {
    SingleInstance first(first_.get(), tokenOfFirst_);
    std::string token;
    first.listen([&] { token = tokenOfFirst_.take(); });
    const SingleInstance second(second_.get(), tokenOfSecond_);
    tokenOfSecond_.set("of-the-launch");
    const auto answered = std::async(std::launch::async, [&] { return second.activateFirst(); });
    turnUntil([&] { return !token.empty(); });
    EXPECT_EQ(token, "of-the-launch");
}

TEST_F(AStart, IsTheFirstAgainOnceTheFirstHasEnded) {
    {
        const SingleInstance first(first_.get(), tokenOfFirst_);
        g_dbus_connection_close_sync(first_.get(), nullptr, nullptr);
    }
    turnUntil(
        [this] { return SingleInstance(second_.get(), tokenOfSecond_).place() == Place::First; });
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
