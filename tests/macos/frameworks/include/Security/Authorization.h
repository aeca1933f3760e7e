// Authorization Services.
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreFoundation/CFBase.h>
#include <stdio.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

CF_ENUM(OSStatus){
    errAuthorizationSuccess = 0,           errAuthorizationDenied = -60005,
    errAuthorizationCanceled = -60006,     errAuthorizationInternal = -60008,
    errAuthorizationInvalidFlags = -60011, errAuthorizationToolExecuteFailure = -60031,
};

typedef CF_OPTIONS(UInt32, AuthorizationFlags) {
    kAuthorizationFlagDefaults = 0,
    kAuthorizationFlagInteractionAllowed = 1 << 0,
    kAuthorizationFlagExtendRights = 1 << 1,
    kAuthorizationFlagPreAuthorize = 1 << 4,
};

typedef const struct AuthorizationOpaqueRef* AuthorizationRef;
typedef const char* AuthorizationString;

// `value` points to `valueLength` bytes, or is null with a length of 0.
typedef struct {
    AuthorizationString name;
    size_t valueLength;
    void* _Nullable value;
    UInt32 flags;
} AuthorizationItem;

typedef struct {
    UInt32 count;
    AuthorizationItem* _Nullable items;
} AuthorizationItemSet;

typedef AuthorizationItemSet AuthorizationRights;
typedef AuthorizationItemSet AuthorizationEnvironment;

OSStatus AuthorizationCreate(const AuthorizationRights* _Nullable rights,
                             const AuthorizationEnvironment* _Nullable environment,
                             AuthorizationFlags flags,
                             AuthorizationRef _Nullable* _Nullable authorization);
OSStatus AuthorizationFree(AuthorizationRef authorization, AuthorizationFlags flags);
OSStatus AuthorizationCopyRights(AuthorizationRef authorization, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment* _Nullable environment,
                                 AuthorizationFlags flags,
                                 AuthorizationRights* _Nullable* _Nullable authorizedRights);
// `arguments` ends with a null and leaves the tool's path out.
OSStatus AuthorizationExecuteWithPrivileges(AuthorizationRef authorization, const char* pathToTool,
                                            AuthorizationFlags options,
                                            char* _Nonnull const* _Nonnull arguments,
                                            FILE* _Nullable* _Nullable communicationsPipe)
    API_DEPRECATED("no longer supported", macos(10.1, 10.7));

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
