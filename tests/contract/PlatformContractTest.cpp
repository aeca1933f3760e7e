// Contract tests: one suite of service tests, run on each platform available here.
// SPDX-License-Identifier: MIT
#include <glib.h>
#include <gtest/gtest.h>

#include <memory>

#include "platform/headless/FileManager.h"
#include "platform/headless/MainContext.h"
#include "platform/headless/ScriptRunner.h"
#include "platform/headless/SystemLog.h"
#include "platform/headless/UserDefaults.h"
#include "tests/linux/TemporaryFolder.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {

namespace {

using namespace std::chrono_literals;

class Simulated {
  public:
    platform::FileManager& files() { return mac_.fileManager; }
    platform::UserDefaults& defaults() { return mac_.userDefaults; }
    platform::RunLoop& runLoop() { return mac_.mainLoop; }
    [[nodiscard]] std::string folder() const { return "/Users/user"; }
    void makeFile(const std::string& path) { mac_.fileSystem.makeFile(path); }
    void letTimePass() { mac_.mainLoop.advanceClock(60ms); }

  private:
    ScriptedPerson person_;
    platform::simulated::Mac mac_{person_};
};

class Linux {
  public:
    platform::FileManager& files() { return files_; }
    platform::UserDefaults& defaults() { return defaults_; }
    platform::RunLoop& runLoop() { return runLoop_; }
    [[nodiscard]] std::string folder() const { return folder_.path(); }
    static void makeFile(const std::string& path) {
        g_file_set_contents(path.c_str(), "", 0, nullptr);
    }
    static void letTimePass() {
        g_usleep(60'000);
        while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
        }
    }

  private:
    TemporaryFolder folder_;
    platform::headless::SystemLog log_{[](const std::string&) {}};
    platform::headless::FileManager files_{folder_.path()};
    platform::headless::UserDefaults defaults_{log_, folder_.path() + "/preferences.conf"};
    platform::headless::RunLoop runLoop_;
};

template <typename Services>
class Platform : public testing::Test {
  protected:
    Services services_;
    std::string mountPoint_ = services_.folder() + "/.brisel/Data";
};

using Platforms = testing::Types<Simulated, Linux>;
TYPED_TEST_SUITE(Platform, Platforms);

TYPED_TEST(Platform, CreatesAFolderWithItsParentsAndAcceptsAnExistingOne) {
    auto& files = this->services_.files();
    EXPECT_FALSE(files.createDirectory(this->mountPoint_).has_value());
    EXPECT_FALSE(files.createDirectory(this->mountPoint_).has_value());
    const auto listing = files.contentsOfDirectory(platform::FileURL(this->mountPoint_));
    EXPECT_FALSE(listing.error.has_value());
    EXPECT_EQ(listing.entryCount, 0U);
}

TYPED_TEST(Platform, CountsTheEntriesOfAFolder) {
    auto& files = this->services_.files();
    ASSERT_FALSE(files.createDirectory(this->mountPoint_).has_value());
    this->services_.makeFile(this->mountPoint_ + "/seen");
    this->services_.makeFile(this->mountPoint_ + "/.hidden");
    const auto listing = files.contentsOfDirectory(platform::FileURL(this->mountPoint_));
    EXPECT_EQ(listing.entryCount, 2U);
}

TYPED_TEST(Platform, RemovesAnEmptyFolderAndLeavesTheOneAbove) {
    auto& files = this->services_.files();
    ASSERT_FALSE(files.createDirectory(this->mountPoint_).has_value());
    EXPECT_FALSE(files.removeItem(this->mountPoint_).has_value());
    const auto above = platform::FileURL(this->services_.folder() + "/.brisel");
    EXPECT_FALSE(files.contentsOfDirectory(above).error.has_value());
    EXPECT_EQ(files.contentsOfDirectory(above).entryCount, 0U);
}

TYPED_TEST(Platform, ReportsAMissingFolder) {
    auto& files = this->services_.files();
    const auto listing = files.contentsOfDirectory(platform::FileURL(this->mountPoint_));
    ASSERT_TRUE(listing.error.has_value());
    EXPECT_EQ(listing.error->localizedDescription, "No such file or directory");
    EXPECT_EQ(listing.error->localizedFailureReason, std::nullopt);
    ASSERT_TRUE(files.removeItem(this->mountPoint_).has_value());
    EXPECT_EQ(files.removeItem(this->mountPoint_)->localizedDescription,
              "No such file or directory");
}

TYPED_TEST(Platform, TreatsAMissingPathAsUnwritable) {
    EXPECT_FALSE(this->services_.files().isWritableFileAtPath(std::nullopt));
    EXPECT_FALSE(this->services_.files().isWritableFileAtPath(this->mountPoint_));
}

TYPED_TEST(Platform, ReturnsARegisteredDefaultUntilAValueIsStored) {
    auto& defaults = this->services_.defaults();
    EXPECT_FALSE(defaults.boolForKey("showDisclaimer"));
    defaults.registerDefaults({{"showDisclaimer", true}});
    EXPECT_TRUE(defaults.boolForKey("showDisclaimer"));
    defaults.setBool("showDisclaimer", false);
    defaults.registerDefaults({{"showDisclaimer", true}});
    EXPECT_FALSE(defaults.boolForKey("showDisclaimer"));
}

TYPED_TEST(Platform, KeepsTheOrderOfAListAndDistinguishesEmptyFromAbsent) {
    auto& defaults = this->services_.defaults();
    EXPECT_EQ(defaults.stringArrayForKey("volumeList"), nullptr);
    const std::vector<std::string> list{"B", "A", "B"};
    defaults.setStringArray("volumeList", std::make_shared<const std::vector<std::string>>(list));
    ASSERT_NE(defaults.stringArrayForKey("volumeList"), nullptr);
    EXPECT_EQ(*defaults.stringArrayForKey("volumeList"), list);
    defaults.setStringArray("volumeList", std::make_shared<const std::vector<std::string>>());
    ASSERT_NE(defaults.stringArrayForKey("volumeList"), nullptr);
    EXPECT_TRUE(defaults.stringArrayForKey("volumeList")->empty());
}

TYPED_TEST(Platform, FiresATimerUntilItsSubscriptionEnds) {
    int fired = 0;
    auto timer = this->services_.runLoop().scheduledTimer(50ms, [&] { ++fired; });
    EXPECT_EQ(fired, 0);
    this->services_.letTimePass();
    EXPECT_EQ(fired, 1);
    this->services_.letTimePass();
    EXPECT_EQ(fired, 2);
    timer.reset();
    this->services_.letTimePass();
    EXPECT_EQ(fired, 2);
}

TYPED_TEST(Platform, LetsATimerEndItself) {
    int fired = 0;
    platform::Subscription timer;
    timer = this->services_.runLoop().scheduledTimer(50ms, [&] {
        ++fired;
        timer.reset();
    });
    this->services_.letTimePass();
    this->services_.letTimePass();
    EXPECT_EQ(fired, 1);
}

}  // namespace

}  // namespace brisel::tests
