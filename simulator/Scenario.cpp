// Runs a scenario.
// SPDX-License-Identifier: MIT
#include "simulator/Scenario.h"

#include <utility>

#include "platform/simulated/ProgramEnded.h"
#include "simulator/DirectProgram.h"

namespace brisel::simulator {

using platform::simulated::ProgramEnded;

namespace {

Complaint complaintAboutMoment(const Command& command, const Stage& stage) {
    const bool started = stage.program.started();
    if (command.when == When::BeforeStart && started) return "the program has been started already";
    if (command.when != When::Running) return std::nullopt;
    if (!started) return "the program has not been started";
    if (stage.blocked()) return "an alert or prompt is up";
    return std::nullopt;
}

}  // namespace

Scenario::Scenario(CommandSource& source, Output output, Options options)
    : source_(source),
      output_(std::move(output)),
      options_(std::move(options)),
      mac_(*this),
      program_(options_.makeProgram(*this)),
      stage_{.mac = mac_, .program = *program_} {
    mac_.transcript.keepNothing();
    mac_.transcript.setListener(output_);
}

std::unique_ptr<Program> Scenario::makeDirectProgram(Scenario& scenario) {
    return std::make_unique<DirectProgram>(scenario.mac());
}

bool Scenario::run() {
    try {
        while (step()) {
        }
    } catch (const ProgramEnded&) {
    }
    return !stopped_;
}

bool Scenario::step() {
    const auto line = source_.nextLine(prompt());
    if (!line) return false;
    ++lineNumber_;
    if (const auto complaint = carryOut(*line)) {
        options_.badCommandHandler({.line = lineNumber_, .complaint = *complaint});
        if (options_.onBadCommand == OnBadCommand::Stop) {
            stopped_ = true;
            program_->end();
        }
    }
    if (stage_.blocked()) {
        program_->turnWhileBlocked();
    } else {
        program_->turnUntilIdle();
    }
    options_.afterCommand();
    return true;
}

Complaint Scenario::carryOut(const std::string& line) {
    if (line.starts_with('#')) return std::nullopt;
    auto words = splitIntoWords(line);
    if (words && words->empty()) return std::nullopt;
    if (options_.echo == Echo::Commands) output_("> " + line);
    if (!words) return "a quote does not end";
    const auto name = words->front();
    words->erase(words->begin());
    if (options_.onBadCommand == OnBadCommand::GoOn) {
        if (name == "help") return help();
        // A user at a terminal may quit before the start.
        if (name == "quit" && !program_->started()) program_->end();
    }
    const auto* const command = findCommand(name);
    if (command == nullptr) return "there is no command \"" + name + "\"";
    if (auto complaint = complaintAboutMoment(*command, stage_)) return complaint;
    return command->carryOut(stage_, *words);
}

Complaint Scenario::help() const {
    for (const auto& table :
         {programCommands(), diskCommands(), surroundingsCommands(), lookingCommands()}) {
        for (const auto& command : table) {
            output_("  " + std::string(command.usage));
            output_("      " + std::string(command.purpose));
        }
    }
    return std::nullopt;
}

std::string Scenario::prompt() const {
    if (stage_.alert != nullptr) return "alert> ";
    return stage_.passwordPromptIsUp ? "password> " : "brisel> ";
}

int Scenario::answerAlert(const platform::AlertContent& alert) {
    stage_.alert = &alert;
    const int button = readUntilAnswered();
    stage_.alert = nullptr;
    return button;
}

platform::OSStatus Scenario::answerPasswordPrompt(const std::string& /*right*/) {
    stage_.passwordPromptIsUp = true;
    const int status = readUntilAnswered();
    stage_.passwordPromptIsUp = false;
    return status;
}

int Scenario::readUntilAnswered() {
    stage_.answer.reset();
    while (!stage_.answer) {
        // The commands ended without an answer.
        if (!step()) program_->end();
    }
    return *stage_.answer;
}

}  // namespace brisel::simulator
