// Fuzz target: any bytes, as a scenario under all rules.
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <sstream>

#include "tests/fuzz/Must.h"
#include "tests/rules/WatchedScenario.h"

namespace {

using brisel::simulator::CommandSource;
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
    brisel::tests::WatchedScenario scenario(source, {});
    scenario.run();
    for (const auto& sentence : scenario.broken())
        std::cerr << sentence << '\n';
    brisel::tests::must(scenario.broken().empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    runScenario(std::string(data, data + size));
    return 0;
}
