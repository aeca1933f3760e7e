// The single steps of random scenarios.
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "tests/random/RandomCommands.h"
#include "tests/random/Vocabulary.h"

namespace brisel::tests {

using namespace vocabulary;

RandomCommands::Lines RandomCommands::disks(bool attached) const {
    Lines found;
    std::copy_if(Devices.begin(), Devices.end(), std::back_inserter(found),
                 [&](const auto& device) {
                     return scenario_->mac().diskArbitration.isAttached(device) == attached;
                 });
    return found;
}

RandomCommands::Lines RandomCommands::disksWithoutRecord() const {
    auto found = disks(true);
    const auto* const manager = scenario_->program().manager();
    if (manager == nullptr) return {};
    for (const auto& volume : manager->volumes())
        std::erase(found, volume->deviceNode());
    return found;
}

std::string RandomCommands::folder() {
    return scenario_->mac().fileManager.homeDirectory() + "/.brisel/" + pick(Names);
}

RandomCommands::Lines RandomCommands::properties(unsigned percent, bool mayBeEmpty) {
    const Lines paths{"/Volumes/Data", "/Volumes/Data/", "/Volumes/" + pick(Names), folder()};
    Lines keys;
    const auto add = [&](unsigned likely, const std::string& key, const std::string& value) {
        if (!odds(likely)) return;
        keys.push_back(key + '=' + (mayBeEmpty && odds(20) ? "" : value));
    };
    add(percent, "kind", pick(Kinds));
    add(percent, "name", pick(Names));
    add(percent, "path", pick(paths));
    add(percent, "volume-uuid", pick(UUIDs));
    add(percent / 5 + 5, "media-uuid", pick(UUIDs));
    add(percent / 5 + 5, "writable", odds(67) ? "yes" : "no");
    add(percent / 5 + 5, "mountable", odds(50) ? "yes" : "no");
    return keys;
}

std::optional<std::string> RandomCommands::step() {
    const bool blocked = prompt_ == AlertPrompt || prompt_ == PasswordPrompt;
    if (blocked) return odds(50) ? answer() : stepOfTheSurroundings();
    return odds(50) ? stepOfTheProgram() : stepOfTheSurroundings();
}

std::optional<std::string> RandomCommands::stepOfTheProgram() {
    const auto kind = below(14);
    if (kind < 10) return choose();
    return kind < 12 ? chooseTwoAtOnce() : respond();
}

// The surroundings.

std::optional<std::string> RandomCommands::stepOfTheSurroundings() {
    constexpr unsigned Disks = 14;
    const auto kind = below(29);
    if (kind < Disks) return stepOfDisks(kind / 2);
    switch (kind) {
        case 14:
        case 15:
            return hold();
        case 16:
        case 17:
            return tool();
        case 18:
        case 19: {
            Lines reason{pick(Errors)};
            if (odds(50)) reason.push_back(pick(Errors));
            return words("fail " + pick(Lines{"create", "list", "delete"}), reason);
        }
        case 20:
            return "launch fail " + pick(Codes);
        case 21:
            return words("file", {(odds(50) ? folder() : "/Volumes/Data") + "/" +
                                  pick(Lines{"f", ".f", "d/f"})});
        case 22: {
            const auto folders = scenario_->mac().fileSystem.foldersFrom("/");
            return folders.empty() ? std::nullopt : std::optional(words("rmdir", {pick(folders)}));
        }
        case 23:
            return script();
        case 24:
            return "notifications " + pick(Lines{"allow", "allow", "deny", "error", "add-error"});
        case 25:
            return "login-items " + pick(Lines{"accept", "refuse"});
        case 26:
            return "appearance " + pick(Appearances);
        case 27:
            return "show " + pick(Shows);
        default:
            return pick(Lines{"# a remark", "", "  "});
    }
}

std::optional<std::string> RandomCommands::stepOfDisks(unsigned kind) {
    if (kind < 2) return attach();
    if (kind == 2) return detach();
    if (kind == 3) return plugInAgain();
    const auto attached = disks(true);
    if (kind == 4) {
        return words("refuse", {odds(67) ? "unmount" : "mount", pick(Devices), pick(Statuses)});
    }
    if (attached.empty()) return std::nullopt;
    if (kind == 5) return "report " + pick(attached);
    return words("set " + pick(attached), properties(30, true));
}

std::optional<std::string> RandomCommands::attach() {
    const auto absent = disks(false);
    if (absent.empty()) return std::nullopt;
    return words("attach " + pick(absent), properties(90, false));
}

std::optional<std::string> RandomCommands::detach() {
    const auto attached = disks(true);
    return attached.empty() ? std::nullopt : std::optional("detach " + pick(attached));
}

// Brings back a volume that was unmounted, or that was never one.
std::optional<std::string> RandomCommands::plugInAgain() {
    const auto lost = disksWithoutRecord();
    if (lost.empty()) return std::nullopt;
    const auto& device = pick(lost);
    if (!holding_ || odds(30)) give(words("attach " + device, properties(90, false)));
    return "detach " + device;
}

// Mostly not for long, so that operations end.
std::string RandomCommands::hold() {
    holding_ = !holding_;
    return holding_ ? "hold" : "release";
}

std::string RandomCommands::tool() {
    if (odds(20)) return odds(50) ? "tool signal=9" : "tool signal=15";
    const auto status = "tool exit=" + pick(Lines{"0", "0", "0", "1", "66", "255"});
    return odds(50) ? status + " output=" + word(pick(Outputs)) : status;
}

std::string RandomCommands::script() {
    Lines keys{"NSAppleScriptErrorNumber=" + pick(Errors), "Message=" + pick(Errors),
               "Aa=" + pick(Errors)};
    std::rotate(keys.begin(), keys.begin() + below(3), keys.end());
    keys.resize(below(4));
    return words("script fail", keys);
}

// The program.

std::optional<std::string> RandomCommands::choose() {
    std::vector<platform::MenuItem> items;
    std::vector<platform::MenuItem> ofVolumes;
    const auto all = scenario_->program().menuItems();
    for (const auto& item : all) {
        if (item.action.empty()) continue;
        items.push_back(item);
        if (item.representedObject) ofVolumes.push_back(item);
    }
    if (ofVolumes.empty() && odds(70)) return attach();
    const auto item = pick(!ofVolumes.empty() && odds(90) ? ofVolumes : items);
    if (item.action == "terminate:" && (long_ || odds(90))) return std::nullopt;
    std::size_t place = 0;
    for (const auto& other : all) {
        if (other.separator || other.title != item.title) continue;
        ++place;
        if (other.action == item.action && other.representedObject == item.representedObject) break;
    }
    const auto line = words("choose", {item.title});
    return place > 1 || odds(10) ? line + ' ' + std::to_string(place) : line;
}

// Starts an operation while another is under way.
std::optional<std::string> RandomCommands::chooseTwoAtOnce() {
    if (!holding_) give(hold());
    next_.emplace_back([this] { return choose(); });
    give(words("respond DO_MOUNT", {"volume=" + pick(Devices)}));
    if (odds(30)) next_.emplace_back([this] { return detach(); });
    next_.emplace_back([this] { return holding_ ? std::optional(hold()) : std::nullopt; });
    return std::nullopt;
}

std::string RandomCommands::respond() {
    auto line = "respond " + pick(Responses);
    if (odds(30)) line += " volume=" + (odds(20) ? "disk99s1" : pick(Devices));
    if (odds(10)) line += odds(50) ? " id=mount" : " id=other";
    return line;
}

std::string RandomCommands::answer() {
    if (prompt_ == AlertPrompt) return words("press", {pick(buttons_)});
    if (odds(70)) return "password ok";
    return odds(50) ? "password cancel" : "password fail " + pick(Codes);
}

}  // namespace brisel::tests
