// Keeps GNUstep from starting helper processes and from using the account's home directory.
// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

// These categories replace methods of their classes.
#pragma clang diagnostic ignored "-Wobjc-protocol-method-implementation"

/// Distributed notifications, which need a daemon.
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

/// The Services menu; two applications of one name would ask the user which to use.
@implementation GSServicesManager (Quiet)

- (void)registerAsServiceProvider {
}

- (void)loadServices {
}

- (void)rebuildServices {
}

@end

// Writes GNUstep's own log lines to standard error; the program's lines go to the simulated Mac.
// Drops the warnings that GNUstep prints without a window manager.
static void logOfGNUstep(NSString* line) {
    const std::string_view text = [line UTF8String];
    if (text.find("Failed to determine offsets for style") != std::string_view::npos) return;
    std::fprintf(stderr, "%s", text.data());
}

__attribute__((constructor)) static void quietenLog() {
    _NSLog_printf_handler = &logOfGNUstep;
}

// GNUstep reads the home directory from the account database, not from HOME. These definitions take
// precedence over the C library's.
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
