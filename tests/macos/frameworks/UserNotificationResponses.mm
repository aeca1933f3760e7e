// Notification responses of the stand-in User Notifications.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/UserNotificationResponses.h"

@implementation UNNotification
@dynamic request;
@end

@implementation StageNotification

- (void)dealloc {
    [request_ release];
    [super dealloc];
}

- (UNNotificationRequest*)request {
    return request_;
}

@end

@implementation UNNotificationResponse
@dynamic notification;
@dynamic actionIdentifier;
@end

@implementation StageResponse

- (void)dealloc {
    [notification_ release];
    [actionIdentifier_ release];
    [super dealloc];
}

- (UNNotification*)notification {
    return notification_;
}

- (NSString*)actionIdentifier {
    return actionIdentifier_;
}

@end
