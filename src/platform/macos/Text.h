// Converts strings, URLs and errors between C++ and Foundation.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/FileURL.h"

namespace brisel::platform::macos {

/// Autoreleased, never nil. Decodes `text` as ISO Latin-1 if it is not valid UTF-8.
NSString* nsString(std::string_view text);

/// The UTF-8 of `string`; empty for nil.
std::string stdString(NSString* string);

/// The UTF-8 of `string`; nullopt for nil.
std::optional<std::string> optionalString(NSString* string);

/// The URL of a folder, autoreleased; nil if absent.
NSURL* nsURL(const std::optional<FileURL>& url);

/// Nil becomes "unknown error".
Error errorFrom(NSError* error);

}  // namespace brisel::platform::macos
