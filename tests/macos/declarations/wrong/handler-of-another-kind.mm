// A completion handler lacks the error.
// SPDX-License-Identifier: MIT
//
// says: cannot initialize a parameter of type 'void (^ _Nonnull)(BOOL, NSError
#import <UserNotifications/UserNotifications.h>

void ask(UNUserNotificationCenter* center) {
    [center requestAuthorizationWithOptions:UNAuthorizationOptionAlert
                          completionHandler:^(BOOL){
                          }];
}
