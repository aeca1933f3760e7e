// The values of the stand-in User Notifications.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/UserNotificationValues.h"

// Apple's classes declare no storage; their factory methods return the Stage subclasses.

@implementation UNNotificationSound

+ (instancetype)soundNamed:(UNNotificationSoundName)name {
    StageSound* const sound = [[[StageSound alloc] init] autorelease];
    sound->name = [name copy];
    return sound;
}

@end

@implementation StageSound

- (void)dealloc {
    [name release];
    [super dealloc];
}

@end

@implementation UNNotificationAction
@dynamic identifier;
@dynamic title;

+ (instancetype)actionWithIdentifier:(NSString*)identifier
                               title:(NSString*)title
                             options:(UNNotificationActionOptions)options {
    (void)options;
    StageAction* const action = [[[StageAction alloc] init] autorelease];
    action->identifier_ = [identifier copy];
    action->title_ = [title copy];
    return action;
}

@end

@implementation StageAction

- (void)dealloc {
    [identifier_ release];
    [title_ release];
    [super dealloc];
}

- (NSString*)identifier {
    return identifier_;
}

- (NSString*)title {
    return title_;
}

@end

@implementation UNNotificationCategory
@dynamic identifier;
@dynamic actions;

+ (instancetype)categoryWithIdentifier:(NSString*)identifier
                               actions:(NSArray<UNNotificationAction*>*)actions
                     intentIdentifiers:(NSArray<NSString*>*)intentIdentifiers
                               options:(UNNotificationCategoryOptions)options {
    (void)intentIdentifiers;
    (void)options;
    StageCategory* const category = [[[StageCategory alloc] init] autorelease];
    category->identifier_ = [identifier copy];
    category->actions_ = [actions copy];
    return category;
}

@end

@implementation StageCategory

- (void)dealloc {
    [identifier_ release];
    [actions_ release];
    [super dealloc];
}

- (NSString*)identifier {
    return identifier_;
}

- (NSArray<UNNotificationAction*>*)actions {
    return actions_;
}

@end

@implementation UNNotificationTrigger
@dynamic repeats;
@end

@implementation UNTimeIntervalNotificationTrigger
@dynamic timeInterval;

+ (instancetype)triggerWithTimeInterval:(NSTimeInterval)timeInterval repeats:(BOOL)repeats {
    if (timeInterval <= 0) {
        [NSException raise:NSInternalInconsistencyException
                    format:@"time interval must be greater than 0"];
    }
    StageTrigger* const trigger = [[[StageTrigger alloc] init] autorelease];
    trigger->timeInterval_ = timeInterval;
    trigger->repeats_ = repeats;
    return trigger;
}

@end

@implementation StageTrigger

- (NSTimeInterval)timeInterval {
    return timeInterval_;
}

- (BOOL)repeats {
    return repeats_;
}

@end

@implementation UNNotificationContent
@dynamic title;
@dynamic body;
@dynamic sound;
@dynamic categoryIdentifier;
@dynamic userInfo;
@end

@implementation UNMutableNotificationContent
@dynamic title;
@dynamic body;
@dynamic sound;
@dynamic categoryIdentifier;
@dynamic userInfo;

+ (instancetype)allocWithZone:(NSZone*)zone {
    if (self != [UNMutableNotificationContent class]) return [super allocWithZone:zone];
    return [StageContent allocWithZone:zone];
}

@end

@implementation StageContent

- (void)dealloc {
    [title_ release];
    [body_ release];
    [sound_ release];
    [categoryIdentifier_ release];
    [userInfo_ release];
    [super dealloc];
}

- (NSString*)title {
    return title_;
}

- (void)setTitle:(NSString*)title {
    ASSIGNCOPY(title_, title);
}

- (NSString*)body {
    return body_;
}

- (void)setBody:(NSString*)body {
    ASSIGNCOPY(body_, body);
}

- (UNNotificationSound*)sound {
    return sound_;
}

- (void)setSound:(UNNotificationSound*)sound {
    ASSIGN(sound_, sound);
}

- (NSString*)categoryIdentifier {
    return categoryIdentifier_;
}

- (void)setCategoryIdentifier:(NSString*)identifier {
    ASSIGNCOPY(categoryIdentifier_, identifier);
}

- (NSDictionary*)userInfo {
    return userInfo_;
}

- (void)setUserInfo:(NSDictionary*)userInfo {
    ASSIGNCOPY(userInfo_, userInfo);
}

@end

@implementation UNNotificationRequest
@dynamic identifier;
@dynamic content;
@dynamic trigger;

+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(UNNotificationTrigger*)trigger {
    StageRequest* const request = [[[StageRequest alloc] init] autorelease];
    request->identifier_ = [identifier copy];
    request->content_ = [content retain];
    request->trigger_ = [trigger retain];
    return request;
}

@end

@implementation StageRequest

- (void)dealloc {
    [identifier_ release];
    [content_ release];
    [trigger_ release];
    [super dealloc];
}

- (NSString*)identifier {
    return identifier_;
}

- (UNNotificationContent*)content {
    return content_;
}

- (UNNotificationTrigger*)trigger {
    return trigger_;
}

@end
