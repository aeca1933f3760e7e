// The automount list in the user defaults.
// SPDX-License-Identifier: MIT
#include "volumes/VolumeListHelper.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "platform/SystemLog.h"

namespace brisel {

namespace {

constexpr const char* ListKey = "volumeList";
constexpr std::size_t MostEntries = 128;

std::vector<std::string> mutableCopy(const platform::UserDefaults::StringArray& list) {
    return list ? *list : std::vector<std::string>();
}

platform::UserDefaults::StringArray immutable(std::vector<std::string> list) {
    return std::make_shared<const std::vector<std::string>>(std::move(list));
}

}  // namespace

platform::UserDefaults::StringArray VolumeListHelper::obtain(
    const platform::UserDefaults& defaults) {
    return defaults.stringArrayForKey(ListKey);
}

void VolumeListHelper::save(platform::UserDefaults& defaults,
                            platform::UserDefaults::StringArray uuids) {
    defaults.setStringArray(ListKey, std::move(uuids));
    defaults.synchronize();
}

void VolumeListHelper::add(platform::UserDefaults& defaults, platform::SystemLog& log,
                           const std::string& uuid) {
    auto list = mutableCopy(obtain(defaults));
    if (list.size() >= MostEntries) list.erase(list.begin());
    list.push_back(uuid);
    log.log("List count: %lu", static_cast<unsigned long>(list.size()));
    save(defaults, immutable(std::move(list)));
}

void VolumeListHelper::remove(platform::UserDefaults& defaults, const std::string& uuid) {
    auto list = mutableCopy(obtain(defaults));
    std::erase(list, uuid);
    save(defaults, immutable(std::move(list)));
}

bool VolumeListHelper::contains(const platform::UserDefaults& defaults,
                                const std::optional<std::string>& uuid) {
    const auto list = obtain(defaults);
    return list && uuid && std::find(list->begin(), list->end(), *uuid) != list->end();
}

}  // namespace brisel
