// Declares the macros for functions, enumerations and option sets.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <os/availability.h>

#ifdef __cplusplus
#define CF_EXTERN_C_BEGIN extern "C" {
#define CF_EXTERN_C_END }
#define CF_EXPORT extern "C"
#else
#define CF_EXTERN_C_BEGIN
#define CF_EXTERN_C_END
#define CF_EXPORT extern
#endif

// In C++ an enumeration's name is a type already, so the typedef that the macro follows gets an
// unused name.
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

// In C++ an option set is a plain integer, so that its options can be combined.
#ifdef __cplusplus
#define CF_OPTIONS(type, name) \
    type name;                 \
    enum __attribute__((flag_enum, enum_extensibility(open))) : type
#else
#define CF_OPTIONS(type, name)                                                  \
    enum __attribute__((flag_enum, enum_extensibility(open))) name : type name; \
    enum name : type
#endif
