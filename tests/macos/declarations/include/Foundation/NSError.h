// Declares NSError.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSErrorDomain;
typedef NSString* NSErrorUserInfoKey;

extern NSErrorDomain const NSCocoaErrorDomain;
extern NSErrorDomain const NSPOSIXErrorDomain;
extern NSErrorDomain const NSOSStatusErrorDomain;
extern NSErrorUserInfoKey const NSUnderlyingErrorKey;
extern NSErrorUserInfoKey const NSLocalizedDescriptionKey;
extern NSErrorUserInfoKey const NSLocalizedFailureReasonErrorKey;
extern NSErrorUserInfoKey const NSLocalizedFailureErrorKey API_AVAILABLE(macos(10.13));
extern NSErrorUserInfoKey const NSFilePathErrorKey;

NS_ENUM(NSInteger){
    NSFileNoSuchFileError = 4,
    NSFileReadNoPermissionError = 257,
    NSFileReadNoSuchFileError = 260,
    NSFileWriteUnknownError = 512,
    NSFileWriteNoPermissionError = 513,
    NSFileWriteFileExistsError = 516,
    NSFileWriteVolumeReadOnlyError = 642,
};

@interface NSError : NSObject <NSCopying, NSSecureCoding>
- (instancetype)initWithDomain:(NSErrorDomain)domain
                          code:(NSInteger)code
                      userInfo:(nullable NSDictionary<NSErrorUserInfoKey, id>*)userInfo
    NS_DESIGNATED_INITIALIZER;
+ (instancetype)errorWithDomain:(NSErrorDomain)domain
                           code:(NSInteger)code
                       userInfo:(nullable NSDictionary<NSErrorUserInfoKey, id>*)userInfo;
@property(readonly, copy) NSErrorDomain domain;
@property(readonly) NSInteger code;
@property(readonly, copy) NSDictionary<NSErrorUserInfoKey, id>* userInfo;
@property(readonly, copy) NSString* localizedDescription;
@property(nullable, readonly, copy) NSString* localizedFailureReason;
@property(nullable, readonly, copy) NSString* localizedRecoverySuggestion;
@end

NS_ASSUME_NONNULL_END
