// The user's preferences, by NSUserDefaults.
// SPDX-License-Identifier: MIT
#import "platform/macos/UserDefaults.h"

#import <Foundation/Foundation.h>

#include "platform/macos/Text.h"

namespace brisel::platform::macos {

namespace {

NSUserDefaults* standardDefaults() {
    return [NSUserDefaults standardUserDefaults];
}

}  // namespace

void UserDefaults::registerDefaults(const std::map<std::string, bool>& defaults) {
    NSMutableDictionary<NSString*, id>* const values = [NSMutableDictionary dictionary];
    for (const auto& [key, value] : defaults)
        [values setObject:[NSNumber numberWithBool:value] forKey:nsString(key)];
    [standardDefaults() registerDefaults:values];
}

bool UserDefaults::boolForKey(std::string_view key) const {
    return [standardDefaults() boolForKey:nsString(key)];
}

UserDefaults::StringArray UserDefaults::stringArrayForKey(std::string_view key) const {
    NSArray<NSString*>* const stored = [standardDefaults() stringArrayForKey:nsString(key)];
    if (stored == nil) return nullptr;
    auto list = std::make_shared<std::vector<std::string>>();
    list->reserve([stored count]);
    for (NSString* text in stored)
        list->push_back(stdString(text));
    return list;
}

void UserDefaults::setBool(std::string_view key, bool value) {
    [standardDefaults() setBool:value forKey:nsString(key)];
}

void UserDefaults::setStringArray(std::string_view key, StringArray value) {
    NSMutableArray<NSString*>* const list = [NSMutableArray array];
    for (const auto& text : *value)
        [list addObject:nsString(text)];
    [standardDefaults() setObject:list forKey:nsString(key)];
}

void UserDefaults::synchronize() {
    [standardDefaults() synchronize];
}

}  // namespace brisel::platform::macos
