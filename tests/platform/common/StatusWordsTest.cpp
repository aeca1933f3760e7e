// Status descriptions, and the termination of the application.
// SPDX-License-Identifier: MIT
#include "platform/common/StatusWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/common/Application.h"
#include "platform/common/Bundle.h"

namespace brisel::platform::common {

namespace {

TEST(StatusWords, SayWhatTheColourOfTheImageMeans) {
    const std::vector<std::pair<std::string, std::string>> words{{"grey", "no NTFS volume"},
                                                                 {"green", "a volume is read-only"},
                                                                 {"blue", "a volume is writable"},
                                                                 {"orange", "working"},
                                                                 {"red", "something went wrong"}};
    for (const auto& [colour, expected] : words) {
        for (const char* const appearance : {"-dark", "-light"}) {
            const auto image = "brisel-status-" + colour + appearance;
            EXPECT_TRUE(Bundle().hasImage(image));
            EXPECT_EQ(statusWords(image), expected);
        }
    }
}

TEST(StatusWords, AreAbsentForAnyOtherImage) {
    EXPECT_EQ(statusWords(""), "");
    EXPECT_EQ(statusWords("blue"), "");
    EXPECT_EQ(statusWords("brisel-status"), "");
}

TEST(StatusWords, AreThereInEveryLanguage) {
    for (const auto& table : embeddedTables()) {
        Bundle bundle;
        bundle.setLanguage(table.language);
        for (const char* const colour : {"-grey-", "-green-", "-blue-", "-orange-", "-red-"}) {
            const auto key = statusWords(colour);
            const bool isTranslated = bundle.localizedString(key) != key;
            EXPECT_EQ(isTranslated, table.language != "en") << table.language << " " << key;
        }
    }
}

class QuietApplication final : public Application {
  public:
    void orderFrontStandardAboutPanel() override {}
};

TEST(TheApplication, EndsOnceAfterItsLastStep) {
    QuietApplication application;
    std::vector<std::string> events;
    application.setTerminationStep([&] {
        events.emplace_back("step");
        application.terminate();
    });
    application.setEnd([&] { events.emplace_back("end"); });
    EXPECT_FALSE(application.terminated());
    application.terminate();
    application.terminate();
    EXPECT_TRUE(application.terminated());
    EXPECT_THAT(events, testing::ElementsAre("step", "end"));
}

TEST(TheApplication, EndsWithoutAnythingToDo) {
    QuietApplication application;
    application.terminate();
    EXPECT_TRUE(application.terminated());
}

}  // namespace

}  // namespace brisel::platform::common
