// Commands that attach, change and detach disks.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cctype>

#include "simulator/Commands.h"

namespace brisel::simulator {

namespace {

using Disks = platform::simulated::DiskArbitration;

std::optional<std::string> orAbsent(const std::string& value) {
    return value.empty() ? std::nullopt : std::optional(value);
}

// The system reports UUIDs in upper case.
std::optional<std::string> uuidOrAbsent(std::string value) {
    std::transform(value.begin(), value.end(), value.begin(), [](unsigned char character) {
        return static_cast<char>(std::toupper(character));
    });
    return orAbsent(value);
}

enum class Fits { Yes, No };

Fits setFlag(std::optional<bool>& flag, const std::string& value) {
    if (value != "yes" && value != "no" && !value.empty()) return Fits::No;
    flag = value.empty() ? std::nullopt : std::optional(value == "yes");
    return Fits::Yes;
}

// An empty value removes the key.
Fits setProperty(Disks::Properties& properties, const std::string& key, const std::string& value) {
    auto& description = properties.description;
    if (key == "mountable") return setFlag(description.volumeMountable, value);
    if (key == "writable") {
        std::optional<bool> writable;
        const auto fits = setFlag(writable, value);
        properties.writable = writable.value_or(false);
        return fits;
    }
    if (key == "kind") {
        description.volumeKind = orAbsent(value);
    } else if (key == "name") {
        description.volumeName = orAbsent(value);
    } else if (key == "path") {
        description.volumePath.reset();
        if (!value.empty()) description.volumePath = platform::FileURL(value);
    } else if (key == "media-uuid") {
        description.mediaUUID = uuidOrAbsent(value);
    } else if (key == "volume-uuid") {
        description.volumeUUID = uuidOrAbsent(value);
    } else {
        return Fits::No;
    }
    return Fits::Yes;
}

Fits setProperties(Disks::Properties& properties, const Words& arguments) {
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        const auto pair = splitKeyAndValue(arguments[index]);
        if (!pair || setProperty(properties, pair->first, pair->second) == Fits::No) {
            return Fits::No;
        }
    }
    return Fits::Yes;
}

Complaint attach(Stage& stage, const Words& arguments) {
    Disks::Properties properties;
    properties.description.volumeMountable = true;
    const bool fits = !arguments.empty() && setProperties(properties, arguments) == Fits::Yes;
    if (!fits) return misused("attach");
    auto& disks = stage.mac.diskArbitration;
    if (disks.isAttached(arguments[0])) return "that disk is there already";
    disks.attach(arguments[0], properties);
    return std::nullopt;
}

Complaint set(Stage& stage, const Words& arguments) {
    if (arguments.size() < 2) return misused("set");
    auto& disks = stage.mac.diskArbitration;
    if (!disks.isAttached(arguments[0])) return "there is no such disk";
    auto properties = disks.properties(arguments[0]);
    if (setProperties(properties, arguments) == Fits::No) return misused("set");
    disks.change(arguments[0], properties);
    return std::nullopt;
}

Complaint report(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("report");
    auto& disks = stage.mac.diskArbitration;
    if (!disks.isAttached(arguments[0])) return "there is no such disk";
    disks.report(arguments[0]);
    return std::nullopt;
}

Complaint detach(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("detach");
    auto& disks = stage.mac.diskArbitration;
    if (!disks.isAttached(arguments[0])) return "there is no such disk";
    disks.detach(arguments[0]);
    return std::nullopt;
}

Complaint refuse(Stage& stage, const Words& arguments) {
    const auto status = arguments.size() == 3 ? parseStatus(arguments[2]) : std::nullopt;
    if (!status) return misused("refuse");
    auto& disks = stage.mac.diskArbitration;
    if (!disks.wasEverAttached(arguments[1])) return "there never was such a disk";
    if (arguments[0] == "unmount") {
        disks.refuseUnmount(arguments[1], *status);
    } else if (arguments[0] == "mount") {
        disks.refuseMount(arguments[1], *status);
    } else {
        return misused("refuse");
    }
    return std::nullopt;
}

Complaint hold(Stage& stage, const Words& arguments) {
    if (!arguments.empty()) return misused("hold");
    stage.mac.diskArbitration.hold();
    return std::nullopt;
}

Complaint release(Stage& stage, const Words& arguments) {
    if (!arguments.empty()) return misused("release");
    stage.mac.diskArbitration.release();
    return std::nullopt;
}

constexpr std::array DiskTable{
    Command{"attach", When::AnyTime,
            "attach DEVICE [mountable=yes|no] [kind=KIND] [name=NAME] [path=PATH] "
            "[media-uuid=UUID] [volume-uuid=UUID] [writable=yes|no]",
            "a disk appears", attach},
    Command{"set", When::AnyTime, "set DEVICE KEY=VALUE...",
            "changes a disk; the keys are those of attach", set},
    Command{"report", When::AnyTime, "report DEVICE", "the disk is reported as appeared once more",
            report},
    Command{"detach", When::AnyTime, "detach DEVICE", "the disk disappears", detach},
    Command{"refuse", When::AnyTime, "refuse unmount|mount DEVICE STATUS",
            "the next such request is refused with that status", refuse},
    Command{"hold", When::AnyTime, "hold", "keeps back completions of unmounts and mounts", hold},
    Command{"release", When::AnyTime, "release", "lets them go", release},
};

}  // namespace

std::span<const Command> diskCommands() {
    return DiskTable;
}

}  // namespace brisel::simulator
