// The preferences of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/UserDefaults.h"

#include <utility>

namespace brisel::platform::simulated {

namespace {

std::string listText(const platform::UserDefaults::StringArray& list) {
    std::string text = "(";
    for (std::size_t index = 0; index < list->size(); ++index) {
        if (index > 0) text += ", ";
        text += list->at(index);
    }
    return text + ")";
}

std::string valueText(const UserDefaults::Value& value) {
    if (const auto* const flag = std::get_if<bool>(&value)) return *flag ? "YES" : "NO";
    if (const auto* const text = std::get_if<std::string>(&value)) return *text;
    return listText(std::get<platform::UserDefaults::StringArray>(value));
}

}  // namespace

void UserDefaults::registerDefaults(const std::map<std::string, bool>& defaults) {
    for (const auto& [key, value] : defaults)
        registered_.insert_or_assign(key, value);
}

bool UserDefaults::boolForKey(std::string_view key) const {
    if (const auto found = stored_.find(key); found != stored_.end()) {
        const auto* const flag = std::get_if<bool>(&found->second);
        return flag != nullptr && *flag;
    }
    const auto found = registered_.find(key);
    return found != registered_.end() && found->second;
}

UserDefaults::StringArray UserDefaults::stringArrayForKey(std::string_view key) const {
    ++listReads_;
    const auto found = stored_.find(key);
    if (found == stored_.end()) return nullptr;
    const auto* const list = std::get_if<StringArray>(&found->second);
    return list != nullptr ? *list : nullptr;
}

void UserDefaults::setBool(std::string_view key, bool value) {
    store(std::string(key), value);
    transcript_.record("default: %@ = %@", std::string(key), valueText(value));
}

void UserDefaults::setStringArray(std::string_view key, StringArray value) {
    transcript_.record("default: %@ = %@", std::string(key), listText(value));
    store(std::string(key), std::move(value));
}

void UserDefaults::synchronize() {
    transcript_.write("synchronize");
}

void UserDefaults::store(const std::string& key, Value value) {
    stored_.insert_or_assign(key, std::move(value));
}

std::vector<std::string> UserDefaults::stored() const {
    std::vector<std::string> lines;
    for (const auto& [key, value] : stored_)
        lines.push_back(key + " = " + valueText(value));
    return lines;
}

}  // namespace brisel::platform::simulated
