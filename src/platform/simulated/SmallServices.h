// The services of the simulated Mac that do little more than tell what was asked of them.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Alert.h"
#include "platform/Application.h"
#include "platform/LoginItems.h"
#include "platform/ScriptRunner.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/Person.h"
#include "platform/simulated/Transcript.h"
#include "platform/SystemLog.h"
#include "platform/SystemVersion.h"
#include "platform/Workspace.h"

namespace brisel::platform::simulated {

class Alert final : public platform::Alert {
  public:
    Alert(Transcript& transcript, Person& person) : transcript_(transcript), person_(person) {}
    int runModal(const AlertContent& content) override;

  private:
    Transcript& transcript_;
    Person& person_;
};

class Application final : public platform::Application {
  public:
    explicit Application(Transcript& transcript) : transcript_(transcript) {}
    /// Throws ProgramEnded after the termination step.
    void terminate() override;
    void activateIgnoringOtherApps() override { transcript_.write("activate"); }
    void orderFrontStandardAboutPanel() override { transcript_.write("about"); }

    /// What the application's delegate does before the end.
    void setTerminationStep(std::function<void()> step) { terminationStep_ = std::move(step); }

  private:
    Transcript& transcript_;
    std::function<void()> terminationStep_;
};

class LoginItems final : public platform::LoginItems {
  public:
    LoginItems(Transcript& transcript, Faults& faults) : transcript_(transcript), faults_(faults) {}
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;

    enum class Answer { Accept, Refuse };
    void setAnswer(Answer answer) { answer_ = answer; }

  private:
    Transcript& transcript_;
    Faults& faults_;
    Answer answer_ = Answer::Accept;
};

class ScriptRunner final : public platform::ScriptRunner {
  public:
    using ErrorDictionary = std::vector<std::pair<std::string, std::string>>;

    ScriptRunner(Transcript& transcript, Faults& faults)
        : transcript_(transcript), faults_(faults) {}
    [[nodiscard]] ScriptResult execute(const std::string& source) override;

    /// Lets the next script fail with this error.
    void failNext(ErrorDictionary error) { nextError_ = std::move(error); }

  private:
    Transcript& transcript_;
    Faults& faults_;
    std::optional<ErrorDictionary> nextError_;
};

class SystemLog final : public platform::SystemLog {
  public:
    explicit SystemLog(Transcript& transcript) : transcript_(transcript) {}
    void write(const std::string& text) override { transcript_.record("log: %@", text); }

  private:
    Transcript& transcript_;
};

class SystemVersion final : public platform::SystemVersion {
  public:
    [[nodiscard]] bool isMacOS12OrLater() const override { return macOS12OrLater_; }
    void setMacOS12OrLater(bool answer) { macOS12OrLater_ = answer; }

  private:
    bool macOS12OrLater_ = true;
};

class Workspace final : public platform::Workspace {
  public:
    explicit Workspace(Transcript& transcript) : transcript_(transcript) {}
    void openURL(const std::optional<FileURL>& url) override {
        transcript_.record("open: %@", url);
    }

  private:
    Transcript& transcript_;
};

}  // namespace brisel::platform::simulated
