// Counts the objects of the stand-in frameworks.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/Counted.h"

#include <mutex>

namespace brisel::tests::macos {

namespace {

struct Counts {
    std::mutex mutex;
    std::map<std::string, int> live;
};

Counts& counts() {
    static auto& all = *new Counts();
    return all;
}

void change(const std::string& kind, int difference) {
    const std::lock_guard lock(counts().mutex);
    counts().live[kind] += difference;
}

}  // namespace

std::map<std::string, int> liveObjects() {
    const std::lock_guard lock(counts().mutex);
    return counts().live;
}

void countIn(const std::string& kind) {
    change(kind, 1);
}

void countOut(const std::string& kind) {
    change(kind, -1);
}

}  // namespace brisel::tests::macos

@implementation StageCounted

- (instancetype)init {
    self = [super init];
    brisel::tests::macos::countIn([NSStringFromClass([self class]) UTF8String]);
    return self;
}

- (void)dealloc {
    brisel::tests::macos::countOut([NSStringFromClass([self class]) UTF8String]);
    [super dealloc];
}

@end
