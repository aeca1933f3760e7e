// Commands that print the program's state.
// SPDX-License-Identifier: MIT
#include <array>

#include "platform/Format.h"
#include "simulator/Commands.h"

namespace brisel::simulator {

namespace {

const char* yesOrNo(bool value) {
    return value ? "yes" : "no";
}

std::string itemLine(const platform::MenuItem& item) {
    auto line = platform::stringWithFormat("item: tag=%i", item.tag);
    if (item.separator) return line + " ---";
    line += platform::stringWithFormat(R"( title="%@")", item.title);
    if (!item.action.empty()) line += platform::stringWithFormat(" action=%@", item.action);
    const auto volume = volumeOf(item);
    if (volume) line += " volume=" + platform::orNullText(volume->deviceNode());
    if (item.alignment) line += platform::stringWithFormat(" align=%i", *item.alignment);
    if (item.checked) line += " checked";
    return line;
}

void showMenu(const Stage& stage) {
    for (const auto& item : stage.program.menuItems()) {
        stage.mac.transcript.write(itemLine(item));
    }
}

void showVolumes(const Stage& stage) {
    if (stage.program.manager() == nullptr) return;
    for (const auto& volume : stage.program.manager()->volumes()) {
        stage.mac.transcript.record(R"(volume: %@ label="%@" uuid=%@ writable=%@ sent=%@ path=%@)",
                                    volume->deviceNode(), volume->label(), volume->uuid(),
                                    yesOrNo(volume->writable()),
                                    yesOrNo(volume->notificationSent()), volume->volumePath());
    }
}

void showProgress(const Stage& stage) {
    const auto* const manager = stage.program.manager();
    const bool inProgress = manager != nullptr && manager->inProgress();
    stage.mac.transcript.record("progress: %@", yesOrNo(inProgress));
}

void showDefaults(const Stage& stage) {
    for (const auto& line : stage.mac.userDefaults.stored()) {
        stage.mac.transcript.record("default: %@", line);
    }
}

void showFolders(const Stage& stage) {
    const auto mountFolder = stage.mac.fileManager.homeDirectory() + "/.brisel";
    for (const auto& folder : stage.mac.fileSystem.foldersFrom(mountFolder)) {
        stage.mac.transcript.record("folder: %@", folder);
    }
}

struct View {
    std::string_view name;
    void (*show)(const Stage& stage);
};

constexpr std::array Views{View{"menu", showMenu}, View{"volumes", showVolumes},
                           View{"progress", showProgress}, View{"defaults", showDefaults},
                           View{"folders", showFolders}};

Complaint show(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("show");
    for (const auto& view : Views) {
        if (arguments[0] != view.name) continue;
        view.show(stage);
        return std::nullopt;
    }
    return misused("show");
}

constexpr std::array LookingTable{Command{"show", When::AnyTime,
                                          "show menu|volumes|progress|defaults|folders",
                                          "prints the state of things", show}};

}  // namespace

std::span<const Command> lookingCommands() {
    return LookingTable;
}

}  // namespace brisel::simulator
