// What operations leave behind.
// SPDX-License-Identifier: MIT
#include "tests/rules/OperationRules.h"

#include <algorithm>

namespace brisel::tests {

using simulator::Words;

namespace {

bool isLaunchFailure(const std::string& line) {
    return line == "log: mount command cancelled by user" ||
           line == "log: something went wrong with mount command launch";
}

}  // namespace

void BusyRule::hear(const std::string& line) {
    check(line);
    if (auto next = consequence(line)) wanted_ = std::move(next);
    // A red icon comes before the alert of a failed operation.
    if (line.starts_with("icon: brisel-status-red")) failure_ = true;
    if (line.starts_with("menu: ")) failure_ = false;
}

void BusyRule::rest(bool blocked) {
    blocked_ = blocked;
}

void BusyRule::check(const std::string& line) {
    if (!wanted_ || (wanted_->withMenu && !line.starts_with("menu: "))) return;
    require(inProgress() == wanted_->busy,
            std::string(wanted_->busy ? "The program is not busy after "
                                      : "The program is busy after ") +
                wanted_->because + ".");
    wanted_.reset();
}

std::optional<BusyRule::Wanted> BusyRule::consequence(const std::string& line) const {
    if (const auto command = after("> ", line)) return consequenceOfCommand(*command);
    if (line.starts_with("open: ") || isLaunchFailure(line)) {
        return Wanted{.busy = false, .withMenu = true, .because = line};
    }
    const bool endsBusy = line.starts_with("log: Disk not mountable!") ||
                          line.starts_with("log: Unable to create folder: ");
    if (endsBusy) {
        return Wanted{.busy = inProgress(), .withMenu = false, .because = line};
    }
    return std::nullopt;
}

std::optional<BusyRule::Wanted> BusyRule::consequenceOfCommand(const std::string& command) const {
    if (manager() == nullptr) return std::nullopt;
    const auto words = simulator::splitIntoWords(command);
    if (!words || words->empty()) return std::nullopt;
    if (words->front() == "press" && failure_) {
        return Wanted{.busy = false, .withMenu = false, .because = command};
    }
    if (blocked_ || !startsOperation(*words)) return std::nullopt;
    return Wanted{.busy = true, .withMenu = false, .because = command};
}

bool BusyRule::startsOperation(const Words& command) const {
    if (command[0] == "respond") return command.size() == 2 && command[1] == "DO_MOUNT";
    if (command[0] != "choose" || command.size() != 2) return false;
    const auto& items = mac().statusMenu.items();
    const auto chosen = std::find_if(items.begin(), items.end(), [&](const auto& item) {
        return !item.separator && item.title == command[1];
    });
    return chosen != items.end() &&
           (chosen->action == "remountVolume:" || chosen->action == "cleanupFinderInfo:");
}

void FolderRule::hear(const std::string& line) {
    if (const auto folder = after("mkdir: ", line)) checkPlace(*folder);
    if (const auto folder = after("delete: ", line)) {
        checkPlace(*folder);
        require(launchFailed_ || mac().fileSystem.entryCount(*folder) == 0,
                "A folder that is not empty is deleted: " + *folder);
    }
    launchFailed_ = isLaunchFailure(line);
}

void FolderRule::checkPlace(const std::string& folder) const {
    const auto mountFolder = mac().fileManager.homeDirectory() + "/.brisel/";
    require(folder.starts_with(mountFolder), "A folder elsewhere is touched: " + folder);
}

void AutomountRule::rest(bool /*blocked*/) {
    constexpr std::size_t Most = 128;
    const auto list = mac().userDefaults.stringArrayForKey("volumeList");
    const auto size = list ? list->size() : 0;
    // A list that was longer before may stay so.
    require(manager() == nullptr || size <= std::max(Most, before_),
            "The automount list has grown to " + std::to_string(size) + ".");
    before_ = size;
}

}  // namespace brisel::tests
