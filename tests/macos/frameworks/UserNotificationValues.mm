// The values of the stand-in User Notifications.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/UserNotificationValues.h"

@implementation UNNotificationSound

+ (instancetype)soundNamed:(UNNotificationSoundName)name {
    UNNotificationSound* const sound = [[[self alloc] init] autorelease];
    sound->name_ = [name copy];
    return sound;
}

- (void)dealloc {
    [name_ release];
    [super dealloc];
}

- (NSString*)name {
    return name_;
}

@end

@implementation UNNotificationAction
@synthesize identifier = identifier_;
@synthesize title = title_;

+ (instancetype)actionWithIdentifier:(NSString*)identifier
                               title:(NSString*)title
                             options:(UNNotificationActionOptions)options {
    (void)options;
    UNNotificationAction* const action = [[[self alloc] init] autorelease];
    action->identifier_ = [identifier copy];
    action->title_ = [title copy];
    return action;
}

- (void)dealloc {
    [identifier_ release];
    [title_ release];
    [super dealloc];
}

@end

@implementation UNNotificationCategory
@synthesize identifier = identifier_;
@synthesize actions = actions_;

+ (instancetype)categoryWithIdentifier:(NSString*)identifier
                               actions:(NSArray<UNNotificationAction*>*)actions
                     intentIdentifiers:(NSArray<NSString*>*)intentIdentifiers
                               options:(UNNotificationCategoryOptions)options {
    (void)intentIdentifiers;
    (void)options;
    UNNotificationCategory* const category = [[[self alloc] init] autorelease];
    category->identifier_ = [identifier copy];
    category->actions_ = [actions copy];
    return category;
}

- (void)dealloc {
    [identifier_ release];
    [actions_ release];
    [super dealloc];
}

@end

@implementation UNNotificationTrigger
@synthesize repeats = repeats_;
@end

@implementation UNTimeIntervalNotificationTrigger
@synthesize timeInterval = timeInterval_;

+ (instancetype)triggerWithTimeInterval:(NSTimeInterval)timeInterval repeats:(BOOL)repeats {
    if (timeInterval <= 0) {
        [NSException raise:NSInternalInconsistencyException
                    format:@"time interval must be greater than 0"];
    }
    UNTimeIntervalNotificationTrigger* const trigger = [[[self alloc] init] autorelease];
    trigger->timeInterval_ = timeInterval;
    trigger->repeats_ = repeats;
    return trigger;
}

@end

@implementation UNNotificationContent
@synthesize title = title_;
@synthesize body = body_;
@synthesize sound = sound_;
@synthesize categoryIdentifier = categoryIdentifier_;
@synthesize userInfo = userInfo_;

- (void)dealloc {
    [title_ release];
    [body_ release];
    [sound_ release];
    [categoryIdentifier_ release];
    [userInfo_ release];
    [super dealloc];
}

@end

@implementation UNMutableNotificationContent
@dynamic title;
@dynamic body;
@dynamic sound;
@dynamic categoryIdentifier;
@dynamic userInfo;

- (void)setTitle:(NSString*)title {
    ASSIGNCOPY(title_, title);
}

- (void)setBody:(NSString*)body {
    ASSIGNCOPY(body_, body);
}

- (void)setSound:(UNNotificationSound*)sound {
    ASSIGN(sound_, sound);
}

- (void)setCategoryIdentifier:(NSString*)identifier {
    ASSIGNCOPY(categoryIdentifier_, identifier);
}

- (void)setUserInfo:(NSDictionary*)userInfo {
    ASSIGNCOPY(userInfo_, userInfo);
}

@end

@implementation UNNotificationRequest
@synthesize identifier = identifier_;
@synthesize content = content_;
@synthesize trigger = trigger_;

+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(UNNotificationTrigger*)trigger {
    UNNotificationRequest* const request = [[[self alloc] init] autorelease];
    request->identifier_ = [identifier copy];
    request->content_ = [content retain];
    request->trigger_ = [trigger retain];
    return request;
}

- (void)dealloc {
    [identifier_ release];
    [content_ release];
    [trigger_ release];
    [super dealloc];
}

@end

@implementation UNNotification
@synthesize request = request_;

- (instancetype)initWithRequest:(UNNotificationRequest*)request {
    self = [super init];
    request_ = [request retain];
    return self;
}

- (void)dealloc {
    [request_ release];
    [super dealloc];
}

@end

@implementation UNNotificationResponse
@synthesize notification = notification_;
@synthesize actionIdentifier = actionIdentifier_;

+ (instancetype)responseTo:(UNNotificationRequest*)request action:(NSString*)identifier {
    UNNotificationResponse* const response = [[[self alloc] init] autorelease];
    response->notification_ = [[UNNotification alloc] initWithRequest:request];
    response->actionIdentifier_ = [identifier copy];
    return response;
}

- (void)dealloc {
    [notification_ release];
    [actionIdentifier_ release];
    [super dealloc];
}

@end
