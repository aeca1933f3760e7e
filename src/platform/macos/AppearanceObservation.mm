// Observes the appearance of a status item's button.
// SPDX-License-Identifier: MIT
#import "platform/macos/AppearanceObservation.h"

#include <utility>

#include "platform/macos/Exceptions.h"

@interface BriselAppearanceObserver : NSObject {
  @public
    std::shared_ptr<const bool> settingImage;
    std::function<void()> changed;
    BOOL reportIsDue;
}
- (void)report;
@end

@implementation BriselAppearanceObserver

// Does not call super, which observes nothing.
- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    (void)object;
    (void)change;
    (void)context;
    if (![keyPath isEqualToString:@"effectiveAppearance"] || *settingImage || reportIsDue) return;
    constexpr NSTimeInterval TimeToSettle = 0.1;
    reportIsDue = YES;
    // All common modes, so that it also comes while an alert or the menu is open.
    [self performSelector:@selector(report)
               withObject:nil
               afterDelay:TimeToSettle
                  inModes:[NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                                    NSEventTrackingRunLoopMode, nil]];
}

- (void)report {
    reportIsDue = NO;
    // AppKit drains its own pool only after user events.
    @autoreleasepool {
        // A copy: the call may end the observation.
        const auto call = changed;
        call();
    }
}

@end

namespace brisel::platform::macos {

AppearanceObservation::AppearanceObservation(NSStatusBarButton* button,
                                             std::shared_ptr<const bool> settingImage,
                                             std::function<void()> changed)
    : button_(retained(button)), observer_([[BriselAppearanceObserver alloc] init]) {
    observer_.get()->settingImage = std::move(settingImage);
    observer_.get()->changed = std::move(changed);
    [button_.get() addObserver:observer_.get()
                    forKeyPath:@"effectiveAppearance"
                       options:0
                       context:nullptr];
}

AppearanceObservation::~AppearanceObservation() {
    guarded("stop observing the appearance", [this] {
        [NSObject cancelPreviousPerformRequestsWithTarget:observer_.get()];
        [button_.get() removeObserver:observer_.get() forKeyPath:@"effectiveAppearance"];
    });
}

}  // namespace brisel::platform::macos
