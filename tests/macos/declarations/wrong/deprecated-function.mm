// A function is named that has been deprecated since macOS 10.7.
// SPDX-License-Identifier: MIT
//
// says: 'AuthorizationExecuteWithPrivileges' is deprecated: first deprecated in macOS 10.7
#import <Security/Authorization.h>

const auto execute = &AuthorizationExecuteWithPrivileges;
