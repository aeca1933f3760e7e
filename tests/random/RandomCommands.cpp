// Makes random commands that fit the state of the scenario they drive.
// SPDX-License-Identifier: MIT
#include "tests/random/RandomCommands.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "tests/random/Vocabulary.h"

namespace brisel::tests {

using namespace vocabulary;

namespace {

constexpr std::string_view ButtonsEvent = "buttons: ";
constexpr std::size_t FewestSteps = 5;
constexpr std::size_t StepsOfAShortOne = 45;

// A long automount list: the program stores at most 128 entries.
RandomCommands::Lines longList(std::size_t length) {
    RandomCommands::Lines uuids;
    for (std::size_t place = 0; place < length; ++place) {
        std::ostringstream uuid;
        uuid << std::hex << std::uppercase << std::setfill('0') << std::setw(8) << place
             << "-0000-0000-0000-000000000000";
        uuids.push_back(uuid.str());
    }
    return uuids;
}

}  // namespace

RandomCommands::RandomCommands(unsigned seed, std::size_t steps)
    : chance_(seed),
      long_(steps > 0),
      stepsBeforeStart_(long_ ? 30 : pick(std::vector<std::size_t>{0, 0, 0, 2, 6})),
      steps_(long_ ? steps : FewestSteps + below(StepsOfAShortOne)) {
    giveBeforeStart();
}

unsigned RandomCommands::below(std::size_t limit) {
    return static_cast<unsigned>(chance_() % limit);
}

std::string RandomCommands::word(const std::string& text) {
    const bool plain = !text.empty() && text.find_first_of(" \t\n\"\\#") == std::string::npos;
    if (plain && below(10) > 0) return text;
    std::string quoted = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '\\') quoted += '\\';
        quoted += letter == '\n' ? std::string("\\n") : std::string(1, letter);
    }
    return quoted + '"';
}

std::string RandomCommands::words(const std::string& name, const Lines& arguments) {
    auto line = name;
    for (const auto& argument : arguments)
        line += ' ' + word(argument);
    return line;
}

void RandomCommands::give(std::string line) {
    next_.push_back([line = std::move(line)] { return line; });
}

void RandomCommands::giveBeforeStart() {
    if (odds(40)) give("system 11");
    if (odds(30)) give(words("home", {pick(Homes)}));
    if (odds(40)) give(words("language", {pick(Languages)}));
    if (odds(80) || long_) give("default showDisclaimer NO");
    if (odds(20))
        give(odds(50) ? "default shouldStartAtLogin YES" : "default shouldStartAtLogin NO");
    if (odds(long_ ? 80 : 40)) {
        const auto listed = odds(long_ ? 50 : 15) ? longList(126 + below(5))
                                                  : Lines{UUIDs[below(3)], UUIDs[below(3)]};
        give(words("default volumeList", listed));
    }
    if (odds(5)) give("launch missing");
}

void RandomCommands::giveEnding() {
    for (const auto& what : Shows)
        give("show " + what);
    if (!long_ && odds(15)) {
        next_.emplace_back([this] {
            badCommandGiven_ = true;
            return pick(BadCommands);
        });
    } else if (long_ || odds(30)) {
        give("quit");
    }
}

void RandomCommands::hear(const std::string& line) {
    if (line == "log: List count: 128") covered_.insert("a full automount list");
    if (!line.starts_with(ButtonsEvent)) return;
    buttons_.clear();
    for (auto rest = line.substr(ButtonsEvent.size()); !rest.empty();) {
        const auto end = rest.find(" | ");
        buttons_.push_back(rest.substr(0, end));
        rest = end == std::string::npos ? "" : rest.substr(end + 3);
    }
}

void RandomCommands::forgetBadCommand() {
    if (!badCommandGiven_) given_.pop_back();
}

std::optional<std::string> RandomCommands::nextLine(const std::string& prompt) {
    prompt_ = prompt;
    auto line = badCommandGiven_ ? std::nullopt : nextCommand();
    if (!line) return std::nullopt;
    given_.push_back(*line);
    const auto name = line->substr(0, line->find(' '));
    covered_.insert(name);
    if (name == "detach") covered_.insert(moment());
    return line;
}

std::optional<std::string> RandomCommands::nextCommand() {
    for (;;) {
        std::optional<std::string> line;
        if (!next_.empty()) {
            const auto make = std::move(next_.front());
            next_.pop_front();
            line = make();
        } else if (stepsBeforeStart_ > 0) {
            --stepsBeforeStart_;
            line = stepOfTheSurroundings();
        } else if (!startGiven_) {
            startGiven_ = true;
            line = "start";
        } else if (steps_ > 0) {
            --steps_;
            line = step();
        } else if (!endingGiven_) {
            endingGiven_ = true;
            giveEnding();
        } else {
            return std::nullopt;
        }
        if (line) return line;
    }
}

std::string RandomCommands::moment() const {
    if (!scenario_->program().started()) return "before the start";
    if (prompt_ == AlertPrompt) return "under an alert";
    if (prompt_ == PasswordPrompt) return "under the password prompt";
    if (holding_) return "with completions held back";
    return scenario_->program().manager()->inProgress() ? "while busy" : "at rest";
}

}  // namespace brisel::tests
