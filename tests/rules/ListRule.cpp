// The list of volumes changes only as disks come and go and operations end.
// SPDX-License-Identifier: MIT
#include "tests/rules/ListRule.h"

#include <algorithm>

#include "platform/Format.h"

namespace brisel::tests {

namespace {

bool holds(const VolumeRecords& list, const std::shared_ptr<NTFSVolume>& volume) {
    return std::find(list.begin(), list.end(), volume) != list.end();
}

std::optional<std::string> before(std::string_view ending, const std::string& text) {
    if (!text.ends_with(ending)) return std::nullopt;
    return text.substr(0, text.size() - ending.size());
}

}  // namespace

void ListRule::hear(const std::string& line) {
    // What has changed by now is the doing of what was heard before.
    compare();
    if (const auto disk = after("log: disk ", line)) {
        appeared_ = before(" appeared", *disk).value_or("");
        disappeared_ = before(" disappeared", *disk).value_or("");
    }
    if (const auto disk = after("unmount: ", line)) unmounted_.insert(*disk);
    if (const auto disk = after("log: mount command successfully launched for /dev/", line)) {
        mounted_ = *disk;
    }
}

void ListRule::compare() {
    if (manager() == nullptr || manager()->volumes() == before_) return;
    const auto& now = manager()->volumes();
    VolumeRecords kept;
    std::copy_if(before_.begin(), before_.end(), std::back_inserter(kept),
                 [&](const auto& volume) { return holds(now, volume); });
    require(now.size() >= kept.size() && std::equal(kept.begin(), kept.end(), now.begin()),
            "The records that stay have changed their order, or others came before them.");
    checkThatTheyMightGo(now);
    checkThatTheyMightCome(now, kept.size());
    before_ = now;
}

void ListRule::checkThatTheyMightGo(const VolumeRecords& now) const {
    for (const auto& volume : before_) {
        const auto device = platform::orNullText(volume->deviceNode());
        const bool might = device == appeared_ || device == disappeared_ ||
                           unmounted_.contains(device) || holds(now, volume);
        require(might, "The record of " + device + " has gone without a reason.");
    }
}

void ListRule::checkThatTheyMightCome(const VolumeRecords& now, std::size_t kept) const {
    require(now.size() <= kept + 1, "Two records came at once.");
    for (std::size_t index = kept; index < now.size(); ++index) {
        const auto device = platform::orNullText(now[index]->deviceNode());
        require(device == appeared_ || device == mounted_,
                "A record of " + device + " came without a reason.");
    }
}

void DeviceRule::rest(bool /*blocked*/) {
    if (manager() == nullptr) return;
    std::set<std::string> devices;
    for (const auto& volume : manager()->volumes()) {
        const auto device = platform::orNullText(volume->deviceNode());
        require(devices.insert(device).second, "Two records have the device " + device + ".");
    }
}

}  // namespace brisel::tests
