// Stand-ins for AppKit classes that GNUstep lacks or implements differently.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/AppKit.h"

#include <cstdlib>
#include <optional>

#include "platform/macos/Text.h"
#include "tests/macos/frameworks/Counted.h"
#include "tests/macos/frameworks/Raising.h"
#include "tests/macos/frameworks/World.h"

using brisel::tests::macos::complain;
using brisel::tests::macos::countIn;
using brisel::tests::macos::countOut;
using brisel::tests::macos::raiseIfTold;
using brisel::platform::macos::stdString;
using brisel::tests::macos::world;
namespace platform = brisel::platform;

@implementation StageWorkspace

+ (StageWorkspace*)sharedWorkspace {
    static StageWorkspace* const workspace = [[StageWorkspace alloc] init];
    return workspace;
}

- (BOOL)openURL:(NSURL*)url {
    raiseIfTold();
    std::optional<platform::FileURL> folder;
    if (url != nil) folder = platform::FileURL(stdString([url path]));
    world().workspace.openURL(folder);
    return url != nil ? YES : NO;
}

@end

@implementation StageMenuItem

- (void)dealloc {
    [stageTitle_ release];
    [super dealloc];
}

- (void)setAttributedTitle:(NSAttributedString*)title {
    ASSIGNCOPY(stageTitle_, title);
}

- (NSAttributedString*)attributedTitle {
    return stageTitle_;
}

@end

@implementation StageAlertWindow

- (void)center {
}

- (void)orderFrontRegardless {
    isInFront_ = YES;
}

- (BOOL)isInFront {
    return isInFront_;
}

@end

namespace {

// GNUstep activates the application during launch; only later calls come from the program.
bool launched = false;
bool isActive = false;
int alerts = 0;

}  // namespace

@implementation StageAlert

- (instancetype)init {
    self = [super init];
    alertWindow_ = [[StageAlertWindow alloc] init];
    countIn("StageAlert");
    ++alerts;
    isActive = false;
    return self;
}

- (void)dealloc {
    --alerts;
    countOut("StageAlert");
    [alertWindow_ release];
    [super dealloc];
}

- (void)layout {
}

- (StageAlertWindow*)window {
    return alertWindow_;
}

- (NSInteger)runModal {
    raiseIfTold();
    if (!isActive) complain("an alert opened while another application is active");
    if (![alertWindow_ isInFront]) complain("an alert opened behind another window");
    platform::AlertContent content{.messageText = stdString([self messageText]),
                                   .informativeText = stdString([self informativeText]),
                                   .buttons = {}};
    for (NSButton* button in [self buttons])
        content.buttons.push_back(stdString([button title]));
    return world().alert.runModal(content);
}

@end

@implementation StageApplication

- (void)finishLaunching {
    [super finishLaunching];
    launched = true;
}

- (void)activateIgnoringOtherApps:(BOOL)flag {
    raiseIfTold();
    isActive = flag;
    if (flag && launched && alerts == 0) world().application.activateIgnoringOtherApps();
    [super activateIgnoringOtherApps:flag];
}

- (void)orderFrontStandardAboutPanel:(id)sender {
    raiseIfTold();
    world().application.orderFrontStandardAboutPanel();
    [super orderFrontStandardAboutPanel:sender];
}

- (void)terminate:(id)sender {
    (void)sender;
    raiseIfTold();
    world().transcript.write("terminate");
    // GNUstep's terminate: does nothing before the main loop runs; AppKit's always ends the
    // process.
    [[NSNotificationCenter defaultCenter]
        postNotificationName:NSApplicationWillTerminateNotification
                      object:self];
    std::exit(EXIT_SUCCESS);
}

@end
