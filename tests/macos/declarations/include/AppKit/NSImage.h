// Declares NSImage.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSImageName;

@interface NSImage : NSObject <NSCopying, NSSecureCoding>
// Returns a shared object.
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
