// The macOS application on the stand-in frameworks.
// SPDX-License-Identifier: MIT
#import "tests/macos/stage/StagedProgram.h"

#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "tests/macos/frameworks/AppKit.h"
#include "tests/macos/frameworks/Counted.h"
#include "tests/macos/frameworks/DiskArbitration.h"
#include "tests/macos/frameworks/UserNotifications.h"
#include "tests/macos/frameworks/World.h"

/// main() of the application.
int briselMain(int argumentCount, char** arguments);

using brisel::tests::macos::StagedProgram;

/// Turns the program in the main loop.
@interface StageTurner : NSObject {
  @public
    StagedProgram* program;
}
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)turn:(NSTimer*)timer;
- (void)responseWasHandled;
@end

@implementation StageTurner

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    (void)notification;
    constexpr NSTimeInterval AtOnce = 0.0001;
    [NSTimer scheduledTimerWithTimeInterval:AtOnce
                                     target:self
                                   selector:@selector(turn:)
                                   userInfo:nil
                                    repeats:YES];
}

- (void)turn:(NSTimer*)timer {
    (void)timer;
    program->turn();
}

- (void)responseWasHandled {
    program->responseWasHandled();
}

@end

namespace brisel::tests::macos {

namespace {

constexpr int BadUse = 2;
constexpr int Misused = 3;

StageTurner* turner = nil;

// Sets the command line that GNUstep sees: the user's language, and no application icon. GNUstep
// takes a file on the real command line for a document to open.
void setArguments(std::string language) {
    std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::string languagesName = "-NSLanguages";
    language = "(\"" + language + "\", en)";
    std::string iconName = "-GSSuppressAppIcon";
    std::string yes = "YES";
    std::array<char*, 5> arguments{program.data(), languagesName.data(), language.data(),
                                   iconName.data(), yes.data()};
    [NSProcessInfo initializeWithArguments:arguments.data()
                                     count:static_cast<int>(arguments.size())
                               environment:environ];
}

bool misusedFrameworks() {
    const auto complaints = takeComplaints();
    for (const auto& complaint : complaints)
        std::cerr << "misused: " << complaint << '\n';
    return !complaints.empty();
}

bool lostObjects() {
    bool lost = false;
    for (const auto& [kind, count] : liveObjects()) {
        // The session lives until the process exits.
        const int expected = kind == "StageSession" ? 1 : 0;
        if (count == expected) continue;
        std::cerr << "lost: " << count << " of " << kind << ", not " << expected << '\n';
        lost = true;
    }
    return lost;
}

void judgeAtExit() {
    // The program's output comes before the complaints.
    std::cout.flush();
    const bool misused = misusedFrameworks();
    if (lostObjects() || misused) std::_Exit(Misused);
}

}  // namespace

StagedProgram::StagedProgram(simulator::Scenario& scenario) : scenario_(scenario) {
    setWorld(scenario.mac());
}

void StagedProgram::start() {
    started_ = true;
    @autoreleasepool {
        setArguments(scenario_.mac().bundle.language());
        // Creates the application object that NSApplicationMain uses.
        [StageApplication sharedApplication];
        turner = [[StageTurner alloc] init];
        turner->program = this;
        [[NSNotificationCenter defaultCenter]
            addObserver:turner
               selector:@selector(applicationDidFinishLaunching:)
                   name:NSApplicationDidFinishLaunchingNotification
                 object:nil];
        std::atexit(&judgeAtExit);
        char name[] = "Brisel";
        char* arguments[] = {name, nullptr};
        briselMain(1, arguments);
    }
    end();
}

const NTFSVolumeManager* StagedProgram::manager() const {
    return started_ ? &NTFSVolumeManager::sharedInstance() : nullptr;
}

std::vector<platform::MenuItem> StagedProgram::menuItems() const {
    return itemsOf([statusItem() menu]);
}

void StagedProgram::choose(std::size_t index) {
    NSMenu* const menu = [statusItem() menu];
    // Enables the items whose targets implement their actions.
    [menu update];
    [menu performActionForItemAtIndex:static_cast<NSInteger>(index)];
}

void StagedProgram::respond(const platform::NotificationResponse& response) {
    awaitsResponse_ = true;
    // Calls from one thread arrive in order, so this one follows the work of the response.
    deliverResponse(response, [] {
        [turner performSelectorOnMainThread:@selector(responseWasHandled)
                                 withObject:nil
                              waitUntilDone:NO
                                      modes:[NSArray arrayWithObject:NSDefaultRunLoopMode]];
    });
}

void StagedProgram::terminate() {
    [NSApp terminate:nil];
}

void StagedProgram::turnWhileBlocked() {
    @autoreleasepool {
        deliverDiskEvents(NSModalPanelRunLoopMode);
        do {
            [[NSRunLoop currentRunLoop] runMode:NSModalPanelRunLoopMode beforeDate:[NSDate date]];
        } while ([[statusItem() button] awaitsRefresh]);
    }
}

void StagedProgram::turn() {
    if (awaitsResponse_ || [[statusItem() button] awaitsRefresh]) return;
    if (deliverDiskEvents(NSDefaultRunLoopMode)) return;
    if (!scenario_.step()) std::exit(EXIT_SUCCESS);
}

void StagedProgram::end() {
    std::cout.flush();
    // The program may hold objects here, since it has not terminated.
    if (misusedFrameworks()) std::_Exit(Misused);
    std::_Exit(scenario_.stopped() ? BadUse : EXIT_SUCCESS);
}

}  // namespace brisel::tests::macos
