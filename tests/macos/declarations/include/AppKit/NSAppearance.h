// Declares NSAppearance.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAppearanceName;

extern NSAppearanceName const NSAppearanceNameAqua API_AVAILABLE(macos(10.9));
extern NSAppearanceName const NSAppearanceNameDarkAqua API_AVAILABLE(macos(10.14));
extern NSAppearanceName const NSAppearanceNameVibrantDark API_AVAILABLE(macos(10.10));
extern NSAppearanceName const NSAppearanceNameVibrantLight API_AVAILABLE(macos(10.10));

API_AVAILABLE(macos(10.9))
@interface NSAppearance : NSObject <NSSecureCoding>
@property(readonly, copy) NSAppearanceName name;
@property(class, strong, null_resettable) NSAppearance* currentAppearance API_DEPRECATED(
    "use currentDrawingAppearance", macos(10.9, 12.0));
@property(class, strong, readonly) NSAppearance* currentDrawingAppearance API_AVAILABLE(macos(11.0))
    ;
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:
    (NSArray<NSAppearanceName>*)appearances API_AVAILABLE(macos(10.14));
@end

@protocol NSAppearanceCustomization <NSObject>
@property(nullable, strong) NSAppearance* appearance API_AVAILABLE(macos(10.9));
@property(readonly, strong) NSAppearance* effectiveAppearance API_AVAILABLE(macos(10.9));
@end

NS_ASSUME_NONNULL_END
