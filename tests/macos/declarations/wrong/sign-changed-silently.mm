// A signed status becomes an unsigned one without a cast.
// SPDX-License-Identifier: MIT
//
// says: implicit conversion changes signedness: 'OSStatus'
#import <Security/Authorization.h>

UInt32 statusOf(AuthorizationRef authorization) {
    return AuthorizationFree(authorization, kAuthorizationFlagDefaults);
}
