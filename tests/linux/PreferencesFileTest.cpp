// The preferences file, and its recovery from damage.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <sstream>

#include "platform/headless/SystemLog.h"
#include "platform/headless/UserDefaults.h"
#include "tests/linux/TemporaryFolder.h"
#include "volumes/VolumeListHelper.h"

namespace brisel::platform::headless {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PreferencesFile : public testing::Test {
  protected:
    void write(const std::string& text) const { std::ofstream(path_) << text; }
    [[nodiscard]] static std::string read(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }
    [[nodiscard]] UserDefaults open() {
        UserDefaults defaults(log_, path_);
        defaults.registerDefaults({{"showDisclaimer", true}, {"shouldStartAtLogin", false}});
        return defaults;
    }

    tests::TemporaryFolder folder_;
    std::string path_ = folder_.path() + "/preferences.conf";
    std::vector<std::string> logged_;
    SystemLog log_{[this](const std::string& text) { logged_.push_back(text); }};
};

TEST_F(PreferencesFile, ThatIsMissingMeansDefaultsWithoutALogEntry) {
    EXPECT_TRUE(open().boolForKey("showDisclaimer"));
    EXPECT_THAT(logged_, IsEmpty());
}

TEST_F(PreferencesFile, KeepsWhatWasSetAcrossRuns) {
    {
        auto defaults = open();
        defaults.setBool("showDisclaimer", false);
        defaults.setStringArray("volumeList", std::make_shared<const std::vector<std::string>>(
                                                  std::vector<std::string>{"A-1", "B;2"}));
    }
    const auto defaults = open();
    EXPECT_FALSE(defaults.boolForKey("showDisclaimer"));
    EXPECT_THAT(*defaults.stringArrayForKey("volumeList"), ElementsAre("A-1", "B;2"));
}

TEST_F(PreferencesFile, IsMadeWithTheFoldersAboveIt) {
    path_ = folder_.path() + "/a/b/preferences.conf";
    open().setBool("showDisclaimer", false);
    EXPECT_FALSE(open().boolForKey("showDisclaimer"));
}

TEST_F(PreferencesFile, ThatIsMalformedIsSetAsideAndLogged) {
    write("no key file at all\n");
    auto defaults = open();
    EXPECT_TRUE(defaults.boolForKey("showDisclaimer"));
    EXPECT_EQ(read(path_ + ".malformed"), "no key file at all\n");
    ASSERT_EQ(logged_.size(), 2U);
    EXPECT_THAT(logged_[0], HasSubstr("cannot be read"));
    EXPECT_THAT(logged_[1], HasSubstr(path_ + ".malformed"));
    defaults.setBool("showDisclaimer", false);
    EXPECT_FALSE(open().boolForKey("showDisclaimer"));
}

TEST_F(PreferencesFile, OfNullBytesIsSetAsideToo) {
    write(std::string(60, '\0'));
    EXPECT_TRUE(open().boolForKey("showDisclaimer"));
    EXPECT_EQ(read(path_ + ".malformed"), std::string(60, '\0'));
    EXPECT_EQ(logged_.size(), 2U);
}

TEST_F(PreferencesFile, ThatIsAPipeDoesNotBlock) {
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    EXPECT_TRUE(open().boolForKey("showDisclaimer"));
    EXPECT_EQ(logged_.size(), 2U);
}

TEST_F(PreferencesFile, LosesWhatAKilledWriteLeftAndNothingElse) {
    const std::vector<std::string> left{".aB3dE9", ".ABCDEf", ".00000a"};
    const std::vector<std::string> kept{".backup", ".Backup",   ".BACKUP", ".202611",
                                        ".Copy02", ".aB3dE9.c", ".aB-dE9", "-aB3dE9"};
    for (const auto& endings : {left, kept}) {
        for (const auto& ending : endings)
            std::ofstream(path_ + ending) << "[Brisel]";
    }
    std::filesystem::create_symlink(path_, path_ + ".LinK00");
    std::filesystem::create_directory(path_ + ".FoldeR");
    static_cast<void>(open());
    for (const auto& ending : left)
        EXPECT_FALSE(std::filesystem::exists(path_ + ending)) << ending;
    for (const auto& ending : kept)
        EXPECT_TRUE(std::filesystem::exists(path_ + ending)) << ending;
    EXPECT_TRUE(std::filesystem::is_symlink(path_ + ".LinK00"));
    EXPECT_TRUE(std::filesystem::exists(path_ + ".FoldeR"));
    EXPECT_THAT(logged_, IsEmpty());
}

TEST_F(PreferencesFile, BehindALinkIsWrittenInPlace) {
    const auto target = folder_.path() + "/elsewhere.conf";
    std::ofstream(target) << "[Brisel]\nshowDisclaimer=true\n";
    std::filesystem::create_symlink(target, path_);
    open().setBool("showDisclaimer", false);
    EXPECT_TRUE(std::filesystem::is_symlink(path_));
    EXPECT_THAT(read(target), HasSubstr("showDisclaimer=false"));
}

TEST_F(PreferencesFile, IsSetAsideUnderAnUnusedName) {
    write("first\n");
    static_cast<void>(open());
    write("second\n");
    static_cast<void>(open());
    EXPECT_EQ(read(path_ + ".malformed"), "first\n");
    EXPECT_EQ(read(path_ + ".malformed-2"), "second\n");
}

TEST_F(PreferencesFile, WithValuesOfTheWrongTypeReadsAsDefaultsAndAsAnEmptyList) {
    write("[Brisel]\nshowDisclaimer=perhaps\nvolumeList=\xFF\xFE\n");
    const auto defaults = open();
    EXPECT_TRUE(defaults.boolForKey("showDisclaimer"));
    EXPECT_EQ(VolumeListHelper::obtain(defaults), nullptr);
    EXPECT_FALSE(VolumeListHelper::contains(defaults, "A"));
}

TEST_F(PreferencesFile, DistinguishesAnEmptyListFromAnAbsentOne) {
    auto defaults = open();
    EXPECT_EQ(defaults.stringArrayForKey("volumeList"), nullptr);
    defaults.setStringArray("volumeList", std::make_shared<const std::vector<std::string>>());
    ASSERT_NE(open().stringArrayForKey("volumeList"), nullptr);
    EXPECT_THAT(*open().stringArrayForKey("volumeList"), IsEmpty());
}

TEST_F(PreferencesFile, ThatCannotBeWrittenIsLoggedAndTheValueHoldsForThisRun) {
    path_ = "/proc/brisel/preferences.conf";
    auto defaults = open();
    defaults.setBool("showDisclaimer", false);
    EXPECT_FALSE(defaults.boolForKey("showDisclaimer"));
    ASSERT_FALSE(logged_.empty());
    EXPECT_THAT(logged_.back(), HasSubstr("cannot be written"));
}

}  // namespace

}  // namespace brisel::platform::headless
