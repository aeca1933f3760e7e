// The program on a simulated Mac, for tests.
// SPDX-License-Identifier: MIT
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {

int ScriptedPerson::answerAlert(const platform::AlertContent& alert) {
    alertsSeen.push_back(alert);
    return whenAlertShows ? whenAlertShows(alert) : 0;
}

platform::OSStatus ScriptedPerson::answerPasswordPrompt(const std::string& /*right*/) {
    ++passwordPromptsSeen;
    return whenPasswordIsAsked ? whenPasswordIsAsked() : platform::errAuthorizationSuccess;
}

void SimulatedProgram::start() {
    mac.userDefaults.store("showDisclaimer", false);
    program.start();
    turn();
}

void SimulatedProgram::attachNTFS(const std::string& device, const std::string& name,
                                  const std::string& volumeUUID) {
    platform::simulated::DiskArbitration::Properties properties;
    properties.description.volumeMountable = true;
    properties.description.volumeKind = "ntfs";
    properties.description.volumeName = name;
    properties.description.volumePath.emplace("/Volumes/" + name);
    if (!volumeUUID.empty()) properties.description.volumeUUID = volumeUUID;
    mac.diskArbitration.attach(device, std::move(properties));
}

std::vector<std::string> SimulatedProgram::newLines() {
    const auto& lines = mac.transcript.lines();
    std::vector<std::string> fresh(lines.begin() + static_cast<std::ptrdiff_t>(linesSeen_),
                                   lines.end());
    linesSeen_ = lines.size();
    return fresh;
}

std::vector<std::string> SimulatedProgram::newLogLines() {
    constexpr std::string_view Prefix = "log: ";
    std::vector<std::string> logged;
    for (const auto& line : newLines()) {
        if (line.starts_with(Prefix)) logged.push_back(line.substr(Prefix.size()));
    }
    return logged;
}

}  // namespace brisel::tests
