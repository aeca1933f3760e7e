// Declares NSString.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>
#import <Foundation/NSRange.h>

NS_ASSUME_NONNULL_BEGIN

@class NSData, NSError, NSURL, NSCharacterSet;

typedef unsigned short unichar;
typedef NSUInteger NSStringEncoding;

NS_ENUM(NSStringEncoding){
    NSASCIIStringEncoding = 1,       NSUTF8StringEncoding = 4,
    NSISOLatin1StringEncoding = 5,   NSNonLossyASCIIStringEncoding = 7,
    NSUnicodeStringEncoding = 10,    NSWindowsCP1252StringEncoding = 12,
    NSMacOSRomanStringEncoding = 30, NSUTF16StringEncoding = NSUnicodeStringEncoding,
};

typedef NS_OPTIONS(NSUInteger, NSStringCompareOptions) {
    NSCaseInsensitiveSearch = 1,
    NSLiteralSearch = 2,
    NSBackwardsSearch = 4,
    NSAnchoredSearch = 8,
};

@interface NSString : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
- (unichar)characterAtIndex:(NSUInteger)index;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSString (NSStringExtensionMethods)
- (NSString*)substringFromIndex:(NSUInteger)from;
- (NSString*)substringToIndex:(NSUInteger)to;
- (NSString*)substringWithRange:(NSRange)range;
- (NSComparisonResult)compare:(NSString*)string;
- (NSComparisonResult)caseInsensitiveCompare:(NSString*)string;
- (BOOL)isEqualToString:(NSString*)string;
- (BOOL)hasPrefix:(NSString*)text;
- (BOOL)hasSuffix:(NSString*)text;
- (BOOL)containsString:(NSString*)text API_AVAILABLE(macos(10.10));
- (NSRange)rangeOfString:(NSString*)text;
- (NSRange)rangeOfString:(NSString*)text options:(NSStringCompareOptions)options;
- (NSString*)stringByAppendingString:(NSString*)text;
- (NSString*)stringByAppendingFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
@property(readonly) double doubleValue;
@property(readonly) int intValue;
@property(readonly) NSInteger integerValue;
@property(readonly) long long longLongValue;
@property(readonly) BOOL boolValue;
@property(readonly, copy) NSString* uppercaseString;
@property(readonly, copy) NSString* lowercaseString;
// Valid while the string or the innermost autorelease pool lives.
@property(nullable, readonly) const char* UTF8String NS_RETURNS_INNER_POINTER;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding allowLossyConversion:(BOOL)lossy;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding;
- (BOOL)canBeConvertedToEncoding:(NSStringEncoding)encoding;
- (nullable const char*)cStringUsingEncoding:(NSStringEncoding)encoding NS_RETURNS_INNER_POINTER;
- (BOOL)getCString:(char*)buffer
         maxLength:(NSUInteger)maxBufferCount
          encoding:(NSStringEncoding)encoding;
- (NSUInteger)lengthOfBytesUsingEncoding:(NSStringEncoding)encoding;
- (NSArray<NSString*>*)componentsSeparatedByString:(NSString*)separator;
- (NSString*)stringByTrimmingCharactersInSet:(NSCharacterSet*)set;
- (NSString*)stringByReplacingOccurrencesOfString:(NSString*)target
                                       withString:(NSString*)replacement;
@property(readonly, copy) NSString* decomposedStringWithCanonicalMapping;
@property(readonly, copy) NSString* precomposedStringWithCanonicalMapping;

- (instancetype)initWithString:(NSString*)string;
- (instancetype)initWithFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
- (nullable instancetype)initWithUTF8String:(const char*)text;
- (nullable instancetype)initWithData:(NSData*)data encoding:(NSStringEncoding)encoding;
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)length
                              encoding:(NSStringEncoding)encoding;
- (nullable instancetype)initWithCString:(const char*)text encoding:(NSStringEncoding)encoding;
+ (instancetype)string;
+ (instancetype)stringWithString:(NSString*)string;
+ (nullable instancetype)stringWithUTF8String:(const char*)text;
+ (instancetype)stringWithFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
+ (nullable instancetype)stringWithCString:(const char*)text encoding:(NSStringEncoding)encoding;
@end

@interface NSMutableString : NSString
- (void)replaceCharactersInRange:(NSRange)range withString:(NSString*)string;
@end

@interface NSMutableString (NSMutableStringExtensionMethods)
- (void)insertString:(NSString*)string atIndex:(NSUInteger)index;
- (void)deleteCharactersInRange:(NSRange)range;
- (void)appendString:(NSString*)string;
- (void)appendFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
- (void)setString:(NSString*)string;
+ (instancetype)stringWithCapacity:(NSUInteger)capacity;
@end

NS_ASSUME_NONNULL_END
