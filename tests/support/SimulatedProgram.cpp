// The program on a simulated Mac, for tests.
// SPDX-License-Identifier: MIT
#include "tests/support/SimulatedProgram.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/Format.h"

namespace brisel::tests {

DiskProperties ntfsDisk(const std::string& name, const std::string& volumeUUID) {
    DiskProperties properties;
    properties.description.volumeMountable = true;
    properties.description.volumeKind = "ntfs";
    properties.description.volumeName = name;
    properties.description.volumePath.emplace("/Volumes/" + name);
    if (!volumeUUID.empty()) properties.description.volumeUUID = volumeUUID;
    return properties;
}

platform::MenuItem senderFor(const std::shared_ptr<NTFSVolume>& volume) {
    platform::MenuItem item;
    item.representedObject = volume;
    return item;
}

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
    mac.diskArbitration.attach(device, ntfsDisk(name, volumeUUID));
}

void SimulatedProgram::attachQuietly(const std::string& device, const std::string& name,
                                     const std::string& volumeUUID) {
    attachNTFS(device, name, volumeUUID);
    turn();
    forgetLines();
}

void SimulatedProgram::choose(const std::string& title) {
    const auto& items = mac.statusMenu.items();
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) {
        return item.title == title && item.target;
    });
    if (found == items.end()) {
        ADD_FAILURE() << "no menu item \"" << title << "\" in " << menuTitles();
        return;
    }
    platform::common::choose(*found);
    turn();
}

void SimulatedProgram::respond(const std::string& action, const std::string& device) {
    mac.userNotificationCenter.respond({.requestIdentifier = "mount",
                                        .actionIdentifier = action,
                                        .userInfo = {{"volume", device}}});
    turn();
}

std::shared_ptr<NTFSVolume> SimulatedProgram::volume(std::size_t index) {
    return manager().volumes().at(index);
}

std::string SimulatedProgram::menuTitles() const {
    std::string text;
    for (const auto& item : mac.statusMenu.items()) {
        if (!text.empty()) text += " | ";
        text += item.separator ? "---" : item.title;
    }
    return text;
}

std::vector<std::string> SimulatedProgram::labels() {
    std::vector<std::string> texts;
    for (const auto& record : manager().volumes())
        texts.push_back(platform::orNullText(record->label()));
    return texts;
}

std::vector<std::string> SimulatedProgram::devices() {
    std::vector<std::string> texts;
    for (const auto& record : manager().volumes())
        texts.push_back(platform::orNullText(record->deviceNode()));
    return texts;
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
