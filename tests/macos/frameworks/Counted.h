// Counts the objects of the stand-in frameworks, to find leaked references.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include <map>
#include <string>

/// Base class of the objects that Create and Copy functions return. An over-release sends a message
/// to freed memory, which the address sanitizer reports.
@interface StageCounted : NSObject
@end

namespace brisel::tests::macos {

/// Number of live objects by kind.
std::map<std::string, int> liveObjects();
void countIn(const std::string& kind);
void countOut(const std::string& kind);

}  // namespace brisel::tests::macos
