// Signals, and the notification center built on them.
// SPDX-License-Identifier: MIT
#include "platform/common/Signal.h"

#include <string>

#include "platform/common/NotificationCenter.h"
#include "tests/support/Matchers.h"

namespace brisel::tests {
namespace {

using platform::Subscription;
using platform::common::NotificationCenter;

class Signal : public testing::Test {
  protected:
    platform::common::Signal<const std::string&> signal;
    std::vector<std::string> heard;
    Subscription listen(const std::string& name) {
        return signal.subscribe(
            [this, name](const std::string& text) { heard.push_back(name + text); });
    }
};

TEST_F(Signal, CallsInTheOrderOfSubscribing) {
    const auto one = listen("b");
    const auto other = listen("a");
    signal("!");
    EXPECT_THAT(heard, ElementsAre("b!", "a!"));
}

TEST_F(Signal, DoesNotCallEndedSubscriptions) {
    auto one = listen("one");
    const auto other = listen("other");
    one.reset();
    signal("");
    EXPECT_THAT(heard, ElementsAre("other"));
}

TEST_F(Signal, ReportsWhetherItHasSubscribers) {
    EXPECT_TRUE(signal.empty());
    {
        const auto one = listen("one");
        EXPECT_FALSE(signal.empty());
    }
    EXPECT_TRUE(signal.empty());
}

TEST_F(Signal, LetsACallbackEndItself) {
    Subscription self;
    self = signal.subscribe([&](const std::string& text) {
        self.reset();
        heard.push_back(text);
    });
    signal("once");
    signal("twice");
    EXPECT_THAT(heard, ElementsAre("once"));
}

TEST_F(Signal, LetsACallbackEndALaterOne) {
    Subscription later;
    const auto earlier = signal.subscribe([&](const std::string&) { later.reset(); });
    later = listen("later");
    signal("");
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(Signal, DoesNotCallSubscriptionsAddedDuringTheCall) {
    std::vector<Subscription> added;
    const auto one = signal.subscribe([&](const std::string&) { added.push_back(listen("new")); });
    signal("");
    EXPECT_THAT(heard, ElementsAre());
}

TEST(SignalSubscription, MayOutliveTheSignal) {
    Subscription owner;
    {
        platform::common::Signal<> gone;
        owner = gone.subscribe([] {});
    }
    owner.reset();
}

class Notifications : public testing::Test {
  protected:
    NotificationCenter center;
    std::vector<std::string> heard;
    Subscription observe(const std::string& name) {
        return center.addObserver(name, [this, name](const void* object) {
            heard.push_back(name + (object == this ? " of this" : " of none"));
        });
    }
};

TEST_F(Notifications, ReachTheObserversOfTheirName) {
    const auto one = observe("One");
    const auto other = observe("Other");
    center.postNotificationName("Other", this);
    EXPECT_THAT(heard, ElementsAre("Other of this"));
}

TEST_F(Notifications, WithoutObserversAreHarmless) {
    center.postNotificationName("Unknown", nullptr);
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(Notifications, EndWithTheSubscription) {
    auto one = observe("One");
    one.reset();
    center.postNotificationName("One", nullptr);
    EXPECT_THAT(heard, ElementsAre());
}

}  // namespace
}  // namespace brisel::tests
