// Counted objects of the stand-in frameworks: a lost reference shows.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include <map>
#include <string>

/// What a Create or Copy function hands out derives from this. A reference released too often ends
/// in a message to freed memory, which the address sanitizer reports.
@interface StageCounted : NSObject
@end

namespace brisel::tests::macos {

/// How many objects there are, by kind.
std::map<std::string, int> liveObjects();
void countIn(const std::string& kind);
void countOut(const std::string& kind);

}  // namespace brisel::tests::macos
