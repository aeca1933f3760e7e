// Keeps GNUstep's helper processes away, and its files out of anybody's home.
// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

// The categories replace methods of the classes they are for.
#pragma clang diagnostic ignored "-Wobjc-protocol-method-implementation"

/// Applications telling each other things, by a process of their own.
@implementation NSDistributedNotificationCenter (Quiet)

- (void)addObserver:(id)observer
              selector:(SEL)selector
                  name:(NSString*)name
                object:(NSString*)object
    suspensionBehavior:(NSNotificationSuspensionBehavior)behaviour {
    (void)observer;
    (void)selector;
    (void)name;
    (void)object;
    (void)behaviour;
}

- (void)removeObserver:(id)observer name:(NSString*)name object:(NSString*)object {
    (void)observer;
    (void)name;
    (void)object;
}

- (void)postNotificationName:(NSString*)name
                      object:(NSString*)object
                    userInfo:(NSDictionary*)userInfo
          deliverImmediately:(BOOL)deliverImmediately {
    (void)name;
    (void)object;
    (void)userInfo;
    (void)deliverImmediately;
}

- (void)setSuspended:(BOOL)suspended {
    (void)suspended;
}

@end

@interface GSServicesManager : NSObject
@end

/// Services that applications offer each other; two of one name would ask the user what to do.
@implementation GSServicesManager (Quiet)

- (void)registerAsServiceProvider {
}

- (void)loadServices {
}

- (void)rebuildServices {
}

@end

// Its own lines; the program's go elsewhere. Without a window manager it cannot look at the frames
// of windows, and says so fifteen times.
static void logOfGNUstep(NSString* line) {
    const std::string_view text = [line UTF8String];
    if (text.find("Failed to determine offsets for style") != std::string_view::npos) return;
    std::fprintf(stderr, "%s", text.data());
}

__attribute__((constructor)) static void quietenLog() {
    _NSLog_printf_handler = &logOfGNUstep;
}

// GNUstep looks for the home in the list of accounts, not in the environment; this program's own
// definition comes before the system's.
extern "C" {

static int accountAtHome(uid_t user, struct passwd* account, char* buffer, struct passwd** found) {
    const char* const home = getenv("HOME");
    buffer[0] = '\0';
    account->pw_name = const_cast<char*>("user");
    account->pw_passwd = buffer;
    account->pw_uid = user;
    account->pw_gid = getgid();
    account->pw_gecos = buffer;
    account->pw_dir = const_cast<char*>(home != nullptr ? home : "/nonexistent");
    account->pw_shell = const_cast<char*>("/bin/sh");
    *found = account;
    return 0;
}

int getpwnam_r(const char* /*name*/, struct passwd* account, char* buffer, size_t /*size*/,
               struct passwd** found) {
    return accountAtHome(getuid(), account, buffer, found);
}

int getpwuid_r(uid_t user, struct passwd* account, char* buffer, size_t /*size*/,
               struct passwd** found) {
    return accountAtHome(user, account, buffer, found);
}

}  // extern "C"
