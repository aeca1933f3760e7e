// Declares NSException.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

extern NSExceptionName const NSGenericException;
extern NSExceptionName const NSRangeException;
extern NSExceptionName const NSInvalidArgumentException;
extern NSExceptionName const NSInternalInconsistencyException;

@interface NSException : NSObject <NSCopying, NSSecureCoding>
+ (NSException*)exceptionWithName:(NSExceptionName)name
                           reason:(nullable NSString*)reason
                         userInfo:(nullable NSDictionary*)userInfo;
- (instancetype)initWithName:(NSExceptionName)name
                      reason:(nullable NSString*)reason
                    userInfo:(nullable NSDictionary*)userInfo NS_DESIGNATED_INITIALIZER;
@property(readonly, copy) NSExceptionName name;
@property(nullable, readonly, copy) NSString* reason;
@property(nullable, readonly, copy) NSDictionary* userInfo;
- (void)raise;
@end

@interface NSException (NSExceptionRaisingConveniences)
+ (void)raise:(NSExceptionName)name format:(NSString*)format, ... NS_FORMAT_FUNCTION(2, 3);
@end

NS_ASSUME_NONNULL_END
