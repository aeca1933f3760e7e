// Every scenario again, with each call that can fail failing in turn.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>

#include "tests/faults/FaultExpectations.h"
#include "tests/faults/ScenarioAndProbe.h"
#include "tests/rules/WatchedScenario.h"

namespace brisel::tests {

namespace {

using Lines = std::vector<std::string>;
using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::StartsWith;

Lines scenarioNames() {
    Lines names;
    for (const auto& entry : std::filesystem::directory_iterator(BRISEL_SCENARIO_FOLDER)) {
        if (entry.path().extension() == ".scenario") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

Lines readLines(const std::filesystem::path& file) {
    std::ifstream stream(file);
    Lines lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// One run of a scenario with one of its calls failing.
class FaultyRun {
  public:
    /// `failing` counts from 1; with 0 no call fails.
    FaultyRun(const Lines& commands, std::size_t failing)
        : source_(commands, transcript_),
          watched_(source_, {.line = [this](const std::string& line) { hear(line); }}) {
        mac().faults.failCall(failing);
        watched_.run();
        mac().mainLoop.post([this] { loopTurned_ = true; });
        mac().mainLoop.turnUntilIdle();
    }

    [[nodiscard]] const platform::simulated::Faults& faults() { return mac().faults; }
    [[nodiscard]] const platform::Bundle& bundle() { return mac().bundle; }
    [[nodiscard]] const Lines& brokenRules() const { return watched_.broken(); }
    [[nodiscard]] bool loopTurned() const { return loopTurned_; }

    /// Whether the program, or the simulation before it was started, has ended.
    [[nodiscard]] bool hasEnded() {
        const bool terminated =
            std::find(transcript_.begin(), transcript_.end(), "terminate") != transcript_.end();
        return terminated || !watched_.scenario().program().started();
    }

    /// Up to the probe, where the fault came before it.
    [[nodiscard]] std::span<const std::string> linesAfterTheFault() const {
        const auto probed = transcript_.size() - linesOfTheProbe().size();
        const auto end = probed >= linesBeforeFault_ ? probed : transcript_.size();
        return std::span(transcript_).first(end).subspan(std::min(linesBeforeFault_, end));
    }
    /// What came of the probe; empty when nothing did.
    [[nodiscard]] Lines linesOfTheProbe() const {
        const auto appeared = std::string("log: disk ") + ScenarioAndProbe::ProbeDevice;
        const auto found =
            std::find(transcript_.begin(), transcript_.end(), appeared + " appeared");
        return {found, transcript_.end()};
    }

  private:
    void hear(const std::string& line) {
        if (line.starts_with("> ")) return;
        if (faults().struck().empty()) linesBeforeFault_ = transcript_.size() + 1;
        transcript_.push_back(line);
    }

    platform::simulated::Mac& mac() { return watched_.scenario().mac(); }

    Lines transcript_;
    std::size_t linesBeforeFault_ = 0;
    bool loopTurned_ = false;
    ScenarioAndProbe source_;
    WatchedScenario watched_;
};

void checkThatTheProgramLives(FaultyRun& run) {
    EXPECT_THAT(run.brokenRules(), IsEmpty());
    EXPECT_TRUE(run.loopTurned());
    if (run.hasEnded()) return;
    const auto lines = run.linesOfTheProbe();
    if (run.faults().struck() == "createSession") {
        EXPECT_TRUE(lines.empty()) << "a session that was not opened reports a disk";
        return;
    }
    EXPECT_THAT(lines, Contains(StartsWith("menu: "))) << "the probe did not rebuild the menu";
}

void checkThatTheFaultWasTold(FaultyRun& run) {
    const auto& call = run.faults().struck();
    const auto* const expectation = expectationFor(call);
    ASSERT_NE(expectation, nullptr) << "what is to follow a failed " << call << '?';
    // The completion of a request dies with a program that ends before it.
    if (expectation->comes == Comes::WithCompletion && run.hasEnded()) return;
    const auto lines = run.linesAfterTheFault();
    EXPECT_TRUE(isMet(*expectation, lines, run.bundle()))
        << "the failed " << call << " was not told; after it came\n"
        << ::testing::PrintToString(Lines(lines.begin(), lines.end()));
}

class FaultWalk : public ::testing::TestWithParam<std::string> {
  protected:
    [[nodiscard]] static Lines commands() {
        return readLines(std::filesystem::path(BRISEL_SCENARIO_FOLDER) /
                         (GetParam() + ".scenario"));
    }
};

std::string testName(const ::testing::TestParamInfo<std::string>& scenario) {
    auto name = scenario.param;
    std::replace_if(
        name.begin(), name.end(),
        [](unsigned char character) { return std::isalnum(character) == 0; }, '_');
    return name;
}

TEST_P(FaultWalk, LeavesTheProgramAliveAndTellsOfEachFault) {
    const auto lines = commands();
    FaultyRun plain(lines, 0);
    checkThatTheProgramLives(plain);
    const auto calls = plain.faults().calls();
    for (std::size_t failing = 1; failing <= calls; ++failing) {
        FaultyRun run(lines, failing);
        SCOPED_TRACE("call " + std::to_string(failing) + ", " + run.faults().struck());
        checkThatTheProgramLives(run);
        checkThatTheFaultWasTold(run);
        if (HasFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Scenario, FaultWalk, ::testing::ValuesIn(scenarioNames()), testName);

TEST(ScenarioFolder, HoldsScenariosToWalk) {
    EXPECT_FALSE(scenarioNames().empty());
}

}  // namespace
}  // namespace brisel::tests
