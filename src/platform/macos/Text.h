// Text between the program and the frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/FileURL.h"

namespace brisel::platform::macos {

/// `text` as the frameworks take it, autoreleased and never nil. Bytes that are no UTF-8 come out
/// as other characters: nothing is lost but their meaning, which they did not have.
NSString* nsString(std::string_view text);

/// The UTF-8 of `string`; empty for nil.
std::string stdString(NSString* string);

/// The same, but none for nil.
std::optional<std::string> optionalString(NSString* string);

/// The file URL of a folder, autoreleased; nil for none.
NSURL* nsURL(const std::optional<FileURL>& url);

/// What the error says; an error without a text is still one.
Error errorFrom(NSError* error);

}  // namespace brisel::platform::macos
