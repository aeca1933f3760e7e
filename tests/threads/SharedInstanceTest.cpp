// Thread-safety tests; a separate program, because the shared manager is never destroyed.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <barrier>
#include <set>
#include <thread>

#include "tests/support/PlatformWith.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {
namespace {

constexpr std::size_t ThreadCount = 8;

/// Counts the registrations of the notification category, one for each manager created.
class CountingCenter final : public platform::UserNotificationCenter {
  public:
    std::atomic<int> registrations = 0;

    platform::Subscription setDelegate(ResponseHandler /*handler*/) override { return {}; }
    void setNotificationCategories(
        const std::vector<platform::NotificationCategory>& /*categories*/) override {
        ++registrations;
        // Keeps the manager's creation open until the other threads call too.
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    void requestAuthorization(unsigned /*options*/, AuthorizationHandler /*handler*/) override {}
    void addNotificationRequest(const platform::NotificationRequest& /*request*/,
                                AddHandler /*handler*/) override {}
};

TEST(SharedInstance, IsOneAndMadeOnceWhereFirstCallsRace) {
    static SimulatedProgram brisel;
    static CountingCenter center;
    static const auto services =
        platformWith(brisel.mac.platform, {.userNotificationCenter = &center});
    platform::install(services);

    std::array<NTFSVolumeManager*, ThreadCount> managers{};
    std::barrier start(ThreadCount);
    std::vector<std::thread> threads;
    for (auto& manager : managers) {
        threads.emplace_back([&manager, &start] {
            start.arrive_and_wait();
            manager = &NTFSVolumeManager::sharedInstance();
        });
    }
    for (auto& thread : threads)
        thread.join();

    EXPECT_EQ(std::set(managers.begin(), managers.end()).size(), 1U);
    EXPECT_NE(managers.front(), nullptr);
    EXPECT_EQ(managers.front(), &NTFSVolumeManager::sharedInstance());
    EXPECT_EQ(center.registrations, 1);
}

TEST(NotificationSent, IsSetOnAnotherThreadWhileTheMainThreadReadsIt) {
    const auto volume = NTFSVolume::initWithVolume({});
    std::barrier start(2);
    std::thread center([&] {
        start.arrive_and_wait();
        volume->setNotificationSent(true);
    });
    start.arrive_and_wait();
    while (!volume->notificationSent())
        std::this_thread::yield();
    center.join();
    EXPECT_TRUE(volume->notificationSent());
}

}  // namespace
}  // namespace brisel::tests
