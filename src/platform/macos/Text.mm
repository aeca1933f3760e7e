// Converts strings, URLs and errors between C++ and Foundation.
// SPDX-License-Identifier: MIT
#import "platform/macos/Text.h"

namespace brisel::platform::macos {

namespace {

NSString* decoded(std::string_view text, NSStringEncoding encoding) {
    NSString* const string = [[NSString alloc] initWithBytes:text.data()
                                                      length:text.size()
                                                    encoding:encoding];
    return [string autorelease];
}

}  // namespace

NSString* nsString(std::string_view text) {
    NSString* string = decoded(text, NSUTF8StringEncoding);
    if (string == nil) string = decoded(text, NSISOLatin1StringEncoding);
    return string != nil ? string : @"";
}

std::string stdString(NSString* string) {
    NSData* const bytes = [string dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    if ([bytes length] == 0) return {};
    return {static_cast<const char*>([bytes bytes]), [bytes length]};
}

std::optional<std::string> optionalString(NSString* string) {
    return string != nil ? std::optional(stdString(string)) : std::nullopt;
}

NSURL* nsURL(const std::optional<FileURL>& url) {
    if (!url) return nil;
    return [NSURL fileURLWithPath:nsString(url->path()) isDirectory:YES];
}

Error errorFrom(NSError* error) {
    if (error == nil) {
        return {.localizedDescription = "unknown error", .localizedFailureReason = std::nullopt};
    }
    return {.localizedDescription = stdString([error localizedDescription]),
            .localizedFailureReason = optionalString([error localizedFailureReason])};
}

}  // namespace brisel::platform::macos
