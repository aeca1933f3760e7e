// Declares key-value coding.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSObject (NSKeyValueCoding)
- (nullable id)valueForKey:(NSString*)key;
- (void)setValue:(nullable id)value forKey:(NSString*)key;
- (nullable id)valueForKeyPath:(NSString*)keyPath;
@end

NS_ASSUME_NONNULL_END
