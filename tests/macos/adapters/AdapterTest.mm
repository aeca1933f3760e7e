// Fixture of the adapter tests.
// SPDX-License-Identifier: MIT
#import "tests/macos/adapters/AdapterTest.h"

#import "tests/macos/frameworks/Counted.h"

namespace brisel::tests::macos {

AdapterTest::AdapterTest() : pool_([[NSAutoreleasePool alloc] init]) {
    setWorld(mac);
}

AdapterTest::~AdapterTest() {
    [pool_ drain];
    EXPECT_THAT(takeComplaints(), testing::IsEmpty());
    for (const auto& [kind, count] : liveObjects())
        EXPECT_EQ(count, 0) << "of " << kind;
}

std::vector<std::string> AdapterTest::logLines() const {
    constexpr std::string_view Prefix = "log: ";
    std::vector<std::string> found;
    for (const auto& line : lines()) {
        if (line.starts_with(Prefix)) found.push_back(line.substr(Prefix.size()));
    }
    return found;
}

void AdapterTest::turn(NSString* mode, NSTimeInterval seconds, const bool* done) {
    NSDate* const end = [NSDate dateWithTimeIntervalSinceNow:seconds];
    constexpr NSTimeInterval Step = 0.005;
    while ([end timeIntervalSinceNow] > 0 && (done == nullptr || !*done)) {
        NSDate* const next = [NSDate dateWithTimeIntervalSinceNow:Step];
        [[NSRunLoop currentRunLoop] runMode:mode beforeDate:next];
        // A run loop without sources in this mode returns at once.
        [NSThread sleepUntilDate:next];
    }
}

}  // namespace brisel::tests::macos
