// The script runner: the command lines it accepts, and the arguments it passes.
// SPDX-License-Identifier: MIT
#include "platform/headless/ScriptRunner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/headless/FileManager.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::headless {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

std::string scriptOf(const std::string& command) {
    return "do shell script \"" + command + '"';
}

/// A stand-in for xattr writes its arguments to a file, one per line.
class Script : public testing::Test {
  protected:
    Script() { makeProgram("for argument; do echo \"$argument\"; done >" + told_); }

    void makeProgram(const std::string& body) const {
        std::ofstream(program_) << "#!/bin/sh\n" << body << '\n';
        fs::permissions(program_, fs::perms::owner_all);
    }
    [[nodiscard]] ScriptResult cleanUp(const std::string& path) {
        return runner_.execute(scriptOf("xattr -cr " + path));
    }
    [[nodiscard]] std::vector<std::string> arguments() const {
        std::ifstream file(told_);
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(line);
        return lines;
    }

    tests::TemporaryFolder folder_;
    std::string program_ = folder_.path() + "/stand-in";
    std::string told_ = folder_.path() + "/told";
    std::string volumes_ = folder_.path() + "/.brisel";
    FileManager files_{folder_.path()};
    ScriptRunner runner_{files_, program_};
};

TEST(AScript, IsTheCommandBetweenTheQuotes) {
    EXPECT_EQ(shellCommandOf(R"(do shell script "xattr -cr /a/My Data")"), "xattr -cr /a/My Data");
    EXPECT_EQ(shellCommandOf(R"(do shell script "a \"b\" \\c")"), R"(a "b" \c)");
}

TEST(AScript, ThatIsAnythingElseIsRejected) {
    EXPECT_EQ(shellCommandOf(R"(do shell script "a" & "b")"), std::nullopt);
    EXPECT_EQ(shellCommandOf(R"(do shell script "a)"), std::nullopt);
    EXPECT_EQ(shellCommandOf(R"(do shell script "a\)"), std::nullopt);
    EXPECT_EQ(shellCommandOf("beep"), std::nullopt);
}

TEST(AScript, IsSplitAtBlanksAsAShellDoes) {
    EXPECT_THAT(wordsOf("xattr -cr /a/My  Data\n"), ElementsAre("xattr", "-cr", "/a/My", "Data"));
    EXPECT_THAT(wordsOf(" \t"), IsEmpty());
}

TEST_F(Script, RunsTheProgramOnTheVolumesFolder) {
    EXPECT_FALSE(cleanUp(volumes_ + "/Data").error.has_value());
    EXPECT_THAT(arguments(), ElementsAre("-cr", volumes_ + "/Data"));
    EXPECT_FALSE(cleanUp(files_.volumesDirectory() + "/Data").error.has_value());
    EXPECT_THAT(arguments(), ElementsAre("-cr", files_.volumesDirectory() + "/Data"));
}

TEST_F(Script, PassesALabelWithASpaceAsTwoPaths) {
    EXPECT_FALSE(cleanUp(volumes_ + "/My " + volumes_ + "/Data").error.has_value());
    EXPECT_THAT(arguments(), ElementsAre("-cr", volumes_ + "/My", volumes_ + "/Data"));
}

TEST_F(Script, NeverRunsALabelAsACommand) {
    const auto proof = folder_.path() + "/proof";
    for (const auto& label : {"$(touch${IFS}" + proof + ")", "`touch\t" + proof + "`",
                              "x;touch\t" + proof, "x\ntouch " + proof, "x&&>" + proof}) {
        static_cast<void>(cleanUp(volumes_ + "/" + label));
    }
    EXPECT_FALSE(fs::exists(proof));
}

TEST_F(Script, RefusesAPathThatIsOnNoVolume) {
    for (const auto& path : {volumes_ + "/../..", volumes_ + "/..", volumes_, volumes_ + "/",
                             volumes_ + "/.", volumes_ + "/My Data", volumes_ + "/x -r",
                             volumes_ + "-other/Data", std::string("/etc"), std::string("Data")}) {
        const auto result = cleanUp(path);
        ASSERT_TRUE(result.error.has_value()) << path;
        EXPECT_THAT(result.error->front().second,
                    HasSubstr("Not in a folder that volumes are mounted in"))
            << path;
        EXPECT_THAT(arguments(), IsEmpty()) << path;
    }
}

TEST_F(Script, RefusesAnyOtherCommand) {
    for (const auto& command : {"rm -rf " + volumes_ + "/Data", "xattr -w " + volumes_ + "/Data",
                                std::string("xattr -cr"), std::string()}) {
        EXPECT_TRUE(runner_.execute(scriptOf(command)).error.has_value()) << command;
    }
    EXPECT_THAT(runner_.execute("beep").error->back(), Pair("NSAppleScriptErrorNumber", "-2741"));
    EXPECT_THAT(arguments(), IsEmpty());
}

TEST_F(Script, ThatFailsReportsItsOutputAndStatus) {
    makeProgram("echo no such thing >&2; exit 3");
    const auto result = cleanUp(volumes_ + "/Data");
    ASSERT_TRUE(result.error.has_value());
    EXPECT_THAT(*result.error, ElementsAre(Pair("NSAppleScriptErrorMessage", "no such thing"),
                                           Pair("NSAppleScriptErrorNumber", "3")));
}

TEST_F(Script, WhoseProgramIsMissingFails) {
    fs::remove(program_);
    EXPECT_TRUE(cleanUp(volumes_ + "/Data").error.has_value());
}

}  // namespace

}  // namespace brisel::platform::headless
