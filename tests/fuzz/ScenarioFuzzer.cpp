// Fuzz target: any bytes, as a scenario.
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <sstream>

#include "simulator/Scenario.h"
#include "tests/fuzz/Invariants.h"

namespace {

using brisel::simulator::CommandSource;
using brisel::simulator::Scenario;
using brisel::simulator::StreamSource;

/// The first lines of a stream. Each line may start a real child process, so few will do.
class FewLines final : public CommandSource {
  public:
    explicit FewLines(std::istream& stream) : lines_(stream) {}

    std::optional<std::string> nextLine(const std::string& prompt) override {
        constexpr int MostLines = 64;
        if (++count_ > MostLines) return std::nullopt;
        return lines_.nextLine(prompt);
    }

  private:
    StreamSource lines_;
    int count_ = 0;
};

void runScenario(const std::string& text) {
    std::istringstream stream(text);
    FewLines source(stream);
    Scenario* running = nullptr;
    Scenario::Manner manner{.onBadCommand = Scenario::OnBadCommand::GoOn,
                            .echo = Scenario::Echo::Commands,
                            .badCommandHandler = [](const Scenario::BadCommand&) {},
                            .afterCommand =
                                [&running] {
                                    const auto* const manager = running->program().manager();
                                    if (manager == nullptr) return;
                                    brisel::tests::checkInvariants(*manager, running->mac());
                                }};
    Scenario scenario(
        source, [](const std::string&) {}, manner);
    running = &scenario;
    scenario.run();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    runScenario(std::string(data, data + size));
    return 0;
}
