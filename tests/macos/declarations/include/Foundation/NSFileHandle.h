// Declares NSFileHandle.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSData.h>
#import <Foundation/NSError.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSFileHandle : NSObject <NSSecureCoding>
- (instancetype)initWithFileDescriptor:(int)descriptor
                        closeOnDealloc:(BOOL)close NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithFileDescriptor:(int)descriptor;
@property(readonly) int fileDescriptor;
- (nullable NSData*)readDataToEndOfFileAndReturnError:(out NSError**)error
    API_AVAILABLE(macos(10.15));
// Raises an exception if reading fails.
- (NSData*)readDataToEndOfFile API_DEPRECATED_WITH_REPLACEMENT("readDataToEndOfFileAndReturnError:",
                                                               macos(10.0, API_TO_BE_DEPRECATED));
@end

NS_ASSUME_NONNULL_END
