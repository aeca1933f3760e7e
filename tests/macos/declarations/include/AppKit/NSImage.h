// Images.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSImageName;

@interface NSImage : NSObject <NSCopying, NSSecureCoding>
// The object is shared by all who ask for the name.
+ (nullable NSImage*)imageNamed:(NSImageName)name;
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description
    API_AVAILABLE(macos(11.0));
- (instancetype)initWithSize:(NSSize)size NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithData:(NSData*)data;
- (nullable instancetype)initWithContentsOfFile:(NSString*)path;
@property NSSize size;
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
@property(nullable, copy) NSString* accessibilityDescription;
@property(readonly, getter=isValid) BOOL valid;
- (nullable NSImageName)name;
- (BOOL)setName:(nullable NSImageName)name;
@end

NS_ASSUME_NONNULL_END
