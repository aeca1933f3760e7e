// Asks the system as the application in whose bundle it lies; report-on-mac builds it.
// SPDX-License-Identifier: MIT
#include <dlfcn.h>
#import <Foundation/Foundation.h>
#import <Security/Security.h>
#import <ServiceManagement/ServiceManagement.h>
#import <UserNotifications/UserNotifications.h>

#include <chrono>
#include <cstdio>
#include <future>
#include <memory>
#include <string_view>

/// SMAppService, which SDKs before macOS 13 do not declare.
@protocol AppService <NSObject>
+ (id<AppService>)loginItemServiceWithIdentifier:(NSString*)identifier;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end

namespace {

constexpr const char* Function = "AuthorizationExecuteWithPrivileges";
constexpr const char* Framework = "/System/Library/Frameworks/Security.framework/Security";
NSString* const LoginItem = @"org.brisel.BriselHelper";

const char* yesOrNo(bool yes) {
    return yes ? "yes" : "no";
}

void lookUp() {
    std::printf("by RTLD_DEFAULT: %s\n", yesOrNo(dlsym(RTLD_DEFAULT, Function) != nullptr));
    void* const security = dlopen(Framework, RTLD_LAZY);
    std::printf("handle of Security: %s\n", yesOrNo(security != nullptr));
    if (security == nullptr) return;
    std::printf("by this handle: %s\n", yesOrNo(dlsym(security, Function) != nullptr));
}

void setEnabled(bool enabled) {
    const bool yes = SMLoginItemSetEnabled((__bridge CFStringRef)LoginItem, enabled) != 0;
    std::printf("SMLoginItemSetEnabled, %s: %s\n", enabled ? "on" : "off", yesOrNo(yes));
}

void tell(const char* what, BOOL yes, NSError* error) {
    std::printf("SMAppService, %s: %s\n", what, yesOrNo(yes));
    if (!yes) std::printf("%s\n", [[error description] UTF8String]);
}

void askLoginItem() {
    setEnabled(true);
    setEnabled(false);
    const Class<AppService> serviceClass = NSClassFromString(@"SMAppService");
    std::printf("SMAppService: %s\n", yesOrNo(serviceClass != nil));
    if (serviceClass == nil) return;
    const id<AppService> service = [serviceClass loginItemServiceWithIdentifier:LoginItem];
    NSError* error = nil;
    BOOL yes = [service registerAndReturnError:&error];
    tell("on", yes, error);
    yes = [service unregisterAndReturnError:&error];
    tell("off", yes, error);
}

// Only reads the settings, and asks the user nothing.
void askForNotifications() {
    const auto told = std::make_shared<std::promise<void>>();
    [[UNUserNotificationCenter currentNotificationCenter]
        getNotificationSettingsWithCompletionHandler:^(UNNotificationSettings* settings) {
          std::printf("authorization status: %ld\nalert style: %ld\n",
                      static_cast<long>([settings authorizationStatus]),
                      static_cast<long>([settings alertStyle]));
          told->set_value();
        }];
    constexpr std::chrono::seconds Patience(10);
    if (told->get_future().wait_for(Patience) == std::future_status::timeout) {
        std::printf("no answer\n");
    }
}

void answer(std::string_view question) {
    if (question == "lookup") lookUp();
    if (question == "login-item") askLoginItem();
    if (question == "notifications") askForNotifications();
}

}  // namespace

// Without a question, as the login item starts it, it does nothing.
int main(int argumentCount, const char** arguments) {
    @autoreleasepool {
        @try {
            if (argumentCount == 2) answer(arguments[1]);
        } @catch (NSException* exception) {
            std::printf("%s\n", [[exception reason] UTF8String]);
        }
    }
    return 0;
}
