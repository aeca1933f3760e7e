// The base of Core Foundation.
// SPDX-License-Identifier: MIT
#pragma once

#include <MacTypes.h>
#include <os/availability.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

// How Core Foundation declares functions, enumerations and option sets.
#ifdef __cplusplus
#define CF_EXTERN_C_BEGIN extern "C" {
#define CF_EXTERN_C_END }
#define CF_EXPORT extern "C"
#else
#define CF_EXTERN_C_BEGIN
#define CF_EXTERN_C_END
#define CF_EXPORT extern
#endif

// In C++ the enumeration's name is a type already; the type definition that its header begins with
// goes to an unused name.
#ifdef __cplusplus
#define BRISEL_CF_NAMED_ENUM(type, name) \
    type brisel_type_of_##name;          \
    enum __attribute__((enum_extensibility(open))) name : type
#else
#define BRISEL_CF_NAMED_ENUM(type, name)                             \
    enum __attribute__((enum_extensibility(open))) name : type name; \
    enum name : type
#endif
#define BRISEL_CF_ANONYMOUS_ENUM(type) enum __attribute__((enum_extensibility(open))) : type
#define BRISEL_CF_CHOSEN_ENUM(first, second, chosen, ...) chosen
#define CF_ENUM(...)                                                                     \
    BRISEL_CF_CHOSEN_ENUM(__VA_ARGS__, BRISEL_CF_NAMED_ENUM, BRISEL_CF_ANONYMOUS_ENUM, ) \
    (__VA_ARGS__)

// In C++ the name of an option set is a plain number, so that its options can be combined.
#ifdef __cplusplus
#define CF_OPTIONS(type, name) \
    type name;                 \
    enum __attribute__((flag_enum, enum_extensibility(open))) : type
#else
#define CF_OPTIONS(type, name)                                                  \
    enum __attribute__((flag_enum, enum_extensibility(open))) name : type name; \
    enum name : type
#endif

// What every Core Foundation header needs, and what every Core Foundation object can do.

#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))

// Which Objective-C class an object may be cast to and from.
#define CF_BRIDGED_TYPE(type) __attribute__((objc_bridge(type)))
#define CF_BRIDGED_MUTABLE_TYPE(type) __attribute__((objc_bridge_mutable(type)))

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef unsigned long CFTypeID;
typedef long CFIndex;

typedef const CF_BRIDGED_TYPE(id) void* CFTypeRef;
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString* CFStringRef;
typedef const struct CF_BRIDGED_TYPE(id) __CFAllocator* CFAllocatorRef;

// Null: the default allocator.
extern const CFAllocatorRef _Null_unspecified kCFAllocatorDefault;

CFTypeID CFGetTypeID(CFTypeRef object);
CFTypeRef CFRetain(CFTypeRef object);
// Crashes on null.
void CFRelease(CFTypeRef object);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
