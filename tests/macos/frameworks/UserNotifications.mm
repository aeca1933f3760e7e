// The stand-in notification center, which calls back on other threads.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/UserNotifications.h"

#include <Block.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/macos/Text.h"
#include "tests/macos/frameworks/Raising.h"
#include "tests/macos/frameworks/UserNotificationValues.h"
#include "tests/macos/frameworks/World.h"

using brisel::platform::macos::nsString;
using brisel::platform::macos::stdString;
using brisel::tests::macos::complain;
using brisel::tests::macos::orders;
using brisel::tests::macos::raiseIfTold;
using brisel::tests::macos::world;
namespace platform = brisel::platform;

NSString* const UNErrorDomain = @"UNErrorDomain";

namespace {

/// Not retained, and one for the process, as the real center's.
id<UNUserNotificationCenterDelegate> centerDelegate = nil;

// Waits for the thread, so that events have a fixed order.
void runOnAnotherThread(const std::function<void()>& work) {
    std::thread([&work] {
        GSRegisterCurrentThread();
        @autoreleasepool {
            work();
        }
        GSUnregisterCurrentThread();
    }).join();
}

/// Handler calls delayed by orders().answersWait.
std::vector<std::function<void()>> waitingAnswers;

void answer(std::function<void()> work) {
    if (orders().answersWait) {
        waitingAnswers.push_back(std::move(work));
    } else {
        runOnAnotherThread(work);
    }
}

/// Copies a block, so that it outlives the call that received it.
template <typename Block>
std::function<Block()> kept(Block block) {
    const std::shared_ptr<void> copy(reinterpret_cast<void*>(Block_copy(block)),
                                     [](void* owned) { Block_release(owned); });
    return [copy] { return reinterpret_cast<Block>(copy.get()); };
}

NSError* errorFrom(const std::optional<platform::Error>& error) {
    if (!error) return nil;
    NSDictionary* const userInfo =
        [NSDictionary dictionaryWithObject:nsString(error->localizedDescription)
                                    forKey:NSLocalizedDescriptionKey];
    return [NSError errorWithDomain:UNErrorDomain code:1 userInfo:userInfo];
}

platform::UserInfo valuesOf(NSDictionary* userInfo) {
    platform::UserInfo values;
    for (NSString* key in [userInfo allKeys])
        values[stdString(key)] = stdString([userInfo objectForKey:key]);
    return values;
}

platform::NotificationRequest valueOf(UNNotificationRequest* request) {
    UNNotificationContent* const content = [request content];
    UNNotificationSound* const sound = [content sound];
    const auto* const trigger = static_cast<UNTimeIntervalNotificationTrigger*>([request trigger]);
    const auto delay = std::chrono::duration<double>([trigger timeInterval]);
    return {.identifier = stdString([request identifier]),
            .title = stdString([content title]),
            .body = stdString([content body]),
            .soundName = sound != nil ? stdString([sound name]) : "",
            .categoryIdentifier = stdString([content categoryIdentifier]),
            .userInfo = valuesOf([content userInfo]),
            .delay = std::chrono::round<std::chrono::milliseconds>(delay)};
}

NSDictionary* dictionaryFrom(const platform::UserInfo& values) {
    NSMutableDictionary* const userInfo = [NSMutableDictionary dictionary];
    for (const auto& [key, value] : values)
        [userInfo setObject:nsString(value) forKey:nsString(key)];
    return userInfo;
}

UNNotificationResponse* responseFrom(const platform::NotificationResponse& response,
                                     NSDictionary* userInfo) {
    UNMutableNotificationContent* const content =
        [[[UNMutableNotificationContent alloc] init] autorelease];
    [content setUserInfo:userInfo];
    UNNotificationRequest* const request =
        [UNNotificationRequest requestWithIdentifier:nsString(response.requestIdentifier)
                                             content:content
                                             trigger:nil];
    return [UNNotificationResponse responseTo:request action:nsString(response.actionIdentifier)];
}

platform::NotificationCategory valueOf(UNNotificationCategory* category) {
    platform::NotificationCategory value{.identifier = stdString([category identifier]),
                                         .actions = {}};
    for (UNNotificationAction* action in [category actions]) {
        value.actions.push_back(
            {.identifier = stdString([action identifier]), .title = stdString([action title])});
    }
    return value;
}

}  // namespace

@implementation UNUserNotificationCenter
@dynamic delegate;

+ (UNUserNotificationCenter*)currentNotificationCenter {
    NSBundle* const bundle = [NSBundle mainBundle];
    if ([bundle bundleIdentifier] == nil || ![[bundle bundlePath] hasSuffix:@".app"]) {
        [NSException raise:NSInternalInconsistencyException
                    format:@"bundleProxyForCurrentProcess is nil"];
    }
    static UNUserNotificationCenter* const center = [[UNUserNotificationCenter alloc] init];
    return center;
}

- (id<UNUserNotificationCenterDelegate>)delegate {
    return centerDelegate;
}

- (void)setDelegate:(id<UNUserNotificationCenterDelegate>)delegate {
    raiseIfTold();
    centerDelegate = delegate;
}

- (void)setNotificationCategories:(NSSet<UNNotificationCategory*>*)categories {
    raiseIfTold();
    std::vector<platform::NotificationCategory> values;
    for (UNNotificationCategory* category in categories)
        values.push_back(valueOf(category));
    world().userNotificationCenter.setNotificationCategories(values);
}

- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:(void (^)(BOOL, NSError*))completionHandler {
    raiseIfTold();
    const auto handler = kept(completionHandler);
    world().userNotificationCenter.requestAuthorization(
        static_cast<unsigned>(options), [handler](bool granted, const auto& error) {
            answer([=] { handler()(granted ? YES : NO, errorFrom(error)); });
        });
}

- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(void (^)(NSError*))completionHandler {
    raiseIfTold();
    if (completionHandler == nil) complain("nobody hears whether a notification was accepted");
    const auto handler = kept(completionHandler);
    world().userNotificationCenter.addNotificationRequest(
        valueOf(request),
        [handler](const auto& error) { answer([=] { handler()(errorFrom(error)); }); });
}

@end

namespace brisel::tests::macos {

void deliverAnswers() {
    for (const auto& work : std::exchange(waitingAnswers, {}))
        runOnAnotherThread(work);
}

void deliverResponse(const platform::NotificationResponse& response,
                     const std::function<void()>& delivered) {
    runOnAnotherThread([&] {
        deliverResponseHere(response, dictionaryFrom(response.userInfo));
        delivered();
    });
}

void deliverResponseHere(const platform::NotificationResponse& response, NSDictionary* userInfo) {
    // The block captures this string: under the address sanitizer, a delegate that keeps the block
    // without copying it fails.
    const std::string action = response.actionIdentifier;
    [centerDelegate userNotificationCenter:[UNUserNotificationCenter currentNotificationCenter]
            didReceiveNotificationResponse:responseFrom(response, userInfo)
                     withCompletionHandler:^{
                       complain("a response was answered: " + action);
                     }];
}

}  // namespace brisel::tests::macos
