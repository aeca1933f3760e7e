// AppleScript, by NSAppleScript.
// SPDX-License-Identifier: MIT
#import "platform/macos/ScriptRunner.h"

#import <Foundation/Foundation.h>

#include <utility>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

namespace {

using ErrorDictionary = std::vector<std::pair<std::string, std::string>>;

ErrorDictionary pairsOf(NSDictionary* error) {
    ErrorDictionary pairs;
    for (NSString* key in [error allKeys]) {
        NSString* const value = [NSString stringWithFormat:@"%@", [error objectForKey:key]];
        pairs.emplace_back(stdString(key), stdString(value));
    }
    return pairs;
}

}  // namespace

ScriptResult ScriptRunner::execute(const std::string& source) {
    ScriptResult result{.error = ErrorDictionary()};
    guarded("run a script", [&] {
        const Owned<NSAppleScript*> script([[NSAppleScript alloc] initWithSource:nsString(source)]);
        NSDictionary<NSString*, id>* error = nil;
        // Only nil means failure; the error dictionary may be empty.
        const bool succeeded = [script.get() executeAndReturnError:&error] != nil;
        result.error = succeeded ? std::nullopt : std::optional(pairsOf(error));
    });
    return result;
}

}  // namespace brisel::platform::macos
